#include "edgeband_p.h"

namespace vorlin {

int edgeBandHitTest(const QPoint& pos, const QSize& size, const EdgeBands& bands)
{
    const int x = pos.x();
    const int y = pos.y();
    const int m = bands.width;
    const int w = size.width();
    const int h = size.height();
    const bool left = 1 <= x && x < m;
    const bool right = w - m < x && x < w;
    const bool top = 1 <= y && y < m;
    const bool bottom = h - m < y && y < h;

    // Later matches overwrite earlier ones, so the corners win over the plain edges.
    int hit = EdgeNone;
    if (left)
        hit = EdgeLeft;
    // The plain right band may be narrower than the right-hand corners (the main window's
    // is two pixels narrower); intended, the corners keep the full width.
    if (w - m + bands.rightInset < x && x < w)
        hit = EdgeRight;
    if (top)
        hit = EdgeTop;
    if (bottom)
        hit = EdgeBottom;
    if (left && top)
        hit = EdgeTopLeft;
    if (right && top)
        hit = EdgeTopRight;
    if (left && bottom)
        hit = EdgeBottomLeft;
    if (right && bottom)
        hit = EdgeBottomRight;
    return hit;
}

} // namespace vorlin
