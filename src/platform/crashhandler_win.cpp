#include "crashhandler.h"

#include <QtCore/qsystemdetection.h>

#ifdef Q_OS_WIN

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtWidgets/QMessageBox>

#include <windows.h>
#include <dbghelp.h>

namespace vorlin {
namespace platform {
namespace {

std::function<QString()> s_dumpFilePath;

LONG WINAPI onUnhandledException(EXCEPTION_POINTERS* exception)
{
    const QString path = s_dumpFilePath();
    QDir().mkpath(QFileInfo(path).absolutePath());
    HANDLE file = CreateFileW(reinterpret_cast<LPCWSTR>(path.utf16()), GENERIC_WRITE, 0, nullptr,
                              CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
        MINIDUMP_EXCEPTION_INFORMATION info;
        info.ThreadId = GetCurrentThreadId();
        info.ExceptionPointers = exception;
        info.ClientPointers = FALSE;
        MiniDumpWriteDump(GetCurrentProcess(), GetCurrentProcessId(), file, MiniDumpNormal, &info, nullptr, nullptr);
        CloseHandle(file);
    }
    const EXCEPTION_RECORD* record = exception->ExceptionRecord;
    const QString text = QLatin1String(kCrashTextHead)
        + QString::number(quint32(record->ExceptionCode), 16) + QLatin1String(kCrashTextMiddle)
        + QString::number(quintptr(record->ExceptionAddress), 16) + QLatin1String(kCrashTextTail);
    QMessageBox::critical(nullptr, QLatin1String(kCrashTitle), text);
    return EXCEPTION_EXECUTE_HANDLER;
}

} // namespace

void installCrashHandler(const std::function<QString()>& dumpFilePath)
{
    s_dumpFilePath = dumpFilePath;
    SetUnhandledExceptionFilter(onUnhandledException);
}

} // namespace platform
} // namespace vorlin

#endif
