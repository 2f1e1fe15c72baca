#!/usr/bin/env python3
"""Draws the input widgets' icons: the combo-box arrow, the grey delete cross and the
file-open folder. Shapes are rasterised with 4 x 4 supersampling and written with zlib and
struct only, so the script needs nothing beyond Python itself.

usage: scripts/make-input-icons.py [RESOURCE_DIR]
"""
import os
import struct
import sys

from artwork import raster, write_png

def write_ico(path, pixels):
    """One 32-bit BMP image: bottom-up BGRA rows followed by the AND mask, which marks the
    transparent pixels for readers that ignore the alpha bytes."""
    height, width = len(pixels), len(pixels[0])
    xor = b"".join(bytes((b, g, r, a)) for row in reversed(pixels) for (r, g, b, a) in row)
    mask_stride = ((width + 31) // 32) * 4
    mask = bytearray()
    for row in reversed(pixels):
        bits = bytearray(mask_stride)
        for x, (_, _, _, a) in enumerate(row):
            if a < 128:
                bits[x // 8] |= 0x80 >> (x % 8)
        mask += bits
    header = struct.pack("<IiiHHIIiiII", 40, width, height * 2, 1, 32, 0, len(xor) + len(mask), 0, 0, 0, 0)
    image = header + xor + mask
    with open(path, "wb") as f:
        f.write(struct.pack("<HHH", 0, 1, 1))
        f.write(struct.pack("<BBBBHHII", width % 256, height % 256, 0, 0, 1, 32, len(image), 6 + 16))
        f.write(image)


def segment_distance(x, y, x0, y0, x1, y1):
    dx, dy = x1 - x0, y1 - y0
    t = max(0.0, min(1.0, ((x - x0) * dx + (y - y0) * dy) / (dx * dx + dy * dy)))
    return ((x - x0 - t * dx) ** 2 + (y - y0 - t * dy) ** 2) ** 0.5


def combo_arrow():
    # A downward chevron, mid grey, readable on dark and light boxes alike.
    def inside(x, y):
        return min(segment_distance(x, y, 1.5, 2.0, 6.0, 6.0), segment_distance(x, y, 6.0, 6.0, 10.5, 2.0)) <= 1.0
    return raster(12, 8, [(inside, (160, 160, 160, 255))])


def delete_cross():
    def inside(x, y):
        return min(segment_distance(x, y, 6, 6, 18, 18), segment_distance(x, y, 18, 6, 6, 18)) <= 1.6
    return raster(24, 24, [(inside, (153, 153, 153, 255))])


def open_folder():
    # A folder whose front flap leans open, as file-open buttons usually show.
    def back(x, y):
        return (3 <= x <= 29 and 9 <= y <= 27) or (4 <= x <= 13 and 6 <= y <= 10)

    def flap(x, y):
        lean = (27 - y) * 4 / 14
        return 13 <= y <= 27 and 3 + lean <= x <= 26 + lean

    return raster(32, 32, [
        (back, (196, 142, 30, 255)),
        (flap, (250, 204, 84, 255)),
    ])


def main():
    root = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), "..", "resources")
    write_png(os.path.join(root, "new_png", "icon_combox_arrow.png"), combo_arrow())
    write_png(os.path.join(root, "state_icon", "icon_delete_gray.png"), delete_cross())
    write_ico(os.path.join(root, "state_icon", "open_file.ico"), open_folder())


if __name__ == "__main__":
    main()
