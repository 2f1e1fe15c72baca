#include "crashhandler.h"

#include <QtCore/qsystemdetection.h>

#ifndef Q_OS_WIN

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <csignal>
#include <cstring>
#include <dlfcn.h>
#include <execinfo.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

// Everything the signal handler needs is prepared at installation: inside the handler only
// async-signal-safe calls are made (no allocation, no locks, no stdio).
namespace vorlin {
namespace platform {
namespace {

constexpr int kPathMax = 4096;
char s_dumpPath[kPathMax];
char s_helperPath[kPathMax];
constexpr size_t kAltStackSize = 64 * 1024;
alignas(16) char s_altStack[kAltStackSize];

struct HandledSignal
{
    int number;
    const char* name;
};
constexpr HandledSignal kSignals[] = {
    {SIGSEGV, "SIGSEGV"}, {SIGBUS, "SIGBUS"}, {SIGFPE, "SIGFPE"}, {SIGILL, "SIGILL"}, {SIGABRT, "SIGABRT"},
};

// Appends text to a fixed buffer, always leaving it terminated.
struct Buffer
{
    char data[1024];
    size_t used = 0;

    void add(const char* text)
    {
        while (*text && used + 1 < sizeof data)
            data[used++] = *text++;
        data[used] = '\0';
    }
    void addNumber(unsigned long long value, unsigned base)
    {
        char digits[32];
        int n = 0;
        do {
            digits[n++] = "0123456789abcdef"[value % base];
            value /= base;
        } while (value && n < int(sizeof digits));
        char text[33];
        for (int i = 0; i < n; ++i)
            text[i] = digits[n - 1 - i];
        text[n] = '\0';
        add(text);
    }
};

void writeAll(int fd, const char* data, size_t size)
{
    while (size > 0) {
        const ssize_t written = write(fd, data, size);
        if (written <= 0)
            return;
        data += written;
        size -= size_t(written);
    }
}

void writeText(int fd, const char* text)
{
    writeAll(fd, text, strlen(text));
}

void copyFile(int fd, const char* path)
{
    const int in = open(path, O_RDONLY);
    if (in < 0)
        return;
    char chunk[4096];
    ssize_t got;
    while ((got = read(in, chunk, sizeof chunk)) > 0)
        writeAll(fd, chunk, size_t(got));
    close(in);
}

const char* signalName(int number)
{
    for (const HandledSignal& s : kSignals) {
        if (s.number == number)
            return s.name;
    }
    return "signal";
}

void writeReport(int number, const siginfo_t* info)
{
    const int fd = open(s_dumpPath, O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd < 0)
        return;
    Buffer head;
    head.add("Signal: ");
    head.add(signalName(number));
    head.add(" (");
    head.addNumber(unsigned(number), 10);
    head.add(")\nFault address: 0x");
    head.addNumber(reinterpret_cast<unsigned long long>(info ? info->si_addr : nullptr), 16);
    head.add("\nProcess id: ");
    head.addNumber(unsigned(getpid()), 10);
    head.add("\nThread id: ");
    head.addNumber(static_cast<unsigned long long>(syscall(SYS_gettid)), 10);
    head.add("\n\nBacktrace:\n");
    writeText(fd, head.data);
    void* frames[128];
    backtrace_symbols_fd(frames, backtrace(frames, 128), fd);
    writeText(fd, "\nMemory map:\n");
    copyFile(fd, "/proc/self/maps");
    close(fd);
}

void showCrashBox(int number, const siginfo_t* info)
{
    Buffer text;
    text.add(kCrashTextHead);
    text.addNumber(unsigned(number), 16);
    text.add(kCrashTextMiddle);
    text.addNumber(reinterpret_cast<unsigned long long>(info ? info->si_addr : nullptr), 16);
    text.add(kCrashTextTail);

    const pid_t child = fork();
    if (child == 0) {
        char* const argv[] = {s_helperPath, const_cast<char*>(kCrashTitle), text.data, nullptr};
        execv(s_helperPath, argv);
        _exit(127);
    }
    if (child > 0) {
        int status = 0;
        while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
        }
    }
}

void onCrash(int number, siginfo_t* info, void*)
{
    writeReport(number, info);
    showCrashBox(number, info);
    // End the process as the signal would have ended it without us.
    struct sigaction byDefault;
    memset(&byDefault, 0, sizeof byDefault);
    byDefault.sa_handler = SIG_DFL;
    sigemptyset(&byDefault.sa_mask);
    sigaction(number, &byDefault, nullptr);
    raise(number);
}

void copyPath(char* target, const QByteArray& path)
{
    const size_t size = std::min(size_t(path.size()), size_t(kPathMax - 1));
    memcpy(target, path.constData(), size);
    target[size] = '\0';
}

// The crash-dialog helper is installed beside the library.
QByteArray helperPath()
{
    Dl_info info;
    if (dladdr(reinterpret_cast<void*>(&installCrashHandler), &info) == 0 || !info.dli_fname)
        return QByteArray();
    return QFile::encodeName(QFileInfo(QFile::decodeName(info.dli_fname)).absolutePath()
                             + QStringLiteral("/vorlin-crashdialog"));
}

} // namespace

void installCrashHandler(const std::function<QString()>& dumpFilePath)
{
    const QString path = dumpFilePath();
    QDir().mkpath(QFileInfo(path).absolutePath());
    copyPath(s_dumpPath, QFile::encodeName(path));
    copyPath(s_helperPath, helperPath());

    // backtrace() loads its unwinder on first use; do that now, outside any handler.
    void* warmUp[1];
    backtrace(warmUp, 1);

    stack_t altStack;
    altStack.ss_sp = s_altStack;
    altStack.ss_size = kAltStackSize;
    altStack.ss_flags = 0;
    sigaltstack(&altStack, nullptr);

    struct sigaction action;
    memset(&action, 0, sizeof action);
    action.sa_sigaction = onCrash;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    sigemptyset(&action.sa_mask);
    for (const HandledSignal& s : kSignals)
        sigaction(s.number, &action, nullptr);
}

} // namespace platform
} // namespace vorlin

#endif
