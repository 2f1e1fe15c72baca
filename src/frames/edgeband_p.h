#pragma once

#include <QtCore/QPoint>
#include <QtCore/QSize>

namespace vorlin {

// The Windows hit-test codes the frameless windows answer for their resize bands.
enum EdgeHit {
    EdgeNone = 0,
    EdgeLeft = 10,
    EdgeRight = 11,
    EdgeTop = 12,
    EdgeTopLeft = 13,
    EdgeTopRight = 14,
    EdgeBottom = 15,
    EdgeBottomLeft = 16,
    EdgeBottomRight = 17
};

// How one family of frameless windows lays out its resize bands.
struct EdgeBands
{
    int width = 8;      // band width m: the bands cover 1 <= x < m and W - m < x < W
    int rightInset = 0; // the plain right band starts this much further right
};

// The band test shared by every frameless window: pos in window coordinates, size the
// window's size. Column 0 and row 0 never resize.
int edgeBandHitTest(const QPoint& pos, const QSize& size, const EdgeBands& bands);

} // namespace vorlin
