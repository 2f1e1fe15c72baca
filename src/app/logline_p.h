#pragma once

#include <QtCore/QString>
#include <QtCore/QtGlobal>

namespace vorlin {

// One log line, "%1 [%2] at %3:%4 - %5": local time with milliseconds, level, the last two
// parts of the source path joined by a backslash, line and text.
QString formatLogLine(QtMsgType type, const QMessageLogContext& context, const QString& text);

} // namespace vorlin
