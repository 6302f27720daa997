"""Boxes and cylinders in one fixed three-quarter view, drawn as SVG.

Lengths are millimetres: x to the right along the front of the camera, y up, z along the optical axis
towards the viewer. Solids are painted in call order, so the farthest one comes first.
"""

from math import atan2, cos, pi, radians, sin

YAW, PITCH = radians(-36), radians(20)
X = (cos(YAW), -sin(YAW) * sin(PITCH))  # The three axes on the page, where y points down.
Y = (0.0, -cos(PITCH))
Z = (sin(YAW), cos(YAW) * sin(PITCH))
PLANES = {'front': (X, Y), 'top': (X, Z), 'side': (Z, Y)}

# Light comes from the upper left: the top is brightest, the right side lies in shade. From and to per face.
MATERIALS = {
    'graphite': {'front': ('#566272', '#39434f'), 'top': ('#8a97a7', '#6c7989'), 'side': ('#333c47', '#222930')},
    'silver': {'front': ('#d3d9df', '#aab4be'), 'top': ('#f2f4f6', '#dde2e7'), 'side': ('#97a2ae', '#77828e')},
    'black': {'front': ('#41464e', '#272a30'), 'top': ('#6a7079', '#50555d'), 'side': ('#25282d', '#16181b')},
    'blue': {'front': ('#2b6cb0', '#1d4f86'), 'top': ('#5d9bd8', '#4283c4'), 'side': ('#1c4a7d', '#133558')},
    'green': {'front': ('#2f8f63', '#1f6b49'), 'top': ('#55b889', '#3f9f72'), 'side': ('#1d5c40', '#143f2c')},
    'pale': {'front': ('#e3e8ed', '#cdd5dd'), 'top': ('#f3f5f8', '#e6ebf0'), 'side': ('#c3ccd5', '#b1bcc7')},
    'metal': {'front': ('#e3e7eb', '#aab3bd'), 'top': ('#f6f8f9', '#dfe4e8'), 'side': ('#9aa5b0', '#7a8591')},
    'gold': {'front': ('#f0cf7a', '#c99a35'), 'top': ('#f8e3a8', '#e5bd62'), 'side': ('#b48a30', '#8b6a22')},
}
ROUND = {'metal': ('#7f8a96', '#f7f9fa', '#b9c2cb', '#59636e'), 'black': ('#17191c', '#6a7078', '#34383e', '#0e0f11'),
         'gold': ('#8b6a22', '#fbe9b7', '#d9ab48', '#6e5218')}


def project(x, y, z):
    return tuple(x * X[i] + y * Y[i] + z * Z[i] for i in (0, 1))


