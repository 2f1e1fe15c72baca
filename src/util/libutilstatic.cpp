#include "libutilstatic.h"

#include "processorid.h"
#include "folderbrowse.h"
#include "processcontrol.h"
#include "qcsvstream.h"
#include "removabledrives.h"

#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QMutex>
#include <QtCore/QRegularExpression>
#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtGui/QFontMetrics>
#include <QtNetwork/QHostInfo>
#include <QtNetwork/QNetworkInterface>

namespace {

QSettings* openIni(const QString& file)
{
    auto* settings = new QSettings(file, QSettings::IniFormat);
    settings->setIniCodec("GB2312");
    return settings;
}

QString standardLocation(QStandardPaths::StandardLocation location, const QString& fallback)
{
    const QStringList paths = QStandardPaths::standardLocations(location);
    return paths.isEmpty() ? fallback : paths.first();
}

} // namespace

QVariant libUtilStatic::IniGetValue(const QString& file, const QString& key, const QVariant& def)
{
    QScopedPointer<QSettings> settings(openIni(file));
    return settings->value(key, def);
}

bool libUtilStatic::IniContains(const QString& file, const QString& key)
{
    QScopedPointer<QSettings> settings(openIni(file));
    return settings->contains(key);
}

void libUtilStatic::SyncIniSetValue(const QString& file, const QString& key, const QVariant& value)
{
    QScopedPointer<QSettings> settings(openIni(file));
    settings->setValue(key, value);
    // The destructor writes the file.
}

void libUtilStatic::AsyncIniSetValue(const QString& file, const QString& key, const QVariant& value)
{
    QtConcurrent::run(&libUtilStatic::SyncIniSetValue, file, key, value);
}

void libUtilStatic::WriteCsvFileTitle(const QString& fileName, const QStringList& titles)
{
    writeCsvRow(fileName, titles, true);
}

void libUtilStatic::WriteCsvFile(const QString& fileName, const QStringList& titles, const QMap<QString, QString>& values)
{
    QStringList fields;
    fields.reserve(titles.size());
    for (const QString& title : titles)
        fields.append(values.value(title, QStringLiteral("NON")));
    writeCsvRow(fileName, fields, false);
}

void libUtilStatic::writeCsvRow(const QString& fileName, const QStringList& fields, bool titleRow)
{
    static QMutex rowMutex;

    const QString folder = CurrentExeDirPath() + QLatin1String("/RecordFiles/");
    QDir dir(folder);
    if (!dir.exists())
        dir.mkdir(folder);

    QMutexLocker locker(&rowMutex);
    QCsvStream stream(folder + fileName);
    if (titleRow) {
        // So that a title never continues a row that was left open; two titles in a row
        // are therefore separated by a blank line.
        stream.endRow();
    }
    for (const QString& field : fields)
        stream << field;
    stream.endRow();
    stream.close();
}

bool libUtilStatic::AppendText(QString path, QString text)
{
    QFile file(path);
    if (!file.open(QIODevice::Append | QIODevice::Text)) {
        qDebug().noquote() << "open file error:" << path;
        return false;
    }
    file.write(text.toUtf8());
    file.close();
    return true;
}

bool libUtilStatic::GetFileContent(QString path, QString& content)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    content = QString::fromUtf8(file.readAll());
    return true;
}

bool libUtilStatic::CreateFileW(QString path)
{
    QFile file(path);
    const bool opened = file.open(QIODevice::WriteOnly | QIODevice::Append);
    file.close();
    return opened;
}

bool libUtilStatic::CreateFolder(QString path)
{
    return QDir().mkdir(path);
}

bool libUtilStatic::FileExists(QString path)
{
    return QFile::exists(path);
}

bool libUtilStatic::FolderExists(QString path)
{
    return QDir(path).exists();
}

bool libUtilStatic::IsFile(QString path)
{
    return QFileInfo(path).isFile();
}

bool libUtilStatic::IsFolder(QString path)
{
    return QFileInfo(path).isDir();
}

bool libUtilStatic::RemoveFile(QString path)
{
    return QFile::remove(path);
}

bool libUtilStatic::RenameFile(QString from, QString to)
{
    return QFile::rename(from, to);
}

void libUtilStatic::DeleteDirectory(const QString& path)
{
    if (!path.isEmpty())
        QDir(path).removeRecursively();
}

quint64 libUtilStatic::ReadDirUsageSize(const QString& path)
{
    quint64 total = 0;
    QDirIterator it(path, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        total += quint64(it.fileInfo().size());
    }
    return total;
}

QString libUtilStatic::CurrentExeDirPath()
{
    return QCoreApplication::applicationDirPath();
}

QString libUtilStatic::GetDocumentPath()
{
    return standardLocation(QStandardPaths::DocumentsLocation, QDir::homePath());
}

QString libUtilStatic::GetTempDir()
{
    return standardLocation(QStandardPaths::TempLocation, QDir::tempPath());
}

