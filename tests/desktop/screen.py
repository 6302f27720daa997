"""Takes pictures of the screen and compares pictures."""

from PIL import Image, ImageChops, ImageGrab, ImageStat


def grab(box=None):
    """Returns a picture of a box of the screen, or of the whole screen."""
    if box:
        box = (box[0], box[1], box[0] + box[2], box[1] + box[3])
    return ImageGrab.grab(box, xdisplay="").convert("RGB")


def load(file, background="white", size=None):
    """Loads a picture file, and draws the picture on a background. From an icon file, the picture of the given size is
    loaded."""
    picture = Image.open(file)
    if size and picture.format == "ICO":
        picture.size = size
    picture = picture.convert("RGBA")
    return Image.alpha_composite(Image.new("RGBA", picture.size, background), picture).convert("RGB")


def colour(picture, x=0, y=0):
    return "#%02x%02x%02x" % picture.getpixel((x, y))


def box_of(picture, wanted):
    """Returns the smallest box that contains every pixel of a colour, or None if no pixel has the colour."""
    difference = ImageChops.difference(picture, Image.new("RGB", picture.size, wanted))
    box = largest_channel(difference).point([255] + [0] * 255).getbbox()
    return (box[0], box[1], box[2] - box[0], box[3] - box[1]) if box else None


def largest_channel(picture):
    red, green, blue = picture.split()
    return ImageChops.lighter(ImageChops.lighter(red, green), blue)


def changed_share(picture, other, tolerance=40):
    """Returns the share of the pixels that differ by more than the tolerance in at least one channel."""
    if picture.size != other.size:
        return 1.0
    histogram = largest_channel(ImageChops.difference(picture, other)).histogram()
    return sum(histogram[tolerance + 1:]) / sum(histogram)


def mean_difference(picture, other):
    """Returns the mean difference over all channels, from 0 to 255."""
    if picture.size != other.size:
        return 255
    return sum(ImageStat.Stat(ImageChops.difference(picture, other)).mean) / 3
