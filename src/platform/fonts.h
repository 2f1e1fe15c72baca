#pragma once

namespace vorlin {
namespace platform {

// The widgets name "Microsoft YaHei" (and its UI cut); where that family is not installed,
// map it onto an installed CJK sans family. Needs a QGuiApplication; safe to call again.
void registerFontSubstitutions();

} // namespace platform
} // namespace vorlin
