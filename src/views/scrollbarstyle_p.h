#pragma once

class QScrollArea;

namespace vorlin {

// Gives the vertical scroll bar of the area the library's slim scroll-bar style sheet. The
// horizontal bar gets the text of a second read of the same file, which is empty: the views
// keep their horizontal bar unstyled (and switched off).
void applyScrollBarStyle(QScrollArea* area);

} // namespace vorlin
