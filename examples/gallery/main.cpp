// The vorlin gallery: an application built on MainApplication that shows every widget of
// the library. Without a display (or with --render DIR) it renders each page to a PNG file.
#include "galleryapplication.h"
#include "gallerywindow.h"
#include "simulatedvehicle.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtCore/QTextStream>

namespace {

QString fileNameFor(int index, const QString& title)
{
    QString slug = title.toLower();
    slug.replace(QRegularExpression(QStringLiteral("[^a-z0-9]+")), QStringLiteral("-"));
    return QStringLiteral("%1-%2.png").arg(index + 1, 2, 10, QLatin1Char('0')).arg(slug);
}

int renderPages(GalleryWindow& window, const QString& folder)
{
    QDir().mkpath(folder);
    // A fixed moment of the flight, so renders are comparable from run to run.
    SimulatedVehicle::instance()->setTime(30.0);
    window.resize(1280, 800);
    window.show();
    for (int i = 0; i < window.pageCount(); ++i) {
        window.showPage(i);
        MainApplication::DelayEventLoop(300);
        window.grab().save(QDir(folder).filePath(fileNameFor(i, window.pageTitle(i))));
    }
    QTextStream(stdout) << "Rendered " << window.pageCount() << " gallery pages to " << QDir(folder).absolutePath()
                        << Qt::endl;
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    MainApplication::SetOrganizationDomain(QStringLiteral("vorlin-gallery"), QStringLiteral("vorlin.example"));
    GalleryApplication app(argc, argv);
    MainApplication::InitMainApplicationGlobal();
    app.initApplication();
    app.configApplication();
    app.loadExternModules();

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every widget of the vorlin library."));
    parser.addHelpOption();
    const QCommandLineOption renderOption(QStringLiteral("render"),
                                          QStringLiteral("Render every page to PNG files in <folder> and quit."),
                                          QStringLiteral("folder"));
    parser.addOption(renderOption);
    parser.process(app);

    auto* window = new GalleryWindow;
    int result;
    if (parser.isSet(renderOption) || QGuiApplication::platformName() == QLatin1String("offscreen")) {
        const QString folder = parser.isSet(renderOption) ? parser.value(renderOption)
                                                          : QDir::current().filePath(QStringLiteral("gallery-pages"));
        result = renderPages(*window, folder);
    } else {
        app.showAppWindow();
        result = app.exec();
    }
    app.destroyApplication();
    MainApplication::FreeMainApplicationGlobal();
    return result;
}
