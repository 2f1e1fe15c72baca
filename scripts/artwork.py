"""Shared by the artwork generators: supersampled rasterising of shapes and a PNG writer that
needs nothing beyond Python itself (zlib and struct)."""
import struct
import zlib

SAMPLES = 4


def raster(width, height, layers):
    """layers: list of (inside(x, y) -> bool, (r, g, b, a)), painted in order with 4 x 4
    supersampling; returns rows of straight-alpha (r, g, b, a) tuples."""
    pixels = []
    for py in range(height):
        row = []
        for px in range(width):
            r = g = b = a = 0.0
            for inside, (cr, cg, cb, ca) in layers:
                hits = sum(inside(px + (sx + 0.5) / SAMPLES, py + (sy + 0.5) / SAMPLES)
                           for sx in range(SAMPLES) for sy in range(SAMPLES))
                cover = hits / (SAMPLES * SAMPLES) * ca / 255.0
                # "over" compositing in straight alpha
                out_a = cover + a * (1 - cover)
                if out_a > 0:
                    r = (cr * cover + r * a * (1 - cover)) / out_a
                    g = (cg * cover + g * a * (1 - cover)) / out_a
                    b = (cb * cover + b * a * (1 - cover)) / out_a
                a = out_a
            row.append((round(r), round(g), round(b), round(a * 255)))
        pixels.append(row)
    return pixels


def write_png(path, pixels):
    """pixels: rows of straight-alpha (r, g, b, a) tuples."""
    height, width = len(pixels), len(pixels[0])
    raw = b"".join(b"\0" + bytes(c for p in row for c in p) for row in pixels)

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    with open(path, "wb") as f:
        f.write(b"\x89PNG\r\n\x1a\n")
        f.write(chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)))
        f.write(chunk(b"IDAT", zlib.compress(raw, 9)))
        f.write(chunk(b"IEND", b""))