QString libUtilStatic::GetUserSelectDir(QString title, OwnerWindow owner)
{
    return vorlin::platform::browseForFolder(title, quintptr(owner));
}

bool libUtilStatic::OpenLocalFile(const QString& path)
{
    // "file:///" plus the path; an absolute Unix path brings its own leading slash.
    QString location = QDir::fromNativeSeparators(path);
    if (location.startsWith(QLatin1Char('/')))
        location.remove(0, 1);
    return QDesktopServices::openUrl(QUrl(QLatin1String("file:///") + location));
}

bool libUtilStatic::CheckReMovableDrive(QStringList& drives)
{
    const QStringList found = vorlin::platform::removableDriveRoots();
    for (const QString& root : found) {
        drives.append(root);
        qDebug() << "存在可移动盘";
    }
    return !found.isEmpty();
}

bool libUtilStatic::IsContentValid(const QString& text)
{
    static const QRegularExpression classes[] = {
        QRegularExpression(QStringLiteral("[A-Z]")),
        QRegularExpression(QStringLiteral("[a-z]")),
        QRegularExpression(QStringLiteral("[0-9]")),
        QRegularExpression(QStringLiteral("[</:>*,?|]")),
    };
    int present = 0;
    for (const QRegularExpression& characterClass : classes) {
        if (text.contains(characterClass))
            ++present;
    }
    return present >= 2;
}

bool libUtilStatic::IsLeapYear(QString year)
{
    const int value = year.toInt();
    return (value % 4 == 0 && value % 100 != 0) || value % 400 == 0;
}

void libUtilStatic::getcpuid(unsigned int registers[4], unsigned int leaf)
{
    getcpuidex(registers, leaf, 0);
}

void libUtilStatic::getcpuidex(unsigned int* registers, unsigned int leaf, unsigned int subLeaf)
{
    vorlin::platform::cpuidex(registers, leaf, subLeaf);
}

QString libUtilStatic::CpuId()
{
    unsigned int registers[4] = {};
    getcpuid(registers, 1);
    return QStringLiteral("%1%2").arg(registers[3], 8, 16, QLatin1Char('0')).arg(registers[0], 8, 16, QLatin1Char('0')).toUpper();
}

QString libUtilStatic::MacAddr()
{
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& interface : interfaces) {
        const QNetworkInterface::InterfaceFlags flags = interface.flags();
        if (flags.testFlag(QNetworkInterface::IsUp) && flags.testFlag(QNetworkInterface::IsRunning)
            && !flags.testFlag(QNetworkInterface::IsLoopBack))
            return interface.hardwareAddress();
    }
    return QString();
}

QString libUtilStatic::LocalHostName()
{
    return QHostInfo::localHostName();
}

QStringList libUtilStatic::HostIpAddress()
{
    QStringList addresses;
    const QList<QHostAddress> all = QNetworkInterface::allAddresses();
    for (const QHostAddress& address : all) {
        const QString text = address.toString();
        if (address.protocol() == QAbstractSocket::IPv4Protocol && !text.contains(QLatin1String("127.0.")))
            addresses.append(text);
    }
    return addresses;
}

// Both stamps go through a double on purpose; on long uptimes this drops sub-microsecond
// precision, which interval measurements tolerate.
quint64 libUtilStatic::GetTimestampMS()
{
    const double seconds = double(vorlin::platform::performanceCounter()) / double(vorlin::platform::performanceFrequency());
    return quint64(seconds * 1000.0);
}

quint64 libUtilStatic::GetTimestampUS()
{
    const double seconds = double(vorlin::platform::performanceCounter()) / double(vorlin::platform::performanceFrequency());
    return quint64(seconds * 1000.0 * 1000.0);
}

int libUtilStatic::GetTextTrueHeight(QFont font)
{
    return QFontMetrics(font).height();
}

int libUtilStatic::GetTextTrueLenght(QFont font, const QString& text)
{
    return QFontMetrics(font).horizontalAdvance(text);
}

QString libUtilStatic::GetElidedString(QFont font, int width, const QString& text)
{
    return QFontMetrics(font).elidedText(text, Qt::ElideRight, width);
}

QString libUtilStatic::GetMenuTextString(QFont font, const QString& text, const QString& shortcut, int width)
{
    const QFontMetrics metrics(font);
    QString blanks;
    // Bounded by the width: a blank is at least a pixel wide in any real font.
    while (blanks.size() < width
           && metrics.horizontalAdvance(text + blanks + QLatin1Char(' ') + shortcut) < width)
        blanks += QLatin1Char(' ');
    return text + blanks + shortcut;
}

QString libUtilStatic::GetBasePath(QString path)
{
    return QFileInfo(path).path();
}

QString libUtilStatic::GetExtension(QString path)
{
    return QFileInfo(path).suffix();
}

QString libUtilStatic::GetFolderName(QString path)
{
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    while (path.size() > 1 && path.endsWith(QLatin1Char('/')))
        path.chop(1);
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

void libUtilStatic::KillMe()
{
    vorlin::platform::killCurrentProcess();
}
