#!/usr/bin/env python3
"""Draws the display widgets' bitmap artwork and writes it under resources/.

    python3 scripts/make-display-art.py

Pure Python (zlib and struct only) so it runs on any build machine. Shapes are
rasterised with 4 x 4 supersampling for smooth edges.
"""
import math
import os

from artwork import SAMPLES, write_png

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "resources")


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


# --- Attitude meter faces -------------------------------------------------------------
# Every face has the viewBox 0 0 200 200, which the meter stretches over the whole widget
# before applying the layer's own placement. Faces that the meter squeezes (roll scale,
# pointers, aircraft) are drawn in widget units (0..200 across the widget) inside a group
# that undoes that placement, so they come out undistorted.

# A small stroke font (4 x 6 grid) so that numbers are paths: text in SVG costs far
# more to render than a few strokes, and the faces are drawn on every paint.
GLYPHS = {
    "0": [[(0, 0), (4, 0), (4, 6), (0, 6), (0, 0)]],
    "1": [[(1, 1), (2, 0), (2, 6)], [(1, 6), (3, 6)]],
    "2": [[(0, 0), (4, 0), (4, 3), (0, 3), (0, 6), (4, 6)]],
    "3": [[(0, 0), (4, 0), (4, 6), (0, 6)], [(0, 3), (4, 3)]],
    "4": [[(0, 0), (0, 3), (4, 3)], [(4, 0), (4, 6)]],
    "5": [[(4, 0), (0, 0), (0, 3), (4, 3), (4, 6), (0, 6)]],
    "6": [[(4, 0), (0, 0), (0, 6), (4, 6), (4, 3), (0, 3)]],
    "7": [[(0, 0), (4, 0), (4, 6)]],
    "8": [[(0, 0), (4, 0), (4, 6), (0, 6), (0, 0)], [(0, 3), (4, 3)]],
    "9": [[(4, 3), (0, 3), (0, 0), (4, 0), (4, 6), (0, 6)]],
    "N": [[(0, 6), (0, 0), (4, 6), (4, 0)]],
    "E": [[(4, 0), (0, 0), (0, 6), (4, 6)], [(0, 3), (3, 3)]],
    "S": [[(4, 0), (0, 0), (0, 3), (4, 3), (4, 6), (0, 6)]],
    "W": [[(0, 0), (1, 6), (2, 2), (3, 6), (4, 0)]],
}


def fmt(v):
    return ("%.2f" % v).rstrip("0").rstrip(".")


def text_path(text, cx, cy, height, angle=0.0):
    """Path data of text centred on (cx, cy), rotated by angle degrees clockwise."""
    k = height / 6.0
    advance = 6 * k
    width = advance * len(text) - 2 * k
    a = math.radians(angle)
    ca, sa = math.cos(a), math.sin(a)
    parts = []
    for i, ch in enumerate(text):
        for stroke in GLYPHS[ch]:
            cmd = "M"
            for gx, gy in stroke:
                x = -width / 2 + i * advance + gx * k
                y = -height / 2 + gy * k
                parts.append("%s%s %s" % (cmd, fmt(cx + x * ca - y * sa), fmt(cy + x * sa + y * ca)))
                cmd = "L"
    return "".join(parts)


def polar(cx, cy, r, angle):
    """The point at angle degrees clockwise from twelve o'clock."""
    a = math.radians(angle)
    return cx + r * math.sin(a), cy - r * math.cos(a)


def radial_ticks(cx, cy, ticks):
    out = []
    for angle, r1, r2 in ticks:
        x1, y1 = polar(cx, cy, r1, angle)
        x2, y2 = polar(cx, cy, r2, angle)
        out.append("M%s %sL%s %s" % (fmt(x1), fmt(y1), fmt(x2), fmt(y2)))
    return "".join(out)


def svg(body):
    return ('<svg xmlns="http://www.w3.org/2000/svg" width="200" height="200" viewBox="0 0 200 200">\n'
            + body + "</svg>\n")


def undo_placement(sx, sy, px, py):
    """The group transform that cancels a placement scaling by (sx, sy) about (px, py)."""
    exact = lambda v: ("%.5f" % v).rstrip("0").rstrip(".")
    return 'transform="matrix(%s 0 0 %s %s %s)"' % (
        exact(1 / sx), exact(1 / sy), exact(px - px / sx), exact(py - py / sy))


# The meter moves the ladder by h * 1.001 * pitch / 270 before scaling it 1.2 times.
LADDER_UNITS_PER_DEGREE = 200 * 1.001 / 270


