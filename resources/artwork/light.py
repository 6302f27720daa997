"""Computes the colours of faces. In all pictures, one lamp stands above, left and in front of the camera."""

from math import sqrt


def unit(vector):
    length = sqrt(sum(v * v for v in vector))
    return tuple(v / length for v in vector)


LAMP = unit((-.5, .8, .62))

# For each material: the colour in full light, and the share of the lamp's light that is mirrored.
MATERIALS = {
    'graphite': ('#63707f', .10), 'black': ('#4a505a', .14), 'silver': ('#eaeff3', .25),
    'steel': ('#bcc6d0', .50), 'chrome': ('#d9dfe5', .75), 'rubber': ('#343a42', .06), 'pale': ('#f4f7fa', .12),
    'blue': ('#2f7fd0', .18), 'navy': ('#4a6596', .14),
    'green': ('#2f9a68', .10), 'gold': ('#e2b34c', .45), 'amber': ('#e58a16', .15), 'chip': ('#2b3036', .10),
    'plastic': ('#c4ced8', .15), 'violet': ('#8b5cf0', .30), 'red': ('#e2533a', .30), 'teal': ('#17a795', .30),
    'azure': ('#3b86f7', .15), 'aqua': ('#22b8c4', .15),
}


def mix(first, second, share):
    """Returns a mixture of two #rrggbb colours, of which `share` is the second colour."""
    channels = zip(bytes.fromhex(first[1:]), bytes.fromhex(second[1:]))
    return '#' + ''.join(f'{round(a + (b - a) * share):02x}' for a, b in channels)


def shade(material, normal, brighter=0):
    """Returns the colour of a face with this normal."""
    colour, mirrored = MATERIALS[material]
    lit = max(0, sum(a * b for a, b in zip(unit(normal), LAMP)))
    light = .45 + .7 * lit + brighter
    return mix(mix('#05070a', colour, min(1, light)), '#ffffff', min(.9, mirrored * lit ** 4 + max(0, light - 1)))
