#pragma once

#include <QtCore/QString>

#include <functional>

namespace vorlin {
namespace platform {

// The crash box: title, and text around the error code and address (lower-case hex).
constexpr const char kCrashTitle[] = "Application Crash";
constexpr const char kCrashTextHead[] =
    "<FONT size=4><div><b>I'm sorry for the application crashed</b><br/></div><div>error code:";
constexpr const char kCrashTextMiddle[] = "</div><div>error address:";
constexpr const char kCrashTextTail[] = "</div></FONT>";

// Installs the process-wide crash handler. On a crash it writes a dump to the file that
// dumpFilePath names, shows the crash box and lets the process end.
void installCrashHandler(const std::function<QString()>& dumpFilePath);

} // namespace platform
} // namespace vorlin