def pitch_ladder(limit):
    """Sky, ground and a ladder with a bar every 10 and a short bar every 5 degrees up
    to +/- limit. Sky and ground cover just the meter's round window (radius 70 here)
    at full pitch (+/- 60, the window's centre moving 44.5 up or down) and any roll:
    their area is most of the meter's paint cost."""
    bars, labels = [], []
    for degree in range(-limit, limit + 1, 5):
        if degree == 0:
            continue
        y = 100 - degree * LADDER_UNITS_PER_DEGREE
        half = 14 if degree % 10 == 0 else 6
        if degree < 0 and degree % 10 == 0:  # dashed below the horizon
            bars.append("M%s %sH%sM%s %sH%s" % (fmt(100 - half), fmt(y), fmt(100 - 4),
                                                 fmt(100 + 4), fmt(y), fmt(100 + half)))
        else:
            bars.append("M%s %sH%s" % (fmt(100 - half), fmt(y), fmt(100 + half)))
        if degree % 10 == 0:
            number = str(abs(degree))
            labels.append(text_path(number, 100 - half - 6, y, 3.6))
            labels.append(text_path(number, 100 + half + 6, y, 3.6))
    return svg(
        '<rect x="28" y="-16" width="144" height="116" fill="#3C8CD8"/>\n'
        '<rect x="28" y="100" width="144" height="116" fill="#8A5A2E"/>\n'
        '<rect x="28" y="99.5" width="144" height="1" fill="#fff"/>\n'
        '<path d="%s" stroke="#fff" stroke-width="0.7" fill="none"/>\n'
        '<path d="%s" stroke="#fff" stroke-width="0.55" fill="none" stroke-linejoin="bevel"/>\n'
        % ("".join(bars), "".join(labels)))


