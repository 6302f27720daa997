"""Draws cost against size, both on logarithmic scales, as SVG."""

import math
import statistics

WIDTH, HEIGHT, LEFT, RIGHT, TOP, BOTTOM = 640, 360, 60, 170, 20, 45
COLOURS = "#0b69c7", "#0891b2", "#64748b", "#c2410c"


class Scale:
    def __init__(self, values, start, end):
        self.least = math.floor(math.log10(min(values)))
        self.most = math.ceil(math.log10(max(values)))
        self.start, self.end = start, end

    def place(self, value):
        return self.start + (self.end - self.start) * (math.log10(value) - self.least) / (self.most - self.least)

    def decades(self):
        return [10.0 ** power for power in range(self.least, self.most + 1)]


def draw(curves):
    """Of curves by name, each of which has measured values by size."""
    medians = {name: {size: statistics.median(values) for size, values in curve.items()}
               for name, curve in curves.items()}
    across = Scale([size for curve in medians.values() for size in curve], LEFT, WIDTH - RIGHT)
    up = Scale([value for curve in medians.values() for value in curve.values()], HEIGHT - BOTTOM, TOP)
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" '
             'font-family="sans-serif" font-size="12">', '<rect width="100%" height="100%" fill="white"/>']
    for size in across.decades():
        x = across.place(size)
        parts += [line(x, TOP, x, HEIGHT - BOTTOM), text(x, HEIGHT - BOTTOM + 16, f"{size:g}", "middle")]
    for value in up.decades():
        y = up.place(value)
        parts += [line(LEFT, y, WIDTH - RIGHT, y), text(LEFT - 6, y + 4, f"{value:g}", "end")]
    parts += [text((LEFT + WIDTH - RIGHT) / 2, HEIGHT - 8, "cameras", "middle"), text(6, TOP - 6, "milliseconds")]
    for colour, (name, curve) in zip(COLOURS, medians.items()):
        points = [(across.place(size), up.place(value)) for size, value in sorted(curve.items())]
        path = " ".join(f"{x:.1f},{y:.1f}" for x, y in points)
        parts.append(f'<polyline points="{path}" fill="none" stroke="{colour}" stroke-width="2"/>')
        parts += [f'<circle cx="{x:.1f}" cy="{y:.1f}" r="3" fill="{colour}"/>' for x, y in points]
        parts.append(text(WIDTH - RIGHT + 10 if max(curve) == 1000 else points[-1][0] + 8, points[-1][1] + 4, name,
                          colour=colour))
    return "\n".join([*parts, "</svg>", ""])


def line(x1, y1, x2, y2):
    return f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" stroke="#e2e8f0"/>'


def text(x, y, words, anchor="start", colour="#334155"):
    return f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" fill="{colour}">{words}</text>'
