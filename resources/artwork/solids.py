"""Draws prisms and cylinders in one fixed three-quarter view, as SVG.

Lengths are in millimetres. The x axis runs to the right along the front of the camera, the y axis up, and the z axis
along the optical axis towards the viewer. Solids are painted in call order, so the farthest solid comes first.
"""

from math import atan2, cos, dist, hypot, pi, radians, sin

from light import LAMP, shade

YAW, PITCH = radians(-36), radians(20)
X = (cos(YAW), -sin(YAW) * sin(PITCH))  # X, Y and Z are the three axes on the page, where y points down.
Y = (0.0, -cos(PITCH))
Z = (sin(YAW), cos(YAW) * sin(PITCH))
VIEWER = (-sin(YAW) * cos(PITCH), sin(PITCH), cos(YAW) * cos(PITCH))
PLANES = {'front': (X, Y), 'top': (X, Z), 'side': (Z, Y)}
FACING = {'front': (0, 0, 1), 'top': (0, 1, 0), 'side': (1, 0, 0)}


def project(x, y, z):
    return tuple(x * X[i] + y * Y[i] + z * Z[i] for i in (0, 1))


def rectangle(width, height, corner=0, steps=4):
    """Returns a rectangular profile around the optical axis, counterclockwise. With one step, the corners are cut off;
    with more steps, they are rounded."""
    x, y = width / 2 - corner, height / 2 - corner
    if not corner:
        return [(x, y), (-x, y), (-x, -y), (x, -y)]
    return [(cx + corner * cos(a), cy + corner * sin(a))
            for cx, cy, quarter in ((x, y, 0), (-x, y, 1), (-x, -y, 2), (x, -y, 3))
            for a in (pi / 2 * (quarter + i / steps) for i in range(steps + 1))]


def inset(profile, by):
    """Returns the profile with every side moved inwards."""
    result = []
    for i, (x, y) in enumerate(profile):
        before, after = outward(profile[i - 1], (x, y)), outward((x, y), profile[(i + 1) % len(profile)])
        scale = by / (1 + before[0] * after[0] + before[1] * after[1])
        result.append((x - (before[0] + after[0]) * scale, y - (before[1] + after[1]) * scale))
    return result


def outward(start, end):
    dx, dy = end[0] - start[0], end[1] - start[1]
    return dy / hypot(dx, dy), -dx / hypot(dx, dy)


