"""Defines positions in the launcher's window, in pixels."""

FIRST_ROW, ROW_HEIGHT, ROWS_IN_VIEW = 185, 31, 5
IMAGE_VIEWER = (110, 410)  # A point in the tile of this tool.


def row(index):
    """Returns a point in a row of the camera table."""
    return 90, FIRST_ROW + ROW_HEIGHT * index


def vendor(index):
    """Returns the rectangle that contains the vendor of a row."""
    return 15, FIRST_ROW + ROW_HEIGHT * index - 9, 120, 18


# The vendors of all visible rows but the first. Text here means that the table shows cameras: a scan shows only one row.
LISTED = [vendor(index) for index in range(1, ROWS_IN_VIEW)]
