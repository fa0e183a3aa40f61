#!/usr/bin/env python3
"""Writes the two SVG icons: a kelp frond whose blades are the peaks of a level curve.

usage: tools/draw_icon.py ICON_DIRECTORY
Shape and colours stand here and nowhere else; tools/render-icons makes the PNG files from the result.
"""
import math
import pathlib
import sys

SIZE = 256
CENTRE = SIZE / 2
# Length of each blade from the stem, bottom to top: the curve of a level that swells and dies away.
LEVELS = [0.34, 0.52, 0.78, 0.62, 0.92, 0.70, 0.86, 0.54, 0.40]
STEM_BOTTOM, STEM_TOP = 212, 40
LONGEST = 78


def stem_x(y):
    """The stem sways once between its ends."""
    t = (STEM_BOTTOM - y) / (STEM_BOTTOM - STEM_TOP)
    return CENTRE + 12 * math.sin(t * 2 * math.pi)


def stem_path():
    ys = [STEM_BOTTOM + (STEM_TOP - STEM_BOTTOM) * i / 24 for i in range(25)]
    points = " ".join(f"L{stem_x(y):.1f} {y:.1f}" for y in ys[1:])
    return f"M{stem_x(ys[0]):.1f} {ys[0]:.1f} {points}"


def blade(index, side):
    """A slender leaf that rises from the stem, widest in its first third."""
    y = STEM_BOTTOM - 18 - index * (STEM_BOTTOM - STEM_TOP - 26) / (len(LEVELS) - 1)
    x = stem_x(y)
    length = LONGEST * LEVELS[index]
    tip_x, tip_y = x + side * length, y - length * 0.42
    return (f"M{x:.1f} {y:.1f} "
            f"C{x + side * length * .30:.1f} {y + 4:.1f} {tip_x - side * length * .30:.1f} {tip_y + 9:.1f} {tip_x:.1f} {tip_y:.1f} "
            f"C{tip_x - side * length * .45:.1f} {tip_y - 3:.1f} {x + side * length * .22:.1f} {y - 9:.1f} {x:.1f} {y:.1f}Z")


def frond(colour, stroke):
    blades = "\n    ".join(f'<path d="{blade(i, side)}"/>'
                           for i in range(len(LEVELS)) for side in ((1, -1)[i % 2],))
    return (f'  <g fill="{colour}">\n    {blades}\n  </g>\n'
            f'  <path d="{stem_path()}" fill="none" stroke="{colour}" stroke-width="{stroke}" '
            f'stroke-linecap="round" stroke-linejoin="round"/>\n')


def svg(body):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{SIZE}" height="{SIZE}" '
            f'viewBox="0 0 {SIZE} {SIZE}">\n{body}</svg>\n')


def ticks():
    lines = []
    for i in range(60):
        angle = math.radians(i * 6)
        inner = 106 if i % 5 else 103
        lines.append(f'<path d="M{CENTRE + inner * math.sin(angle):.1f} {CENTRE - inner * math.cos(angle):.1f} '
                     f'L{CENTRE + 111 * math.sin(angle):.1f} {CENTRE - 111 * math.cos(angle):.1f}"/>')
    return ('  <g stroke="#C9A96E" stroke-opacity="0.45" stroke-width="2" stroke-linecap="round">\n    '
            + "\n    ".join(lines) + "\n  </g>\n")


def main():
    directory = pathlib.Path(sys.argv[1])
    disc = (f'  <circle cx="{CENTRE}" cy="{CENTRE}" r="122" fill="#121216"/>\n'
            f'  <circle cx="{CENTRE}" cy="{CENTRE}" r="120.5" fill="none" stroke="#C9A96E" stroke-width="3"/>\n')
    (directory / "kelp.svg").write_text(svg(disc + ticks() + frond("#C9A96E", 6)))
    # The tray has few pixels and any background: the frond alone, larger and with a stronger stem.
    scaled = (f'  <g transform="translate({CENTRE} {CENTRE}) scale(1.38) translate({-CENTRE} {-CENTRE + 3})">\n'
              f'{frond("#EDEAE3", 9)}  </g>\n')
    (directory / "kelp_tray.svg").write_text(svg(scaled))


main()