def heading_dial():
    """A compass rose ring: a tick every 5 degrees, a longer one every 10, and every 30
    degrees the cardinal letter or the heading in tens of degrees."""
    ticks = [(a, 100, 91 if a % 10 == 0 else 95) for a in range(0, 360, 5)]
    names = {0: "N", 90: "E", 180: "S", 270: "W"}
    labels, north = [], ""
    for a in range(0, 360, 30):
        x, y = polar(100, 100, 85, a)
        path = text_path(names.get(a, str(a // 10)), x, y, 7, a)
        if a == 0:
            north = path
        else:
            labels.append(path)
    return svg(
        # An annulus filled rather than a wide stroke: far cheaper to rasterise.
        '<path d="M0 100A100 100 0 1 0 200 100A100 100 0 1 0 0 100ZM20 100A80 80 0 1 0 180 100A80 80 0 1 0 20 100Z" '
        'fill="#1B2530" fill-opacity="0.85" fill-rule="evenodd"/>\n'
        '<path d="%s" stroke="#fff" stroke-width="1"/>\n'
        '<path d="%s" stroke="#fff" stroke-width="1.1" fill="none" stroke-linejoin="bevel"/>\n'
        '<path d="%s" stroke="#FF6A3C" stroke-width="1.3" fill="none" stroke-linejoin="bevel"/>\n'
        % (radial_ticks(100, 100, ticks), "".join(labels), north))


ROLL_RADIUS = 54  # widget units; the roll pointer's tip touches the arc


def roll_scale():
    """An arc over the top with marks at 10, 20, 30, 45 and 60 degrees each side (long
    ones at 30 and 60, unnumbered as on a real instrument, which also keeps the face
    cheap) and a triangle at zero, drawn about the widget centre where the meter
    rotates it."""
    r = ROLL_RADIUS
    ticks = []
    for m in (10, 20, 30, 45, 60):
        length = 8 if m in (30, 60) else 5
        ticks += [(-m, r, r + length), (m, r, r + length)]
    x1, y1 = polar(100, 100, r, -60)
    x2, y2 = polar(100, 100, r, 60)
    arc = "M%s %sA%d %d 0 0 1 %s %s" % (fmt(x1), fmt(y1), r, r, fmt(x2), fmt(y2))
    zero = "M100 %sL%s %sH%sZ" % (fmt(100 - r), fmt(100 - 4), fmt(100 - r - 7), fmt(100 + 4))
    return svg(
        '<g %s>\n'
        '<path d="%s%s" stroke="#fff" stroke-width="1.2" fill="none"/>\n'
        '<path d="%s" fill="#fff"/>\n'
        '</g>\n' % (undo_placement(0.6572, 0.29, 100, 46), arc, radial_ticks(100, 100, ticks), zero))


def top_pointer():
    """A heading index pointing down onto the rose's outer edge."""
    return svg('<g %s><path d="M95 0.5H105L100 10.2Z" fill="#FFC21A" stroke="#000" stroke-width="0.5"/></g>\n'
               % undo_placement(0.055, 0.055, 100, 0))


def roll_pointer():
    """The bank index: a triangle pointing up at the roll arc from inside."""
    tip = 100 - ROLL_RADIUS
    return svg('<g %s><path d="M100 %sL104 %sH96Z" fill="#FFC21A" stroke="#000" stroke-width="0.4"/></g>\n'
               % (undo_placement(0.05, 0.05, 100, 46), fmt(tip), fmt(tip + 7)))


def aircraft_symbol():
    """Fixed wings with down-turned tips either side of a centre dot."""
    y = 101
    wing = "M%s %sH%sV%sH%sV%sH%sZ"
    left = wing % (62, y - 1, 90, y + 2.5, 88, y + 1, 62)
    right = wing % (138, y - 1, 110, y + 2.5, 112, y + 1, 138)
    return svg('<g %s><path d="%s%s" fill="#FFC21A" stroke="#000" stroke-width="0.4"/>'
               '<circle cx="100" cy="%s" r="1.6" fill="#FFC21A" stroke="#000" stroke-width="0.4"/></g>\n'
               % (undo_placement(0.4, 0.03, 100, 101), left, right, y))


def meter_faces():
    faces = {"svg_heading.svg": heading_dial(), "svg_roll.svg": roll_scale(),
             "svg_arrow2.svg": top_pointer(), "svg_arrow.svg": roll_pointer(),
             "svg_plane.svg": aircraft_symbol()}
    for limit in (30, 40, 50, 60):
        faces["svg_pitch_%d.svg" % limit] = pitch_ladder(limit)
    return faces


# --- Level icons of the telemetry labels --------------------------------------------
# These belong to the application, not the library: the gallery ships them in its own
# resources under ":/title_info/".

LEVEL_ON = (18, 196, 122, 255)
LEVEL_OFF = (255, 255, 255, 70)
LEVEL_LOW = (230, 70, 50, 255)


def battery_level_icon(level, width=20, height=12):
    """A battery outline with `level` of five cells lit (red when only one is)."""
    on = LEVEL_LOW if level == 1 else LEVEL_ON
    rows = []
    for y in range(height):
        row = []
        for x in range(width):
            if x >= width - 2:
                px = (235, 235, 235, 255) if height // 3 <= y < height - height // 3 else (0, 0, 0, 0)
            elif x in (0, width - 3) or y in (0, height - 1):
                px = (235, 235, 235, 255)
            elif 2 <= x < width - 4 and 2 <= y < height - 2:
                cell = (x - 2) // 3
                px = (0, 0, 0, 0) if (x - 2) % 3 == 2 else (on if cell < level else LEVEL_OFF)
            else:
                px = (0, 0, 0, 0)
            row.append(px)
        rows.append(row)
    return width, height, rows


def link_level_icon(level, size=16):
    """Five rising bars, `level` of them lit."""
    rows = []
    for y in range(size):
        row = []
        for x in range(size):
            bar, inside = divmod(x, 3)
            px = (0, 0, 0, 0)
            if bar < 5 and inside < 2 and y >= size - 3 * (bar + 1) - 1:
                px = LEVEL_ON if bar < level else LEVEL_OFF
            row.append(px)
        rows.append(row)
    return size, size, rows


def level_icons():
    gallery = os.path.join(ROOT, "..", "examples", "gallery", "resources", "title_info")
    for level in range(6):
        yield os.path.join(gallery, "icon_battery_%d%%.png" % (level * 20)), battery_level_icon(level)
        yield os.path.join(gallery, "icon_communication_%d%%.png" % (level * 20)), link_level_icon(level)


if __name__ == "__main__":
    bitmaps = [(os.path.join(ROOT, "state_icon/icon_loading.png"), loading_glyph()),
               (os.path.join(ROOT, "new_png/icon_monitor_detail_battery.png"), battery_outline())]
    for path, art in bitmaps + list(level_icons()):
        os.makedirs(os.path.dirname(path), exist_ok=True)
        write_png(path, art[2])
        print("wrote", os.path.normpath(path))
    os.makedirs(os.path.join(ROOT, "meter"), exist_ok=True)
    for name, text in meter_faces().items():
        path = os.path.join(ROOT, "meter", name)
        with open(path, "w") as out:
            out.write(text)
        print("wrote", os.path.normpath(path))
