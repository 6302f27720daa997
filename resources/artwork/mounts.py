"""Draws the front of a camera: the lens mount and, at the bottom of its opening, the sensor."""

from math import cos, pi, sin

from light import shade

# The colours of the glass over the sensor, at the lower left and at the upper right.
TINTS = {
    'standard': ('#2a3f8f', '#7fa4f0'), 'large': ('#26307c', '#7d93ea'), 'uv': ('#4a1f9a', '#c39bff'),
    'swir': ('#6d2418', '#eb9a63'), 'polar': ('#17635d', '#6fd8c8'), 'cooled': ('#3a7ea0', '#c9f1ff'),
    'pale': ('#93a2b0', '#d6dee6'),
}


def sensor(drawing, at, size, tint, kind):
    width, height = size
    glass = drawing.gradient(list(enumerate(TINTS[tint])), (-width / 2, -height / 2), (width / 2, height / 2))
    border = max(.9, min(width, height) * .1)

    def bar(x, y, w, h, fill, more=''):
        return f'<rect x="{x - w / 2:.2f}" y="{y - h / 2:.2f}" width="{w:.2f}" height="{h:.2f}" fill="{fill}" {more}/>'

    frame = '#c3ccd5' if tint == 'pale' else '#d3a94e'
    parts = [bar(0, 0, width + 2 * border, height + 2 * border, frame)]
    if kind == 'area':
        parts.append(bar(0, 0, width, height, glass))
    elif kind == 'polar':  # Neighbouring pixels measure four directions of polarisation.
        tones = '#2fd0b8', '#7a5cf0', '#ffb03a', '#3a8cf0'
        across, down = width / 4, height / 3
        parts += [bar((i - 1.5) * across, (j - 1) * down, across, down, tones[(2 * j + i + j // 2) % 4])
                  for i in range(4) for j in range(3)]
    elif kind == 'line':
        parts = [bar(0, 0, width + 6, height + 7, '#aeb8c2'), bar(0, 0, width + 2, height + 3, '#1b2340'),
                 bar(0, 0, width, height, '#8fb0ff')]
    elif kind == 'tdi':  # A TDI sensor adds up many lines.
        parts = [bar(0, 0, width + 6, height + 5, '#aeb8c2'), bar(0, 0, width + 2, height + 2, '#1b2340')]
        parts += [bar(0, (i - 1) * height * .36, width, height * .2, tone)
                  for i, tone in enumerate(('#6fd8c8', '#8fb0ff', '#6fd8c8'))]
    if kind in ('area', 'polar'):
        parts.append(f'<path d="M{-width / 2:.2f} {height / 2:.2f}h{width * .42:.2f}l{-width * .28:.2f} {-height:.2f}'
                     f'h{-width * .14:.2f}z" fill="#fff" opacity=".3"/>')
    drawing.flat('front', at, ''.join(parts))


def opening(drawing, rim, radius, depth, model, threads=0):
    """Draws a dark bore with the sensor at its bottom. The side away from the lamp is lit."""
    x, y, z = rim
    dark, middle, bright = '#07090b', '#14181d', '#59636e'
    if model.tint == 'pale':
        dark, middle, bright = '#8a97a4', '#a9b4bf', '#dde3e9'
    wall = drawing.gradient([(0, dark), (.55, middle), (1, bright)], (-radius * .7, radius * .7),
                            (radius * .7, -radius * .7))
    drawing.disc(rim, radius, wall)
    drawing.body.append(f'<g {drawing.hole(rim, radius)}>')
    for i in range(threads):
        drawing.flat('front', (x, y, z - 1.2 - i * 1.6),
                     f'<circle r="{radius - .3:.2f}" fill="none" stroke="#aab4bf" stroke-opacity=".55" '
                     'stroke-width=".5"/>')
    floor = x, y, z - depth
    drawing.flat('front', floor, f'<circle r="{radius * .93:.2f}" fill="{dark}"/>')
    sensor(drawing, floor, model.sensor, model.tint, model.kind)
    drawing.body.append('</g>')


def threaded(drawing, z, model, radius, length):
    """Draws a C, CS or M mount: a ring with a thread inside."""
    collar = drawing.cylinder((0, 0, z), radius * 1.08, length * .3, model.ring)
    drawing.ring(collar, radius * 1.08, radius * .99, model.ring)
    rim = drawing.cylinder(collar, radius * .97, length * .7, model.ring)
    drawing.ring(rim, radius * .97, radius * .9, model.ring)
    drawing.ring(rim, radius * .9, radius * .82, model.ring, hollow=True)
    opening(drawing, rim, radius * .82, length * .35 + radius * .05, model, threads=3)


def bayonet(drawing, z, model, radius, length):
    """Draws an F mount: a polished ring with screws, three claws inside and a red dot."""
    rim = drawing.cylinder((0, 0, z), radius, length, 'chrome')
    drawing.ring(rim, radius, radius * .93, 'chrome')
    screws = ''.join(f'<circle cx="{radius * .84 * cos(a):.2f}" cy="{radius * .84 * sin(a):.2f}" '
                     f'r="{radius * .055:.2f}" fill="#4a525c"/>' for a in (.3, 1.35, 2.5, 3.7, 5.2))
    drawing.flat('front', rim, screws)
    opening(drawing, rim, radius * .74, length * .3 + radius * .05, model)
    claw, tone = radius * .74, shade('chrome', (0, 0, 1), -.12)
    arcs = ''.join(f'<path d="M{claw * cos(a):.2f} {claw * sin(a):.2f}A{claw:.2f} {claw:.2f} 0 0 1 '
                   f'{claw * cos(a + .85):.2f} {claw * sin(a + .85):.2f}L{claw * .86 * cos(a + .8):.2f} '
                   f'{claw * .86 * sin(a + .8):.2f}A{claw * .86:.2f} {claw * .86:.2f} 0 0 0 '
                   f'{claw * .86 * cos(a + .05):.2f} {claw * .86 * sin(a + .05):.2f}Z" fill="{tone}"/>'
                   for a in (.1, 2.2, 4.3))
    drawing.flat('front', rim, arcs + f'<circle cx="0" cy="{radius * .93:.2f}" r="{radius * .09:.2f}" fill="#e2342b"/>')


def board_lens(drawing, z, model, radius, length):
    """Draws an S mount: a small lens that is screwed into its holder."""
    holder = drawing.cylinder((0, 0, z), radius * 1.25, length * .35, 'black', far_radius=radius * 1.45)
    neck = drawing.cylinder(holder, radius * .9, length * .2, 'black')
    front = drawing.cylinder(neck, radius * 1.08, length * .45, 'black')
    drawing.ring(front, radius * 1.08, radius * .92, 'steel')
    drawing.disc(front, radius * .92, '#15181c')
    drawing.ring(front, radius * .92, radius * .62, 'black', hollow=True)
    lens(drawing, front, radius * .66)


def lens(drawing, at, radius):
    """Draws coated glass that mirrors the lamp."""
    glass = drawing.gradient([(0, '#0a1430'), (.5, '#27408f'), (1, '#7a55c8')], (-radius, radius), (radius, -radius))
    drawing.disc(at, radius, glass)
    drawing.flat('front', at, f'<ellipse cx="{-radius * .32:.2f}" cy="{radius * .36:.2f}" rx="{radius * .36:.2f}" '
                 f'ry="{radius * .24:.2f}" fill="#cfe4ff" opacity=".85"/>'
                 f'<ellipse cx="{radius * .35:.2f}" cy="{-radius * .42:.2f}" rx="{radius * .2:.2f}" '
                 f'ry="{radius * .13:.2f}" fill="#66e0d0" opacity=".7"/>')


def lens_tube(drawing, z, model, radius, length):
    """Draws a sealed tube that protects the lens, with a window in front."""
    collar = drawing.cylinder((0, 0, z), radius * 1.12, length * .16, 'steel')
    drawing.ring(collar, radius * 1.12, radius, 'steel')
    seal = drawing.cylinder(collar, radius * .97, length * .06, model.accent)
    front = drawing.cylinder(seal, radius, length * .78, 'steel')
    for share in (.35, .5, .65):
        drawing.body.append(groove(drawing, seal, radius, length * .78 * share))
    drawing.ring(front, radius, radius * .88, 'steel')
    drawing.disc(front, radius * .86, '#14181d')
    drawing.ring(front, radius * .86, radius * .74, 'black', hollow=True)
    lens(drawing, front, radius * .7)


def groove(drawing, at, radius, along):
    """Returns the visible part of a groove around a cylinder."""
    matrix = drawing.matrix('front', (at[0], at[1], at[2] + along))
    start, end = (radius * cos(-1.02), radius * sin(-1.02)), (radius * cos(pi - 1.02), radius * sin(pi - 1.02))
    return (f'<path transform="{matrix}" d="M{start[0]:.2f} {start[1]:.2f}A{radius} {radius} 0 0 1 '
            f'{end[0]:.2f} {end[1]:.2f}" fill="none" stroke="#2b323a" stroke-opacity=".55" stroke-width="1.1"/>')


MOUNTS = {'threaded': threaded, 'bayonet': bayonet, 'board lens': board_lens, 'lens tube': lens_tube}
