"""Defines figures, which are measured values with a floor and a target."""

import dataclasses
import statistics
import typing


def in_pairs(ours, floor, count):
    """Calls ours() and floor() `count` times each, in alternating order, and returns both lists of results. An
    additional first pair fills the caches and is not returned."""
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
    """Returns the median, the lower quartile and the upper quartile."""
    low, middle, high = statistics.quantiles(values, n=4, method="inclusive") if len(values) > 1 else values * 3
    return middle, low, high


@dataclasses.dataclass
class Figure:
    name: str
    unit: str
    ours: list
    floor: list  # One value per pair, or one constant.
    target: str  # The target as the table shows it.
    limit: typing.Callable  # Returns whether the figure meets its target.

    def ratios(self):
        """Returns the ratio of each pair whose floor is not 0."""
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


# Each of these functions, up to table(), returns a target: the last two fields of a figure.

def at_most_times(limit):
    return f"≤ {limit} ×", lambda figure: figure.ratio() <= limit


WITHOUT_TARGET = "", lambda figure: True


def at_most(limit, unit):
    return f"≤ {limit} {unit}".rstrip(), lambda figure: figure.median() <= limit


def at_least_times(limit):
    return f"≥ {limit} ×", lambda figure: figure.ratio() >= limit


def at_most_beyond(limit, unit):
    """Returns a target for the difference between a figure and its floor."""
    return (f"≤ floor + {limit} {unit}",
            lambda figure: statistics.median(ours - floor for ours, floor in zip(figure.ours, figure.floor)) <= limit)


def at_most_on_average(limit, unit):
    """Returns a target for rare events, which a median would ignore."""
    return f"≤ {limit} {unit}", lambda figure: statistics.mean(figure.ours) <= limit


def table(figures):
    """Returns the figures as a Markdown table."""
    rows = [["figure", "ours", "floor", "ratio", "target", "met"], ["---"] * 6] + [figure.cells() for figure in figures]
    return "\n".join("| " + " | ".join(row) + " |" for row in rows)
