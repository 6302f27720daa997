"""Draws a chart of cost over size as SVG, with logarithmic scales."""

import math
import statistics

WIDTH, HEIGHT, LEFT, RIGHT, TOP, BOTTOM = 640, 360, 60, 170, 40, 45
HEAD = f"""<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}" role="img" aria-labelledby="title">
<title id="title">The time of a list and of a selection against the number of cameras</title>
<style>
.sheet {{ fill: #ffffff; }}
.grid {{ stroke: #e2e8f0; }}
text {{ font: 12px system-ui, "DejaVu Sans", sans-serif; fill: #334155; }}
.curve {{ fill: none; stroke-width: 2; }}
.c0 {{ --colour: #0b69c7; }} .c1 {{ --colour: #0e7490; }} .c2 {{ --colour: #64748b; }} .c3 {{ --colour: #c2410c; }}
.curve {{ stroke: var(--colour); }} circle, .name {{ fill: var(--colour); }}
@media (prefers-color-scheme: dark) {{
.sheet {{ fill: #0f1419; }}
.grid {{ stroke: #2d3a4d; }}
text {{ fill: #e8edf2; }}
.c0 {{ --colour: #4fb0ff; }} .c1 {{ --colour: #22d3ee; }} .c2 {{ --colour: #a3b1c2; }} .c3 {{ --colour: #ff9f5a; }}
}}
</style>
<rect class="sheet" width="100%" height="100%"/>"""


class Scale:
    """A logarithmic scale that covers all values, with a margin of 3 %."""

    def __init__(self, values, start, end):
        minimum, maximum = math.log10(min(values)), math.log10(max(values))
        margin = 0.03 * (maximum - minimum)
        self.minimum, self.maximum = minimum - margin, maximum + margin
        self.start, self.end = start, end

    def place(self, value):
        return self.start + (self.end - self.start) * (math.log10(value) - self.minimum) / (self.maximum - self.minimum)

    def marks(self):
        """Returns the values to mark on the scale: 1, 2 and 5 times each power of ten."""
        values = [digit * 10.0 ** power for power in range(math.floor(self.minimum), math.ceil(self.maximum))
                  for digit in (1, 2, 5)]
        return [value for value in values if self.minimum <= math.log10(value) <= self.maximum]


def draw(curves):
    """Returns the chart as SVG. `curves` maps the name of each curve to its measured values by size."""
    medians = {name: {size: statistics.median(values) for size, values in curve.items()}
               for name, curve in curves.items()}
    across = Scale([size for curve in medians.values() for size in curve], LEFT, WIDTH - RIGHT)
    up = Scale([value for curve in medians.values() for value in curve.values()], HEIGHT - BOTTOM, TOP)
    parts = [HEAD]
    for size in across.marks():
        x = across.place(size)
        parts += [line(x, TOP, x, HEIGHT - BOTTOM), text(x, HEIGHT - BOTTOM + 16, f"{size:g}", "middle")]
    for value in up.marks():
        y = up.place(value)
        parts += [line(LEFT, y, WIDTH - RIGHT, y), text(LEFT - 6, y + 4, f"{value:g}", "end")]
    parts += [text((LEFT + WIDTH - RIGHT) / 2, HEIGHT - 8, "cameras", "middle"), text(6, TOP - 18, "milliseconds")]
    for number, (name, curve) in enumerate(medians.items()):
        points = [(across.place(size), up.place(value)) for size, value in sorted(curve.items())]
        path = " ".join(f"{x:.1f},{y:.1f}" for x, y in points)
        x, y = points[-1]
        parts += [f'<g class="c{number}">', f'<polyline class="curve" points="{path}"/>',
                  *(f'<circle cx="{x:.1f}" cy="{y:.1f}" r="3"/>' for x, y in points),
                  f'<text class="name" x="{x + 8:.1f}" y="{y + 4:.1f}">{name}</text>', "</g>"]
    return "\n".join([*parts, "</svg>", ""])


def line(x1, y1, x2, y2):
    return f'<line class="grid" x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}"/>'


def text(x, y, content, anchor="start"):
    return f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}">{content}</text>'
