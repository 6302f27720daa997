"""Draws the capital letters and digits on housings as strokes, so that no picture depends on a font."""

# The strokes use a grid that is 4 wide and 6 high, with y up.
STROKES = {
    'A': 'M0 0L2 6L4 0M.8 2H3.2', 'B': 'M0 0V6H2.6C4 6 4 3.2 2.6 3.2H0M2.6 3.2C4.4 3.2 4.4 0 2.6 0H0',
    'C': 'M4 5C3 6.4 0 6.4 0 3S3 -.4 4 1',
    'E': 'M4 0H0V6H4M0 3H3.2', 'H': 'M0 0V6M4 0V6M0 3H4', 'I': 'M2 0V6', 'K': 'M0 0V6M4 6L0 2.4M1.4 3.6L4 0',
    'L': 'M0 6V0H4', 'N': 'M0 0V6L4 0V6', 'O': 'M2 0C-.6 0 -.6 6 2 6S4.6 0 2 0Z',
    'Q': 'M2 0C-.6 0 -.6 6 2 6S4.6 0 2 0ZM2.6 1.6L4.4 -.4',
    'R': 'M0 0V6H2.6C4.4 6 4.4 2.8 2.6 2.8H0M2 2.8L4 0',
    'T': 'M0 6H4M2 6V0', 'V': 'M0 6L2 0L4 6', 'X': 'M0 0L4 6M0 6L4 0', 'Z': 'M0 6H4L0 0H4',
    '0': 'M2 0C-.6 0 -.6 6 2 6S4.6 0 2 0Z', '2': 'M.2 4.6C.6 6.4 3.8 6.4 3.8 4.4C3.8 3 .2 1.4 0 0H4',
    '4': 'M3 0V6L0 1.8H4', '8': 'M2 3.2C-.2 3.2 -.2 6 2 6S4.2 3.2 2 3.2C-.5 3.2 -.5 0 2 0S4.5 3.2 2 3.2Z',
}
ADVANCE = 5.6


def lettering(text, room, colour):
    """Returns a text around the origin, as large as fits into a width and a height."""
    width = ADVANCE * len(text) - 1.6
    scale = min(room[0] / width, room[1] / 6)
    letters = ''.join(f'<path d="{STROKES[letter]}" transform="translate({i * ADVANCE - width / 2:.2f} -3)"/>'
                      for i, letter in enumerate(text))
    return (f'<g transform="scale({scale:.3f})" fill="none" stroke="{colour}" stroke-width="1.15" '
            f'stroke-linecap="square">{letters}</g>')
