#pragma once

#include "vorlinglobal.h"

#include <QtCore/QMap>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtGui/QFont>
#include <QtGui/qwindowdefs.h>

#ifdef Q_OS_WIN
struct HWND__;
#endif

// Static helpers for programs built on the library: files and folders, INI settings in
// "GB2312", CSV record files under the application's "RecordFiles" folder, the machine's
// identity, time stamps, text metrics and path parts.
class VORLIN_EXPORT libUtilStatic
{
public:
#ifdef Q_OS_WIN
    using OwnerWindow = HWND__*; // HWND
#else
    using OwnerWindow = WId;
#endif

    // INI files, always through QSettings with the "GB2312" codec; usable from any thread.
    static QVariant IniGetValue(const QString& file, const QString& key, const QVariant& def = QVariant());
    static bool IniContains(const QString& file, const QString& key);
    // Written to disk before returning.
    static void SyncIniSetValue(const QString& file, const QString& key, const QVariant& value);
    // Written later on Qt's global thread pool; nobody waits for it or learns of a failure,
    // and two such writes to one file are not ordered.
    static void AsyncIniSetValue(const QString& file, const QString& key, const QVariant& value);

    // Rows of record files in <application folder>/RecordFiles/; one process-wide lock
    // keeps rows from different threads whole. A title row always starts on a fresh line.
    static void WriteCsvFileTitle(const QString& fileName, const QStringList& titles);
    // The values under each title in title order, "NON" where the map has none.
    static void WriteCsvFile(const QString& fileName, const QStringList& titles, const QMap<QString, QString>& values);

    static bool AppendText(QString path, QString text);
    static bool GetFileContent(QString path, QString& content);
    static bool CreateFileW(QString path);
    static bool CreateFolder(QString path);
    static bool FileExists(QString path);
    static bool FolderExists(QString path);
    static bool IsFile(QString path);
    static bool IsFolder(QString path);
    static bool RemoveFile(QString path);
    static bool RenameFile(QString from, QString to);
    static void DeleteDirectory(const QString& path);
    static quint64 ReadDirUsageSize(const QString& path);
    static QString CurrentExeDirPath();
    static QString GetDocumentPath(); // the home folder when the system names none
    static QString GetTempDir();      // QDir::tempPath() when the system names none
    static QString GetUserSelectDir(QString title, OwnerWindow owner);
    static bool OpenLocalFile(const QString& path);
    static bool CheckReMovableDrive(QStringList& drives);

    // True when at least two of: upper-case, lower-case, digits, one of </:>*,?|.
    static bool IsContentValid(const QString& text);
    // Gregorian rule; a text that is no number counts as year 0, a leap year.
    static bool IsLeapYear(QString year);

    // EDX then EAX of identification leaf 1, 16 upper-case hexadecimal digits.
    static QString CpuId();
    static QString MacAddr();
    static QString LocalHostName();
    static QStringList HostIpAddress();

    // Interval clocks from an arbitrary start; do not compare across processes.
    static quint64 GetTimestampMS();
    static quint64 GetTimestampUS();

    static int GetTextTrueHeight(QFont font);
    static int GetTextTrueLenght(QFont font, const QString& text); // sic: the published name
    static QString GetElidedString(QFont font, int width, const QString& text);
    // text, blanks, shortcut: as many blanks as keep the line narrower than width.
    static QString GetMenuTextString(QFont font, const QString& text, const QString& shortcut, int width);

    static QString GetBasePath(QString path);
    static QString GetExtension(QString path);
    // The last name of the path; "/" and "\\" both separate, trailing separators are ignored.
    static QString GetFolderName(QString path);

    // Ends the process at once, without clean-up or log line.
    [[noreturn]] static void KillMe();

private:
    static void getcpuid(unsigned int registers[4], unsigned int leaf);
    static void getcpuidex(unsigned int* registers, unsigned int leaf, unsigned int subLeaf);
    static void writeCsvRow(const QString& fileName, const QStringList& fields, bool titleRow);
};
