"""What is on the screen, pixel by pixel, and pictures kept to compare it with."""

import os
import re
import subprocess

KEPT = os.environ.get("CORVIX_PICTURES")  # A directory: what is compared or looked at is saved there as well.


def grab(box=None):
    """The screen, or what is inside of a box of its pixels."""
    crop = ["-crop", "{2}x{3}+{0}+{1}".format(*box), "+repage"] if box else []
    return picture_from("import", "-silent", "-window", "root", *crop)


def load(file, background="white", sizes=()):
    """A picture file on a background, resized to each of the sizes in turn."""
    steps = [word for width, height in sizes for word in ("-resize", f"{width}x{height}!")]
    return picture_from("convert-im6.q16", file, "-background", background, "-flatten", *steps)


def picture_from(*command):
    ppm = subprocess.run([*command, "-depth", "8", "ppm:-"], stdout=subprocess.PIPE, check=True).stdout
    _, size, _, pixels = ppm.split(b"\n", 3)
    return Picture(*map(int, size.split()), pixels)


def channels(colour):
    return tuple(bytes.fromhex(colour[1:]))


def near(colour, other, tolerance=3):
    """Equal but for rounding; both are #rrggbb."""
    return all(abs(a - b) <= tolerance for a, b in zip(channels(colour), channels(other)))


class Picture:
    """Three bytes a pixel, row by row."""

    def __init__(self, width, height, pixels):
        assert len(pixels) == 3 * width * height, f"{len(pixels)} bytes for {width} x {height} pixels"
        self.width, self.height, self.pixels = width, height, pixels

    def at(self, x, y):
        begin = 3 * (y * self.width + x)
        return "#" + self.pixels[begin:begin + 3].hex()

    def share_of(self, colour):
        """Which part of the picture has that colour, from 0 to 1."""
        wanted = bytes(channels(colour))
        found = sum(self.pixels[begin:begin + 3] == wanted for begin in range(0, len(self.pixels), 3))
        return found / (self.width * self.height)

    def box_of(self, colour):
        """The smallest box with all that has that colour; none where nothing has."""
        wanted, length = bytes(channels(colour)), 3 * self.width
        found = [(y, match.start() // 3) for y in range(self.height)
                 for match in re.finditer(re.escape(wanted), self.pixels[y * length:(y + 1) * length])
                 if match.start() % 3 == 0]
        if not found:
            return None
        rows, columns = zip(*found)
        return min(columns), rows[0], max(columns) - min(columns) + 1, rows[-1] - rows[0] + 1

    def difference(self, other, tolerance=40):
        """Which part of the pixels differs in some channel by more than that, from 0 to 1."""
        if (self.width, self.height) != (other.width, other.height):
            return 1.0
        far = [abs(a - b) > tolerance for a, b in zip(self.pixels, other.pixels)]
        return sum(map(any, zip(far[::3], far[1::3], far[2::3]))) / (self.width * self.height)

    def mean_difference(self, other):
        """The mean distance of the channels, from 0 to 255."""
        if (self.width, self.height) != (other.width, other.height):
            return 255
        return sum(abs(a - b) for a, b in zip(self.pixels, other.pixels)) / len(self.pixels)

    def keep(self, name):
        """For somebody to look at, when asked to."""
        if KEPT:
            self.save_as(name, KEPT)

    def save_as(self, name, directory=os.getcwd()):
        """Gives the file's path."""
        file = f"{directory}/{name}.png"
        subprocess.run(["convert-im6.q16", "ppm:-", file], check=True,
                       input=b"P6\n%d %d\n255\n" % (self.width, self.height) + self.pixels)
        return file