class Drawing:
    """Collects SVG elements and the area that they cover."""

    def __init__(self, line):
        self.line = line  # Width of an edge in millimetres.
        self.defs, self.body = [], []
        self.low, self.high = [1e9, 1e9], [-1e9, -1e9]

    def point(self, x, y, z):
        page = project(x, y, z)
        self.low = [min(a, b) for a, b in zip(self.low, page)]
        self.high = [max(a, b) for a, b in zip(self.high, page)]
        return page

    def gradient(self, stops, start=(0, 0), end=(1, 1), units='objectBoundingBox'):
        name = f'g{len(self.defs)}'
        colours = ''.join(f'<stop offset="{i / (len(stops) - 1):.2f}" stop-color="{c}"/>' for i, c in enumerate(stops))
        self.defs.append(f'<linearGradient id="{name}" gradientUnits="{units}" x1="{start[0]:.2f}" y1="{start[1]:.2f}" '
                         f'x2="{end[0]:.2f}" y2="{end[1]:.2f}">{colours}</linearGradient>')
        return f'url(#{name})'

    def polygon(self, corners, fill, more=''):
        path = ' '.join(f'{px:.2f},{py:.2f}' for px, py in corners)
        self.body.append(f'<polygon points="{path}" fill="{fill}" {more}/>')

    def face(self, plane, corners, material):
        fill = self.gradient(MATERIALS[material][plane])
        self.polygon([self.point(*c) for c in corners], fill,
                     f'stroke="{fill}" stroke-width="{self.line:.2f}" stroke-linejoin="round"')

    def box(self, centre, size, material):
        """The three faces one sees; centre is the middle of the box."""
        x0, y0, z0 = (c - s / 2 for c, s in zip(centre, size))
        x1, y1, z1 = (c + s / 2 for c, s in zip(centre, size))
        self.face('side', [(x1, y0, z0), (x1, y1, z0), (x1, y1, z1), (x1, y0, z1)], material)
        self.face('top', [(x0, y1, z0), (x1, y1, z0), (x1, y1, z1), (x0, y1, z1)], material)
        self.face('front', [(x0, y0, z1), (x0, y1, z1), (x1, y1, z1), (x1, y0, z1)], material)
        edges = [project(x0, y1, z1), project(x1, y1, z1), project(x1, y0, z1)]
        path = ' '.join(f'{px:.2f},{py:.2f}' for px, py in edges)
        self.body.append(f'<polyline points="{path}" fill="none" stroke="#fff" stroke-opacity=".38" '
                         f'stroke-width="{self.line:.2f}" stroke-linejoin="round"/>')

    def shadow(self, centre, size):
        (x, y, z), (w, h, d) = centre, size
        floor = [self.point(x + a * w * .52, y - h * .54, z + b * d * .52)
                 for a, b in ((-1, -1), (1, -1), (1, 1), (-1, 1))]
        self.polygon(floor, '#0f1419', 'opacity=".38" filter="url(#soft)"')

    def matrix(self, plane, x, y, z):
        """Transform that puts flat artwork, y up, onto a plane through the point."""
        a, b = PLANES[plane]
        ox, oy = project(x, y, z)
        return f'matrix({a[0]:.4f} {a[1]:.4f} {b[0]:.4f} {b[1]:.4f} {ox:.2f} {oy:.2f})'

    def flat(self, plane, at, content):
        self.body.append(f'<g transform="{self.matrix(plane, *at)}">{content}</g>')

    def cylinder(self, at, radius, length, material):
        """Lies along the optical axis and reaches from its base towards the viewer; gives the middle of its front."""
        ox, oy = project(*at)
        rise = (Z[0] * length, Z[1] * length)
        # The outline leaves the base where its tangent runs along the axis.
        start = atan2(rise[1] * X[0] - rise[0] * X[1], rise[0] * Y[1] - rise[1] * Y[0]) + pi / 2
        around = [(ox + radius * (X[0] * cos(t) + Y[0] * sin(t)), oy + radius * (X[1] * cos(t) + Y[1] * sin(t)))
                  for t in (start + i * pi / 24 for i in range(49))]
        halves = around[:25], around[24:]
        far, near = sorted(halves, key=lambda half: sum(px * rise[0] + py * rise[1] for px, py in half))
        lifted = [(px + rise[0], py + rise[1]) for px, py in near]
        for px, py in around + lifted:
            self.low = [min(self.low[0], px), min(self.low[1], py)]
            self.high = [max(self.high[0], px), max(self.high[1], py)]
        self.polygon(far + lifted, self.gradient(ROUND[material], *sorted((far[0], far[-1])), units='userSpaceOnUse'))
        front = (at[0], at[1], at[2] + length)
        self.flat('front', front, f'<circle r="{radius}" fill="{self.gradient(MATERIALS[material]["front"])}"/>')
        return front

    def svg(self, width):
        margin = 3 * self.line
        left, top = (v - margin for v in self.low)
        right, bottom = (v + margin for v in self.high)
        scale = width / (right - left)
        size = f'width="{width}" height="{round((bottom - top) * scale)}"'
        area = f'viewBox="{left:.2f} {top:.2f} {right - left:.2f} {bottom - top:.2f}"'
        blur = (f'<filter id="soft" x="-30%" y="-60%" width="160%" height="220%">'
                f'<feGaussianBlur stdDeviation="{self.line * 3:.2f}"/></filter>')
        return '\n'.join([f'<svg xmlns="http://www.w3.org/2000/svg" {size} {area}>', '<defs>', blur, *self.defs, '</defs>',
                          *self.body, '</svg>', ''])
