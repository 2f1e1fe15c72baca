#pragma once

#include <functional>

class QPoint;
class QWidget;

namespace vorlin {
namespace platform {

// Answers "which resize band is this window-coordinate point on?" with a Windows hit-test
// code (0 for none).
using EdgeHitTest = std::function<int(const QPoint& pos)>;

// Makes a frameless top-level window resizable from the bands hitTest reports. On Windows
// the native hit-test message does this (see answerNativeHitTest) and nothing is installed;
// elsewhere the window's mouse events are watched: hovering a band shows the matching
// resize cursor and a press on it starts a system resize, or, without a window manager
// that offers one, resizes the window by hand until the release.
void installFramelessResize(QWidget* window, EdgeHitTest hitTest);

// For nativeEvent: answers the Windows hit-test message from hitTest. Returns true when
// the message was answered; false for every other message and on other platforms.
bool answerNativeHitTest(QWidget* window, void* message, long* result, const EdgeHitTest& hitTest);

} // namespace platform
} // namespace vorlin
