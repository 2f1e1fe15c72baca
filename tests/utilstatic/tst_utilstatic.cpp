#include "libutilstatic.h"

#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThreadPool>
#include <QtGui/QFontMetrics>
#include <QtNetwork/QHostAddress>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <cstdio>

namespace {

QStringList g_log;

void captureMessage(QtMsgType, const QMessageLogContext&, const QString& text)
{
    g_log.append(text);
}

// Independent readers: Python's own INI and CSV parsers, answering in JSON.
QJsonDocument python(const QString& script, const QString& file)
{
    QProcess process;
    process.start(QStringLiteral("python3"), {QStringLiteral("-c"), script, file});
    process.waitForFinished(30000);
    const QByteArray out = process.readAllStandardOutput();
    if (process.exitCode() != 0)
        qWarning().noquote() << process.readAllStandardError();
    return QJsonDocument::fromJson(out);
}

QJsonObject readIni(const QString& file)
{
    const QString script = QStringLiteral(
        "import configparser, json, sys\n"
        "p = configparser.ConfigParser(interpolation=None)\n"
        "p.optionxform = str\n"
        "p.read(sys.argv[1], encoding='gb2312')\n"
        "print(json.dumps({s: dict(p[s]) for s in p.sections()}))\n");
    return python(script, file).object();
}

QJsonArray readCsv(const QString& file)
{
    const QString script = QStringLiteral(
        "import csv, json, sys\n"
        "with open(sys.argv[1], newline='') as f:\n"
        "    print(json.dumps(list(csv.reader(f))))\n");
    return python(script, file).array();
}

QJsonArray row(const QStringList& fields)
{
    return QJsonArray::fromStringList(fields);
}

QString recordFile(const QString& name)
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/RecordFiles/") + name;
}

} // namespace

