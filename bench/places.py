"""Where things are in the launcher's window, in pixels."""

FIRST_ROW, ROW_HEIGHT, ROWS_IN_VIEW = 185, 31, 5
IMAGE_VIEWER = (110, 410)  # Its tile.


def row(index):
    """A place to click at."""
    return 90, FIRST_ROW + ROW_HEIGHT * index


def vendor(index):
    """The box that a row's vendor is written in."""
    return 15, FIRST_ROW + ROW_HEIGHT * index - 9, 120, 18


# While a scan runs there is one row. A list is drawn in one go.
LISTED = [vendor(index) for index in range(1, ROWS_IN_VIEW)]
