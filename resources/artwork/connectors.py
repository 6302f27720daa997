"""Draws plugs and cables at the back of a camera. Each plug extends from the rear face away from the viewer."""


def rj45(drawing, x, y, z):
    drawing.cable((x, y, z - 18), 2.5, 'rubber')
    drawing.box((x, y, z - 15), (8.5, 7.5, 6), 'rubber', .8)
    drawing.box((x, y, z - 7), (12.5, 10, 12), 'plastic', .8)
    drawing.box((x, y + 5.5, z - 7), (5, 1.6, 10), 'plastic')
    drawing.box((x, y, z - 1), (16, 14, 2), 'steel')


def usb(drawing, x, y, z):
    drawing.cable((x, y, z - 18), 2.3, 'rubber')
    drawing.box((x, y, z - 15), (8, 6, 6), 'rubber', .8)
    drawing.box((x, y, z - 7.5), (20, 9, 11), 'azure', 1)
    for side in (-1, 1):
        drawing.cylinder((x + side * 7, y, z - 15), 1.6, 4, 'steel')
    drawing.box((x, y, z - 1.5), (14, 5, 3), 'steel')


def round_plug(drawing, x, y, z, radius, length, cable):
    drawing.cable((x, y, z - length), cable, 'rubber')
    drawing.cylinder((x, y, z - length), radius * .85, length * .45, 'rubber', far_radius=cable * 1.1)
    drawing.cylinder((x, y, z - length * .56), radius * 1.1, length * .36, 'chrome')
    drawing.cylinder((x, y, z - length * .2), radius * .8, length * .2, 'steel')


def m12(drawing, x, y, z):
    round_plug(drawing, x, y, z, 7, 23, 3)


def power(drawing, x, y, z):
    round_plug(drawing, x, y, z, 4.6, 15, 1.9)


def coax(drawing, x, y, z):
    """Draws the plug of one CoaXPress line."""
    round_plug(drawing, x, y, z, 5.6, 25, 2.6)


def sfp(drawing, x, y, z):
    """Draws a metal cage with its module and two fibres."""
    for side in (-1, 1):
        drawing.cable((x + side * 3.6, y, z - 28), 1.7, 'aqua')
        drawing.box((x + side * 3.6, y, z - 25), (5.4, 6, 8), 'aqua', .6)
    drawing.box((x, y, z - 11), (15, 10, 22), 'chrome', .8)


def camera_link(drawing, x, y, z):
    drawing.cable((x + 4, y, z - 30), 3.6, 'rubber')
    drawing.box((x + 4, y, z - 26), (13, 10, 8), 'rubber', 1)
    drawing.box((x, y, z - 12), (36, 14, 20), 'plastic', 1.2)
    for side in (-1, 1):
        drawing.cylinder((x + side * 14, y, z - 28), 2.4, 7, 'chrome')
    drawing.box((x, y, z - 1), (30, 9, 3), 'steel')


def ribbon(drawing, x, y, z):
    """Draws a flat flexible cable that runs from a board to the right."""
    drawing.face([(x, y - 9, z), (x + 15, y - 9, z), (x + 15, y + 9, z), (x, y + 9, z)], (0, .1, 1), 'amber')
    tracks = ''.join(f'<path d="M0 {i}h15" stroke="#ffd98a" stroke-width=".6" opacity=".8"/>' for i in range(-7, 8, 2))
    drawing.flat('front', (x, y, z), tracks)
    bent = [(x + 15, y - 9, z), (x + 18, y - 9, z - 16), (x + 18, y + 9, z - 16), (x + 15, y + 9, z)]
    drawing.face(bent, (1, .1, .2), 'amber')


# For each connector: the function that draws it, half its width, and the height that it needs in the column.
CONNECTORS = {'rj45': (rj45, 8, 15), 'usb': (usb, 10, 11), 'm12': (m12, 8, 18), 'power': (power, 5.5, 12),
              'coax': (coax, 6, 14), 'sfp': (sfp, 8, 14), 'camera link': (camera_link, 18, 16)}


def rear_connectors(drawing, kinds, width, z):
    """Draws the connectors in a column at the right edge of the rear face, where they are visible."""
    room = [CONNECTORS[kind][2] for kind in kinds]
    y = -sum(room) / 2
    for kind, height in zip(reversed(kinds), reversed(room)):
        draw, half, _ = CONNECTORS[kind]
        draw(drawing, width / 2 - half, y + height / 2, z)
        y += height
