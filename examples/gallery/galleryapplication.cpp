#include "galleryapplication.h"

#include <QtCore/QDir>

GalleryApplication::GalleryApplication(int& argc, char** argv)
    : MainApplication(argc, argv)
{
    setApplicationVersion(QStringLiteral("1.0.0"));
}

void GalleryApplication::configApplication()
{
    const QString folder = applicationDirPath() + QStringLiteral("/translations/");
    QStringList files = QDir(folder).entryList({QStringLiteral("gallery_*.qm")}, QDir::Files);
    for (QString& file : files)
        file.prepend(folder);
    addLanguageSourceFilePath(files);
}
