#!/usr/bin/env python3
"""Draws the launcher's 72x72 icon (resources/images/ico_72_calderix.png).

A blue rounded square carrying a white circular "sync" arrow. Drawn with
4x4 supersampling and written as an RGBA PNG with only the standard library,
so the icon can be regenerated anywhere: python3 tools/make-icon.py
"""
import math
import os
import struct
import zlib

SIZE = 72
SS = 4  # samples per pixel along each axis


def rounded_square(x, y, lo=3.0, hi=69.0, r=15.0):
    cx = min(max(x, lo + r), hi - r)
    cy = min(max(y, lo + r), hi - r)
    return (x - cx) ** 2 + (y - cy) ** 2 <= r * r and lo <= x <= hi and lo <= y <= hi


def sync_arrow(x, y):
    dx, dy = x - 36.0, y - 37.0
    d = math.hypot(dx, dy)
    ang = math.degrees(math.atan2(-dy, dx)) % 360.0
    # The ring, open between 330 and 30 degrees (to the right).
    if 15.5 <= d <= 22.5 and 40.0 <= ang <= 320.0:
        return True
    # The arrowhead at the ring's lower end (320 degrees), pointing along it.
    tip = math.radians(330.0)
    base = math.radians(312.0)
    p0 = (36 + 19 * math.cos(tip), 37 - 19 * math.sin(tip))
    p1 = (36 + 11 * math.cos(base), 37 - 11 * math.sin(base))
    p2 = (36 + 27 * math.cos(base), 37 - 27 * math.sin(base))
    return inside_triangle((x, y), p0, p1, p2)


def inside_triangle(p, a, b, c):
    def side(p1, p2, p3):
        return (p1[0] - p3[0]) * (p2[1] - p3[1]) - (p2[0] - p3[0]) * (p1[1] - p3[1])

    d1, d2, d3 = side(p, a, b), side(p, b, c), side(p, c, a)
    has_neg = d1 < 0 or d2 < 0 or d3 < 0
    has_pos = d1 > 0 or d2 > 0 or d3 > 0
    return not (has_neg and has_pos)


def pixel(px, py):
    bg = fg = 0
    for sy in range(SS):
        for sx in range(SS):
            x = px + (sx + 0.5) / SS
            y = py + (sy + 0.5) / SS
            if rounded_square(x, y):
                bg += 1
                if sync_arrow(x, y):
                    fg += 1
    n = SS * SS
    if bg == 0:
        return (0, 0, 0, 0)
    t = py / (SIZE - 1)
    top, bottom = (47, 128, 237), (22, 72, 160)
    base = [round(top[i] + (bottom[i] - top[i]) * t) for i in range(3)]
    w = fg / bg
    rgb = [round(base[i] * (1 - w) + 255 * w) for i in range(3)]
    return (rgb[0], rgb[1], rgb[2], round(255 * bg / n))


def png(width, height, rows):
    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body) & 0xFFFFFFFF)

    raw = b"".join(b"\x00" + bytes(v for px in row for v in px) for row in rows)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b""))


def main():
    rows = [[pixel(x, y) for x in range(SIZE)] for y in range(SIZE)]
    out = os.path.join(os.path.dirname(__file__), "..", "resources", "images", "ico_72_calderix.png")
    with open(out, "wb") as f:
        f.write(png(SIZE, SIZE, rows))


if __name__ == "__main__":
    main()