class Drawing:
    """Collects SVG elements and the area that they cover."""

    def __init__(self):
        self.defs, self.body = [], []
        self.low, self.high = [1e9, 1e9], [-1e9, -1e9]

    def cover(self, points):
        for point in points:
            self.low = [min(a, b) for a, b in zip(self.low, point)]
            self.high = [max(a, b) for a, b in zip(self.high, point)]

    def gradient(self, stops, start, end):
        """Returns a reference to a new gradient. Each stop consists of a position, from 0 to 1, and a colour."""
        name = f'g{len(self.defs)}'
        colours = ''.join(f'<stop offset="{place:.2f}" stop-color="{colour}"/>' for place, colour in stops)
        self.defs.append(f'<linearGradient id="{name}" gradientUnits="userSpaceOnUse" x1="{start[0]:.2f}" '
                         f'y1="{start[1]:.2f}" x2="{end[0]:.2f}" y2="{end[1]:.2f}">{colours}</linearGradient>')
        return f'url(#{name})'

    def polygon(self, points, fill):
        self.cover(points)
        path = ' '.join(f'{x:.2f},{y:.2f}' for x, y in points)
        # The stroke closes the gap to the neighbouring polygon.
        self.body.append(f'<polygon points="{path}" fill="{fill}" stroke="{fill}"/>')

    def face(self, corners, normal, material):
        """Draws a flat face. A wide face is a little brighter towards the lamp."""
        points = [project(*corner) for corner in corners]
        if min(dist(corners[0], corners[1]), dist(corners[1], corners[2])) < 5:
            self.polygon(points, shade(material, normal))
            return
        towards = LAMP[0] * X[0], LAMP[0] * X[1] + LAMP[1] * Y[1]
        along = [x * towards[0] + y * towards[1] for x, y in points]
        dark, bright = points[along.index(min(along))], points[along.index(max(along))]
        self.polygon(points, self.gradient([(0, shade(material, normal, -.07)), (1, shade(material, normal, .05))],
                                           dark, bright))

    def prism(self, profile, back, front, material, bevel=0):
        """Draws a profile that is extruded along the optical axis, with a bevelled front edge."""
        edge, lid = front - bevel, inset(profile, bevel) if bevel else profile
        for i, (start, end) in enumerate(zip(profile, profile[1:] + profile[:1])):
            normal = outward(start, end)
            if normal[0] * VIEWER[0] + normal[1] * VIEWER[1] > 0:
                self.face([(*start, back), (*end, back), (*end, edge), (*start, edge)], (*normal, 0), material)
            if bevel:
                following = lid[(i + 1) % len(lid)]
                self.face([(*start, edge), (*end, edge), (*following, front), (*lid[i], front)], (*normal, 1), material)
        self.face([(*point, front) for point in lid], (0, 0, 1), material)

    def box(self, centre, size, material, bevel=0):
        (x, y, z), (width, height, depth) = centre, size
        profile = [(x + px, y + py) for px, py in rectangle(width, height)]
        self.prism(profile, z - depth / 2, z + depth / 2, material, bevel)

    def cylinder(self, at, radius, length, material, far_radius=None):
        """Draws a cylinder along the optical axis, from its base towards the viewer. Returns its front centre."""
        far_radius = far_radius or radius
        first = atan2(VIEWER[1], VIEWER[0]) - pi / 2  # Only half of the surface is visible.
        turns = [first + pi * i / 16 for i in range(17)]
        far = [project(at[0] + far_radius * cos(t), at[1] + far_radius * sin(t), at[2]) for t in turns]
        front = at[0], at[1], at[2] + length
        near = [project(front[0] + radius * cos(t), front[1] + radius * sin(t), front[2]) for t in turns]
        across = near[-1][0] - near[0][0], near[-1][1] - near[0][1]
        normal = unit_across(Z)
        width = across[0] * normal[0] + across[1] * normal[1]
        end = near[0][0] + normal[0] * width, near[0][1] + normal[1] * width
        stops = [((1 - cos(t - first)) / 2, shade(material, (cos(t), sin(t), 0))) for t in turns[::2]]
        self.polygon(far + near[::-1], self.gradient(stops, near[0], end))
        self.disc(front, radius, shade(material, (0, 0, 1)))
        return front

    def disc(self, at, radius, fill):
        around = (pi / 8 * i for i in range(16))
        self.cover(project(at[0] + radius * cos(t), at[1] + radius * sin(t), at[2]) for t in around)
        self.flat('front', at, f'<circle r="{radius:.2f}" fill="{fill}"/>')

    def ring(self, at, outer, inner, material, hollow=False):
        """Draws a conical ring around the optical axis. The ring rises towards its middle or, if hollow, sinks."""
        way = -1 if hollow else 1
        reach = (outer + inner) / 2
        lit, unlit = ((-.6 * way, .6 * way, .6), (.6 * way, -.6 * way, .6))
        fill = self.gradient([(0, shade(material, lit)), (.5, shade(material, (0, 0, 1))), (1, shade(material, unlit))],
                             (-reach * .7, reach * .7), (reach * .7, -reach * .7))
        self.flat('front', at, f'<circle r="{reach:.2f}" fill="none" stroke="{fill}" '
                  f'stroke-width="{outer - inner:.2f}"/>')

    def matrix(self, plane, at):
        """Returns the transform that puts flat artwork, with y up, onto a plane through the point."""
        a, b = PLANES[plane]
        x, y = project(*at)
        return f'matrix({a[0]:.4f} {a[1]:.4f} {b[0]:.4f} {b[1]:.4f} {x:.2f} {y:.2f})'

    def flat(self, plane, at, content):
        self.body.append(f'<g transform="{self.matrix(plane, at)}">{content}</g>')

    def hole(self, at, radius):
        """Returns the attribute that hides everything outside a round opening in the front plane."""
        name = f'c{len(self.defs)}'
        circle = f'<circle r="{radius:.2f}" transform="{self.matrix("front", at)}"/>'
        self.defs.append(f'<clipPath id="{name}">{circle}</clipPath>')
        return f'clip-path="url(#{name})"'

    def cable(self, at, radius, material):
        """Draws a cable that runs backwards, bends down and fades out."""
        x, y = project(*at)
        bx, by = -Z[0] * radius * 3, -Z[1] * radius * 3
        end = x + bx * 1.4, y + by * .6 + radius * 6
        path = f'M{x:.2f} {y:.2f}C{x + bx:.2f} {y + by:.2f} {end[0]:.2f} {y + by:.2f} {end[0]:.2f} {end[1]:.2f}'
        self.cover([(end[0] + radius, y + by - radius), (end[0] + radius, end[1] - radius * 2)])
        for width, colour, shift in ((2, shade(material, (1, -.4, 0)), 0), (1.3, shade(material, (-.2, .4, .5)), -.22),
                                     (.5, shade(material, (-.5, .8, .6)), -.4)):
            name = f'f{len(self.defs)}'
            self.defs.append(f'<linearGradient id="{name}" gradientUnits="userSpaceOnUse" x1="0" x2="0" '
                             f'y1="{y + by:.2f}" y2="{end[1]:.2f}"><stop offset=".3" stop-color="{colour}"/>'
                             f'<stop offset=".95" stop-color="{colour}" stop-opacity="0"/></linearGradient>')
            self.body.append(f'<path d="{path}" transform="translate({shift * radius:.2f} {shift * radius:.2f})" '
                             f'fill="none" stroke="url(#{name})" stroke-width="{width * radius:.2f}"/>')

    def shadow(self, y, size):
        """Draws a shadow on the floor at height y, under a body of this width and depth."""
        width, depth = size
        floor = [project(a * width / 2, y, b * depth / 2) for a, b in ((-1, -1), (1, -1), (1, 1), (-1, 1))]
        blur = min(width, depth) * .07
        self.cover((px + a * blur, py + a * blur) for px, py in floor for a in (-1, 1))
        path = ' '.join(f'{px:.2f},{py:.2f}' for px, py in floor)
        self.defs.append(f'<filter id="soft" x="-30%" y="-60%" width="160%" height="220%">'
                         f'<feGaussianBlur stdDeviation="{blur:.2f}"/></filter>')
        self.body.append(f'<polygon points="{path}" fill="#0f1419" opacity=".5" filter="url(#soft)"/>')

    def svg(self, page, share):
        """Returns the drawing as SVG, in the middle of a page of this size and filling this share of the page."""
        width, height = (high - low for low, high in zip(self.low, self.high))
        unit = max(width / page[0], height / page[1]) / share
        area = page[0] * unit, page[1] * unit
        left, top = ((low + high - length) / 2 for low, high, length in zip(self.low, self.high, area))
        head = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{page[0]}" height="{page[1]}" '
                f'viewBox="{left:.2f} {top:.2f} {area[0]:.2f} {area[1]:.2f}">')
        return '\n'.join([head, '<defs>', *self.defs, '</defs>', '<g stroke-width=".25" stroke-linejoin="round">',
                          *self.body, '</g>', '</svg>', ''])


def unit_across(direction):
    """Returns the unit vector at right angles to a direction on the page."""
    length = hypot(*direction)
    return -direction[1] / length, direction[0] / length
