"""Figures: what was measured, pair by pair, and what it is held against."""

import dataclasses
import statistics
import typing


def in_pairs(ours, floor, count):
    """Measures both in turn, so often, and each goes first every other time. The first pair is not counted: it fills
    the caches."""
    pairs = []
    for index in range(count + 1):
        if index % 2:
            first = ours()
            pairs.append((first, floor()))
        else:
            first = floor()
            pairs.append((ours(), first))
    return [list(values) for values in zip(*pairs[1:])]


def spread(values):
    """Median and quartiles."""
    low, middle, high = statistics.quantiles(values, n=4, method="inclusive") if len(values) > 1 else values * 3
    return middle, low, high


@dataclasses.dataclass
class Figure:
    name: str
    unit: str
    ours: list
    floor: list  # One for each of ours; or one for all, where it is a number and not measured.
    target: str  # In words.
    limit: typing.Callable  # Of the figure, whether it is met.

    def ratios(self):
        """Pair by pair; none against nothing."""
        floors = self.floor if len(self.floor) > 1 else self.floor * len(self.ours)
        return [ours / floor for ours, floor in zip(self.ours, floors) if floor]

    def median(self):
        return statistics.median(self.ours)

    def ratio(self):
        return statistics.median(self.ratios())

    def is_met(self):
        return self.limit(self)

    def cells(self):
        return [self.name, shown(self.ours, self.unit), shown(self.floor, self.unit) if self.floor else "",
                shown(self.ratios(), "×") if self.ratios() else "", self.target, self.verdict()]

    def verdict(self):
        if not self.target:
            return ""
        return "yes" if self.is_met() else "**no**"

    def record(self):
        return {"figure": self.name, "unit": self.unit, "ours": self.ours, "floor": self.floor,
                "ratios": self.ratios(), "target": self.target, "met": self.is_met()}


def shown(values, unit):
    middle, low, high = spread(values)
    numbers = f"{number(middle)} ({number(low)}–{number(high)})" if len(values) > 1 else number(middle)
    return f"{numbers} {unit}".rstrip()


def number(value):
    return f"{value:.0f}" if value >= 100 else f"{value:.3g}"


def at_most_times(most):
    """A target for a ratio, as the last two fields of a figure."""
    return f"≤ {most} ×", lambda figure: figure.ratio() <= most


TOLD_ONLY = "", lambda figure: True


def at_most(most, unit):
    return f"≤ {most} {unit}".rstrip(), lambda figure: figure.median() <= most


def at_most_on_average(most, unit):
    """For what comes now and then: a median would leave it out."""
    return f"≤ {most} {unit}", lambda figure: statistics.mean(figure.ours) <= most


def table(figures):
    """In Markdown."""
    rows = [["figure", "ours", "floor", "ratio", "target", "met"], ["---"] * 6] + [figure.cells() for figure in figures]
    return "\n".join("| " + " | ".join(row) + " |" for row in rows)
