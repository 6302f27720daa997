"""Draws the housings of cameras and their cooling."""

from connectors import ribbon
from lettering import lettering
from solids import inset, rectangle


def housing(drawing, model, back, front):
    """Draws a milled block. A band in the accent colour separates the front plate from the rest of the block."""
    width, height = model.size[:2]
    profile = rectangle(width, height, model.corner, 1 if model.cut else 4)
    band = max(2, min(width, height) * .055)
    plate = max(3, min(width, height) * .12)
    waist = inset(profile, .3)
    rear = front - plate - band
    if model.plates:
        cooling_plates(drawing, model, profile, back, rear)
    elif model.ribs:
        ribbed(drawing, model, back, rear)
    else:
        drawing.prism(profile, back, rear, model.body)
    if model.name:
        name_plate(drawing, model, back, rear)
    drawing.prism(waist, rear, front - plate, model.accent)
    drawing.prism(profile, front - plate, front, model.body, bevel=max(.7, plate * .2))
    screws(drawing, model, front)


def cooling_plates(drawing, model, profile, back, front):
    """Draws cooling plates across the optical axis, on all sides of the housing."""
    pitch = (front - back) / model.plates
    core = inset(profile, min(model.size[:2]) * .08)
    for index in range(model.plates):
        z = back + pitch * index
        drawing.prism(core, z, z + pitch * .5, 'rubber')
        drawing.prism(profile, z + pitch * .5, z + pitch, model.body)


def ribbed(drawing, model, back, front):
    """Draws cooling ribs along the optical axis, level with the front plate: on the top and, if the model has flanks,
    on the right side."""
    width, height, _ = model.size
    rise = min(width, height) * .09
    length, z = front - back, (front + back) / 2
    flank = rise if model.flanks else 0
    core = [(min(x, width / 2 - flank), min(y, height / 2 - rise)) for x, y in rectangle(width, height)]
    drawing.prism(core, back, front, model.body)
    for index in range(model.flanks):
        pitch = (height - rise) / model.flanks
        y = -height / 2 + pitch * (index + .5)
        drawing.box((width / 2 - rise / 2, y, z), (rise, pitch * .5, length), model.body)
    for index in range(model.ribs):
        pitch = width / model.ribs
        x = -width / 2 + pitch * (index + .5)
        drawing.box((x, height / 2 - rise / 2, z), (pitch * .5, rise, length), model.body)


def name_plate(drawing, model, back, front):
    """Writes the name of the series on the right side."""
    room = (front - back) * .7, model.size[1] * .26
    text = lettering(model.name, room, '#2b3138' if model.body == 'silver' else '#c0c6cc')
    # The text is mirrored, because the optical axis runs from right to left if seen from the right.
    drawing.flat('side', (model.size[0] / 2, model.size[1] * .06, (back + front) / 2),
                 f'<g transform="scale(-1 1)">{text}</g>')


def fan(drawing, model, back, front):
    """Draws a fan in a frame on the right side. The coordinates are relative to the radius of the fan."""
    width, height, _ = model.size
    radius = min(height * .38, (front - back) * .46)
    blades = ''.join('<path d="M.2 0C.45 .1 .8 .05 .84 .42C.7 .48 .3 .42 .1 .2Z" fill="#7d8793" '
                     f'transform="rotate({angle})"/>' for angle in range(0, 360, 60))
    heads = ''.join(f'<circle cx="{x}" cy="{y}" r=".08" fill="#8a93a0"/>' for x in (-.75, .75) for y in (-.75, .75))
    drawing.flat('side', (width / 2 + .1, 0, (back + front) / 2),
                 f'<g transform="scale({radius:.2f})"><rect x="-1" y="-1" width="2" height="2" rx=".2" fill="#2a3037"/>'
                 '<circle r=".93" fill="#0b0d10" stroke="#8a93a0" stroke-width=".07"/>'
                 f'{blades}<circle r=".3" fill="#a9b2bd"/>{heads}</g>')


def screws(drawing, model, z):
    """Draws a screw in each of the four corners. If the corners are cut off, the screws are beside the cuts."""
    width, height = model.size[:2]
    edge = max(2.4, min(width, height) * .095)
    x, y = width / 2 - (model.corner if model.cut else edge), height / 2 - edge
    heads = ''.join(f'<circle cx="{sx * x:.2f}" cy="{sy * y:.2f}" r="{edge * .42:.2f}" fill="#1a1e23" stroke="#fff" '
                    f'stroke-opacity=".3" stroke-width="{edge * .14:.2f}"/>' for sx in (-1, 1) for sy in (-1, 1))
    drawing.flat('front', (0, 0, z), heads)


def boards(drawing, model, back, front):
    """Draws two boards without a housing, connected by spacers. The rear board has the cable."""
    width, height, _ = model.size
    corners = [(x * width * .41, y * height * .41) for x in (-1, 1) for y in (-1, 1)]
    ribbon(drawing, width / 2 - 4, -height * .12, back)
    profile = rectangle(width, height, 2.5)
    drawing.prism(profile, back, back + 2, 'green')
    drawing.box((width * .22, height * .12, back + 3.6), (13, 13, 3), 'chip')
    for x, y in sorted(corners):
        drawing.cylinder((x, y, back + 2), 2, front - back - 4, 'gold')
    drawing.prism(profile, front - 2, front, 'green')
    pads = ''.join(f'<circle cx="{x:.1f}" cy="{y:.1f}" r="2.5" fill="#e9c56a"/>'
                   f'<circle cx="{x:.1f}" cy="{y:.1f}" r="1.3" fill="#3c434b"/>' for x, y in corners)
    tracks = ''.join(f'<path d="{path}" fill="none" stroke="#7fd8a8" stroke-opacity=".7" stroke-width=".7"/>'
                     for path in ('M-19 6h6l3 3h8', 'M-19 3h5l3 3', 'M19 -6h-6l-3 -3h-4', 'M19 -9h-5l-2 -2'))
    chips = ''.join(f'<rect x="{x}" y="{y}" width="{w}" height="{h}" fill="{fill}"/>' for x, y, w, h, fill in (
        (-7, 13, 9, 4, '#15181c'), (5, 13, 3, 4, '#d9c08a'), (-18, -9, 5, 8, '#15181c'), (7, -17, 9, 4, '#15181c'),
        (0, -17, 4, 3, '#d9c08a'), (14, 2, 4, 6, '#15181c')))
    drawing.flat('front', (0, 0, front), tracks + chips + pads)
