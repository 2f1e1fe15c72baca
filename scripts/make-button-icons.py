#!/usr/bin/env python3
"""Draws the buttons' artwork: the check-button icon (colour and grey), the on/off
switch pictures and the navigation-bar icons (home, record, system, setting, operation;
each normal and hover). Shapes are rasterised with 4 x 4 supersampling and written with
zlib and struct only, so the script needs nothing beyond Python itself.

usage: scripts/make-button-icons.py [RESOURCE_DIR]
"""
import math
import os
import sys

from artwork import raster, write_png

# --- shapes: each returns inside(x, y) ---

def circle(cx, cy, r):
    return lambda x, y: (x - cx) ** 2 + (y - cy) ** 2 <= r * r


def ring(cx, cy, r_out, r_in):
    return lambda x, y: r_in * r_in <= (x - cx) ** 2 + (y - cy) ** 2 <= r_out * r_out


def rect(x0, y0, x1, y1):
    return lambda x, y: x0 <= x <= x1 and y0 <= y <= y1


def rounded_rect(x0, y0, x1, y1, radius):
    def inside(x, y):
        if not (x0 <= x <= x1 and y0 <= y <= y1):
            return False
        cx = min(max(x, x0 + radius), x1 - radius)
        cy = min(max(y, y0 + radius), y1 - radius)
        return (x - cx) ** 2 + (y - cy) ** 2 <= radius * radius
    return inside


def segment(ax, ay, bx, by, width):
    def inside(x, y):
        dx, dy = bx - ax, by - ay
        t = max(0.0, min(1.0, ((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy)))
        px, py = ax + t * dx, ay + t * dy
        return (x - px) ** 2 + (y - py) ** 2 <= (width / 2) ** 2
    return inside


def polyline(points, width):
    parts = [segment(*points[i], *points[i + 1], width) for i in range(len(points) - 1)]
    return lambda x, y: any(p(x, y) for p in parts)


def polygon(points):
    def inside(x, y):
        result = False
        j = len(points) - 1
        for i, (xi, yi) in enumerate(points):
            xj, yj = points[j]
            if (yi > y) != (yj > y) and x < (xj - xi) * (y - yi) / (yj - yi) + xi:
                result = not result
            j = i
        return result
    return inside


def union(*shapes):
    return lambda x, y: any(s(x, y) for s in shapes)


def minus(shape, hole):
    return lambda x, y: shape(x, y) and not hole(x, y)


# --- artwork ---

def check_icon(colour):
    disc = circle(8, 8, 7.5)
    tick = polyline([(4.2, 8.3), (7, 11), (11.8, 5.2)], 2.0)
    return raster(16, 16, [(disc, colour), (tick, (255, 255, 255, 255))])


def switch(on):
    track = (0, 187, 101, 255) if on else (190, 194, 200, 255)
    knob_x = 27 if on else 13
    return raster(40, 26, [(rounded_rect(1, 3, 39, 23, 10), track),
                           (circle(knob_x, 13, 8), (255, 255, 255, 255))])


def gear():
    teeth = []
    for k in range(8):
        a = k * math.pi / 4
        teeth.append(segment(16 + 8 * math.cos(a), 16 + 8 * math.sin(a),
                             16 + 12.5 * math.cos(a), 16 + 12.5 * math.sin(a), 4.5))
    return minus(union(circle(16, 16, 9.5), *teeth), circle(16, 16, 4))


NAVI_SHAPES = {
    "home": union(polygon([(4, 15), (16, 4), (28, 15), (25, 15), (16, 7.5), (7, 15)]),
                  minus(rect(8, 14, 24, 28), rect(13.5, 19, 18.5, 28.5))),
    "record": union(minus(rounded_rect(6, 3, 26, 29, 2.5), rounded_rect(8.5, 5.5, 23.5, 26.5, 1)),
                    rect(11, 10, 21, 12), rect(11, 15, 21, 17), rect(11, 20, 18, 22)),
    "system": union(minus(rounded_rect(3, 5, 29, 23, 2), rect(5.5, 7.5, 26.5, 20.5)),
                    rect(14, 23, 18, 26), rect(9, 26, 23, 28)),
    "setting": gear(),
    "operation": union(ring(16, 16, 13, 10.5), circle(16, 16, 3.5),
                       polygon([(16, 5), (20, 12), (12, 12)]), polygon([(16, 27), (20, 20), (12, 20)]),
                       polygon([(5, 16), (12, 12), (12, 20)]), polygon([(27, 16), (20, 12), (20, 20)])),
}

NAVI_NORMAL = (168, 178, 190, 255)
NAVI_HOVER = (64, 158, 255, 255)


def main():
    root = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), "..", "resources")
    state_dir = os.path.join(root, "state_icon")
    navi_dir = os.path.join(root, "navi_bar")
    os.makedirs(state_dir, exist_ok=True)
    os.makedirs(navi_dir, exist_ok=True)

    write_png(os.path.join(state_dir, "icon_startchek.png"), check_icon((0, 170, 90, 255)))
    write_png(os.path.join(state_dir, "icon_startchek_gray.png"), check_icon((170, 170, 170, 255)))
    write_png(os.path.join(state_dir, "switch_on.png"), switch(True))
    write_png(os.path.join(state_dir, "switch_off.png"), switch(False))
    for name, shape in NAVI_SHAPES.items():
        write_png(os.path.join(navi_dir, "icon_%s.png" % name), raster(32, 32, [(shape, NAVI_NORMAL)]))
        write_png(os.path.join(navi_dir, "icon_%s_hover.png" % name), raster(32, 32, [(shape, NAVI_HOVER)]))


if __name__ == "__main__":
    main()
