#!/usr/bin/env python3
"""Draws the display widgets' bitmap artwork and writes it under resources/.

    python3 scripts/make-display-art.py

Pure Python (zlib and struct only) so it runs on any build machine. Shapes are
rasterised with 4 x 4 supersampling for smooth edges.
"""
import math
import os
import struct
import zlib

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "resources")
SAMPLES = 4


def write_png(path, width, height, pixels):
    """pixels: rows of (r, g, b, a) tuples, straight (not premultiplied) alpha."""
    raw = b"".join(b"\x00" + bytes(c for px in row for c in px) for row in pixels)

    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body) & 0xFFFFFFFF)

    header = struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)
    with open(path, "wb") as out:
        out.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
                  + chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b""))


def render(width, height, shade):
    """shade(x, y) -> (r, g, b, a) or None, sampled SAMPLES^2 times per pixel."""
    rows = []
    for py in range(height):
        row = []
        for px in range(width):
            acc = [0.0, 0.0, 0.0, 0.0]
            for sy in range(SAMPLES):
                for sx in range(SAMPLES):
                    c = shade(px + (sx + 0.5) / SAMPLES, py + (sy + 0.5) / SAMPLES)
                    if c:
                        a = c[3] / 255.0
                        acc[0] += c[0] * a
                        acc[1] += c[1] * a
                        acc[2] += c[2] * a
                        acc[3] += a
            n = SAMPLES * SAMPLES
            alpha = acc[3] / n
            if alpha == 0:
                row.append((0, 0, 0, 0))
            else:
                row.append(tuple(int(round(acc[i] / acc[3])) for i in range(3)) + (int(round(alpha * 255)),))
        rows.append(row)
    return rows


def segment_distance(x, y, ax, ay, bx, by):
    dx, dy = bx - ax, by - ay
    t = max(0.0, min(1.0, ((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy)))
    return math.hypot(x - (ax + t * dx), y - (ay + t * dy))


def loading_glyph(size=32, spokes=12):
    """Twelve rounded spokes fading round the circle, white with a soft dark rim so
    the glyph reads on white as well as on the blue and yellow presets."""
    c = size / 2.0
    inner, outer, half_width, rim = size * 0.20, size * 0.44, size * 0.055, 1.0

    def shade(x, y):
        angle = math.atan2(y - c, x - c)
        index = int(round(angle / (2 * math.pi / spokes))) % spokes
        a = index * 2 * math.pi / spokes
        d = segment_distance(x, y, c + inner * math.cos(a), c + inner * math.sin(a),
                             c + outer * math.cos(a), c + outer * math.sin(a))
        strength = 0.25 + 0.75 * index / (spokes - 1)  # the brightest spoke leads the turn
        if d <= half_width:
            return (255, 255, 255, int(255 * strength))
        if d <= half_width + rim:
            return (40, 40, 40, int(160 * strength))
        return None

    return size, size, render(size, size, shade)


def battery_outline(width=34, height=18):
    """A battery body with a one-pixel wall and a nub on the right. The widget fills
    the level into (2, 2, width - 6, height - 4), one pixel inside the wall."""
    body_right = width - 3
    wall = (235, 235, 235, 255)
    rows = []
    for y in range(height):
        row = []
        for x in range(width):
            on_body = x <= body_right and (x in (0, body_right) or y in (0, height - 1))
            on_nub = x > body_right and height // 3 <= y < height - height // 3
            row.append(wall if on_body or on_nub else (0, 0, 0, 0))
        rows.append(row)
    return width, height, rows


if __name__ == "__main__":
    for relative, art in (("state_icon/icon_loading.png", loading_glyph()),
                          ("new_png/icon_monitor_detail_battery.png", battery_outline())):
        path = os.path.join(ROOT, relative)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        write_png(path, *art)
        print("wrote", os.path.normpath(path))