class TestUtilStatic : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        g_log.clear();
        qInstallMessageHandler(captureMessage);
    }
    void cleanup() { qInstallMessageHandler(nullptr); }

    void iniIsWrittenInGb2312()
    {
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("settings.ini"));
        libUtilStatic::SyncIniSetValue(file, QStringLiteral("city"), QStringLiteral("北京"));
        libUtilStatic::SyncIniSetValue(file, QStringLiteral("link/name"), QStringLiteral("数传电台"));
        libUtilStatic::SyncIniSetValue(file, QStringLiteral("link/port"), 14550);
        libUtilStatic::AsyncIniSetValue(file, QStringLiteral("link/baud"), 57600);
        QThreadPool::globalInstance()->waitForDone();

        const QJsonObject ini = readIni(file);
        QCOMPARE(ini.value(QStringLiteral("General")).toObject().value(QStringLiteral("city")).toString(), QStringLiteral("北京"));
        const QJsonObject link = ini.value(QStringLiteral("link")).toObject();
        QCOMPARE(link.value(QStringLiteral("name")).toString(), QStringLiteral("数传电台"));
        QCOMPARE(link.value(QStringLiteral("port")).toString(), QStringLiteral("14550"));
        QCOMPARE(link.value(QStringLiteral("baud")).toString(), QStringLiteral("57600"));

        QCOMPARE(libUtilStatic::IniGetValue(file, QStringLiteral("link/name")).toString(), QStringLiteral("数传电台"));
        QCOMPARE(libUtilStatic::IniGetValue(file, QStringLiteral("link/missing"), 7).toInt(), 7);
        QVERIFY(libUtilStatic::IniContains(file, QStringLiteral("link/port")));
        QVERIFY(!libUtilStatic::IniContains(file, QStringLiteral("port")));
    }

    void csvRowsAndTitles()
    {
        const QString name = QStringLiteral("rows-%1.csv").arg(QCoreApplication::applicationPid());
        const QStringList titles = {QStringLiteral("time"), QStringLiteral("roll"), QStringLiteral("pitch")};
        libUtilStatic::WriteCsvFileTitle(name, titles);
        libUtilStatic::WriteCsvFileTitle(name, titles);
        libUtilStatic::WriteCsvFile(name, titles, {{QStringLiteral("time"), QStringLiteral("12:00")},
                                                   {QStringLiteral("pitch"), QStringLiteral("-2.5")},
                                                   {QStringLiteral("yaw"), QStringLiteral("90")}});
        const QString path = recordFile(name);
        QFile raw(path);
        QVERIFY(raw.open(QIODevice::ReadOnly));
        QCOMPARE(raw.readAll(), QByteArray("\r\ntime,roll,pitch\r\n\r\ntime,roll,pitch\r\n12:00,NON,-2.5\r\n"));
        QCOMPARE(readCsv(path), QJsonArray({row({}), row(titles), row({}), row(titles), row({"12:00", "NON", "-2.5"})}));
        QFile::remove(path);
    }

    void csvRowsFromManyThreadsStayWhole()
    {
        const QString name = QStringLiteral("threads-%1.csv").arg(QCoreApplication::applicationPid());
        QStringList titles;
        for (int column = 0; column < 24; ++column)
            titles.append(QString::number(column));
        // Rows longer than a file buffer reach the disk in several writes each.
        const QString padding(800, QLatin1Char('x'));
        constexpr int threads = 8, rowsPerThread = 40;
        QList<QFuture<void>> writers;
        for (int t = 0; t < threads; ++t) {
            writers.append(QtConcurrent::run([=] {
                for (int r = 0; r < rowsPerThread; ++r) {
                    QMap<QString, QString> values;
                    for (const QString& title : titles)
                        values.insert(title, QStringLiteral("thread%1-row%2-%3-").arg(t).arg(r).arg(title) + padding);
                    libUtilStatic::WriteCsvFile(name, titles, values);
                }
            }));
        }
        for (QFuture<void>& writer : writers)
            writer.waitForFinished();

        const QJsonArray rows = readCsv(recordFile(name));
        QCOMPARE(rows.size(), threads * rowsPerThread);
        QSet<QString> seen;
        for (const QJsonValue& value : rows) {
            const QJsonArray fields = value.toArray();
            QCOMPARE(fields.size(), titles.size());
            const QString prefix = fields.first().toString().section(QLatin1Char('-'), 0, 1); // "threadT-rowR"
            for (int column = 0; column < fields.size(); ++column)
                QCOMPARE(fields.at(column).toString(), prefix + QLatin1Char('-') + QString::number(column) + QLatin1Char('-') + padding);
            seen.insert(prefix);
        }
        QCOMPARE(seen.size(), threads * rowsPerThread);
        QFile::remove(recordFile(name));
    }

    void fileAndFolderHelpers()
    {
        QTemporaryDir dir;
        const QString text = dir.filePath(QStringLiteral("notes.txt"));
        QVERIFY(libUtilStatic::AppendText(text, QStringLiteral("航线")));
        QVERIFY(libUtilStatic::AppendText(text, QStringLiteral(" 1")));
        QString content;
        QVERIFY(libUtilStatic::GetFileContent(text, content));
        QCOMPARE(content, QStringLiteral("航线 1"));
        QVERIFY(!libUtilStatic::GetFileContent(dir.filePath(QStringLiteral("none.txt")), content));

        const QString lost = dir.filePath(QStringLiteral("missing/notes.txt"));
        QVERIFY(!libUtilStatic::AppendText(lost, QStringLiteral("x")));
        QCOMPARE(g_log, QStringList(QStringLiteral("open file error: ") + lost));

        const QString tree = dir.filePath(QStringLiteral("tree"));
        QVERIFY(libUtilStatic::CreateFolder(tree));
        QVERIFY(!libUtilStatic::CreateFolder(dir.filePath(QStringLiteral("a/b")))); // one level only
        QVERIFY(libUtilStatic::CreateFolder(tree + QStringLiteral("/sub")));
        QVERIFY(libUtilStatic::CreateFileW(tree + QStringLiteral("/empty.bin")));
        QVERIFY(libUtilStatic::IsFile(tree + QStringLiteral("/empty.bin")));
        QVERIFY(!libUtilStatic::IsFolder(tree + QStringLiteral("/empty.bin")));
        QVERIFY(libUtilStatic::IsFolder(tree + QStringLiteral("/sub")));
        QVERIFY(libUtilStatic::FolderExists(tree));
        QVERIFY(libUtilStatic::AppendText(tree + QStringLiteral("/sub/.hidden"), QString(300, QLatin1Char('x'))));
        QVERIFY(libUtilStatic::AppendText(tree + QStringLiteral("/top.txt"), QString(40, QLatin1Char('y'))));
        QCOMPARE(libUtilStatic::ReadDirUsageSize(tree), quint64(340));

        QVERIFY(libUtilStatic::RenameFile(tree + QStringLiteral("/top.txt"), tree + QStringLiteral("/moved.txt")));
        QVERIFY(!libUtilStatic::FileExists(tree + QStringLiteral("/top.txt")));
        QVERIFY(libUtilStatic::RemoveFile(tree + QStringLiteral("/moved.txt")));
        libUtilStatic::DeleteDirectory(tree);
        QVERIFY(!libUtilStatic::FolderExists(tree));
        QVERIFY(libUtilStatic::FileExists(text));
    }

    void contentStrengthAndLeapYears()
    {
        // Two of upper case, lower case, digits and </:>*,?| are needed; '-', '_' and spaces count for nothing.
        QVERIFY(!libUtilStatic::IsContentValid(QStringLiteral("abc")));
        QVERIFY(!libUtilStatic::IsContentValid(QStringLiteral("ABC-_ ")));
        QVERIFY(libUtilStatic::IsContentValid(QStringLiteral("Ab")));
        QVERIFY(libUtilStatic::IsContentValid(QStringLiteral("0|")));

        QVERIFY(!libUtilStatic::IsLeapYear(QStringLiteral("1900")));
        QVERIFY(libUtilStatic::IsLeapYear(QStringLiteral("2000")));
        QVERIFY(libUtilStatic::IsLeapYear(QStringLiteral("2024")));
        QVERIFY(!libUtilStatic::IsLeapYear(QStringLiteral("2023")));
        QVERIFY(libUtilStatic::IsLeapYear(QStringLiteral("year"))); // counts as year 0
    }

    void pathParts()
    {
        QCOMPARE(libUtilStatic::GetBasePath(QStringLiteral("/data/logs/a.tar.gz")), QStringLiteral("/data/logs"));
        QCOMPARE(libUtilStatic::GetExtension(QStringLiteral("/data/logs/a.tar.gz")), QStringLiteral("gz"));
        QCOMPARE(libUtilStatic::GetFolderName(QStringLiteral("C:\\data\\logs")), QStringLiteral("logs"));
        QCOMPARE(libUtilStatic::GetFolderName(QStringLiteral("/data/logs/")), QStringLiteral("logs"));
        QCOMPARE(libUtilStatic::GetFolderName(QStringLiteral("logs")), QStringLiteral("logs"));
    }

    void textMetrics()
    {
        QFont font;
        font.setPixelSize(16);
        const QFontMetrics metrics(font);
        const QString text = QStringLiteral("Altitude hold");
        QCOMPARE(libUtilStatic::GetTextTrueHeight(font), metrics.height());
        QCOMPARE(libUtilStatic::GetTextTrueLenght(font, text), metrics.horizontalAdvance(text));
        QCOMPARE(libUtilStatic::GetElidedString(font, metrics.horizontalAdvance(text) + 5, text), text);
        const QString elided = libUtilStatic::GetElidedString(font, metrics.horizontalAdvance(text) / 2, text);
        QVERIFY(elided.endsWith(QChar(0x2026)));
        QVERIFY(metrics.horizontalAdvance(elided) <= metrics.horizontalAdvance(text) / 2);

        // Shortcuts line up: each line is the widest that stays below the width.
        const int width = 260;
        for (const QString& entry : {QStringLiteral("Open"), QStringLiteral("Save mission as")}) {
            const QString line = libUtilStatic::GetMenuTextString(font, entry, QStringLiteral("Ctrl+S"), width);
            QVERIFY(line.startsWith(entry + QLatin1Char(' ')));
            QVERIFY(line.endsWith(QStringLiteral(" Ctrl+S")));
            QVERIFY(metrics.horizontalAdvance(line) < width);
            QVERIFY(metrics.horizontalAdvance(entry + QLatin1Char(' ') + line.mid(entry.size())) >= width);
        }
        QCOMPARE(libUtilStatic::GetMenuTextString(font, text, QStringLiteral("F1"), 10), text + QStringLiteral("F1"));
    }

    void machineIdentity()
    {
        const QString cpu = libUtilStatic::CpuId();
        QCOMPARE(cpu.size(), 16);
        QVERIFY(QRegularExpression(QStringLiteral("^[0-9A-F]{16}$")).match(cpu).hasMatch());
#if defined(__x86_64__) || defined(__i386__)
        // The signature in EAX against the kernel's own decoding of it.
        QFile info(QStringLiteral("/proc/cpuinfo"));
        QVERIFY(info.open(QIODevice::ReadOnly | QIODevice::Text));
        QMap<QString, QString> fields;
        for (const QByteArray& line : info.readAll().split('\n')) {
            if (line.trimmed().isEmpty())
                break; // first processor only
            const int colon = line.indexOf(':');
            fields.insert(QString::fromLatin1(line.left(colon)).trimmed(), QString::fromLatin1(line.mid(colon + 1)).trimmed());
        }
        const quint32 eax = cpu.rightRef(8).toUInt(nullptr, 16);
        const quint32 edx = cpu.leftRef(8).toUInt(nullptr, 16);
        const quint32 baseFamily = (eax >> 8) & 0xF;
        const quint32 family = baseFamily == 0xF ? baseFamily + ((eax >> 20) & 0xFF) : baseFamily;
        quint32 model = (eax >> 4) & 0xF;
        if (baseFamily == 0x6 || baseFamily == 0xF)
            model += ((eax >> 16) & 0xF) << 4;
        QCOMPARE(QString::number(family), fields.value(QStringLiteral("cpu family")));
        QCOMPARE(QString::number(model), fields.value(QStringLiteral("model")));
        QCOMPARE(QString::number(eax & 0xF), fields.value(QStringLiteral("stepping")));
        const QStringList flags = fields.value(QStringLiteral("flags")).split(QLatin1Char(' '));
        QCOMPARE(bool(edx & (1u << 26)), flags.contains(QStringLiteral("sse2")));
        QCOMPARE(bool(edx & (1u << 0)), flags.contains(QStringLiteral("fpu")));
#endif

        QCOMPARE(libUtilStatic::LocalHostName(), QSysInfo::machineHostName());
        for (const QString& address : libUtilStatic::HostIpAddress()) {
            QCOMPARE(QHostAddress(address).protocol(), QAbstractSocket::IPv4Protocol);
            QVERIFY(!address.startsWith(QStringLiteral("127.")));
        }
        const QString mac = libUtilStatic::MacAddr();
        if (!mac.isEmpty()) {
            QStringList known;
            for (const QString& name : QDir(QStringLiteral("/sys/class/net")).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
                QFile address(QStringLiteral("/sys/class/net/") + name + QStringLiteral("/address"));
                if (address.open(QIODevice::ReadOnly))
                    known.append(QString::fromLatin1(address.readAll()).trimmed().toUpper());
            }
            QVERIFY2(known.contains(mac.toUpper()), qPrintable(mac));
        }
    }

    void timestampsShareOneClock()
    {
        const quint64 before = libUtilStatic::GetTimestampMS();
        const quint64 micro = libUtilStatic::GetTimestampUS();
        const quint64 after = libUtilStatic::GetTimestampMS();
        QVERIFY(before <= micro / 1000);
        QVERIFY(micro / 1000 <= after);
    }

    void killMeEndsTheProcessAtOnce()
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--kill-me")});
        QVERIFY(process.waitForFinished(10000));
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        QCOMPARE(process.readAllStandardOutput(), QByteArray("before\n"));
    }
};

int main(int argc, char** argv)
{
    if (argc == 2 && qstrcmp(argv[1], "--kill-me") == 0) {
        std::printf("before\n");
        std::fflush(stdout);
        std::printf("after\n"); // buffered: must never reach the pipe
        libUtilStatic::KillMe();
    }
    QApplication app(argc, argv);
    TestUtilStatic test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_utilstatic.moc"
