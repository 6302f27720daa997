#include "tools/kit/measure/focus/FocusText.h"

#include <array>
#include <cmath>

namespace {
/// The texts for one of eight directions, from the right clockwise.
struct Direction
{
    const char *name;
    const char *position;
    const char *time;
};

constexpr std::array<Direction, 8> directions{{
    {"right",
        QT_TRANSLATE_NOOP(
            "Sentence", "The right edge is sharp at a higher position than the left edge, by %1."),
        QT_TRANSLATE_NOOP("Sentence", "The left edge became sharp before the right edge, by %1 s.")},
    {"lower right",
        QT_TRANSLATE_NOOP("Sentence",
            "The lower right corner is sharp at a higher position than the upper left corner, by %1."),
        QT_TRANSLATE_NOOP(
            "Sentence", "The upper left corner became sharp before the lower right corner, by %1 s.")},
    {"lower",
        QT_TRANSLATE_NOOP(
            "Sentence", "The lower edge is sharp at a higher position than the upper edge, by %1."),
        QT_TRANSLATE_NOOP("Sentence", "The upper edge became sharp before the lower edge, by %1 s.")},
    {"lower left",
        QT_TRANSLATE_NOOP("Sentence",
            "The lower left corner is sharp at a higher position than the upper right corner, by %1."),
        QT_TRANSLATE_NOOP(
            "Sentence", "The upper right corner became sharp before the lower left corner, by %1 s.")},
    {"left",
        QT_TRANSLATE_NOOP(
            "Sentence", "The left edge is sharp at a higher position than the right edge, by %1."),
        QT_TRANSLATE_NOOP("Sentence", "The right edge became sharp before the left edge, by %1 s.")},
    {"upper left",
        QT_TRANSLATE_NOOP("Sentence",
            "The upper left corner is sharp at a higher position than the lower right corner, by %1."),
        QT_TRANSLATE_NOOP(
            "Sentence", "The lower right corner became sharp before the upper left corner, by %1 s.")},
    {"upper",
        QT_TRANSLATE_NOOP(
            "Sentence", "The upper edge is sharp at a higher position than the lower edge, by %1."),
        QT_TRANSLATE_NOOP("Sentence", "The lower edge became sharp before the upper edge, by %1 s.")},
    {"upper right",
        QT_TRANSLATE_NOOP("Sentence",
            "The upper right corner is sharp at a higher position than the lower left corner, by %1."),
        QT_TRANSLATE_NOOP(
            "Sentence", "The lower left corner became sharp before the upper right corner, by %1 s.")},
}};

const Direction &directionAt(double angle)
{
    constexpr double step = 45;
    const auto index = static_cast<std::size_t>(std::lround(angle / step)) % directions.size();
    return directions.at(index);
}
} // namespace

Sentence adviceSentence(FocusHistory::Advice advice)
{
    switch (advice) {
    case FocusHistory::Advice::None:
        return {};
    case FocusHistory::Advice::Turn:
        return {QT_TRANSLATE_NOOP("Sentence",
            "Turn the lens slowly in one direction, until the picture has become blurred again.")};
    case FocusHistory::Advice::KeepTurning:
        return {QT_TRANSLATE_NOOP("Sentence", "Keep turning in this direction.")};
    case FocusHistory::Advice::TurnBack:
        return {QT_TRANSLATE_NOOP("Sentence", "Turn back: the peak lies in the other direction.")};
    case FocusHistory::Advice::Done:
        return {QT_TRANSLATE_NOOP("Sentence", "The picture is as sharp as it gets. Lock the lens.")};
    }
    return {};
}

Sentence movementSentence()
{
    return {QT_TRANSLATE_NOOP("Sentence",
        "The scene moves, so the regions' shares also change with what they show. Let it stand still to "
        "compare "
        "the regions.")};
}

Sentence bestPositionSentence(double best, double position, const FocusAxis &axis)
{
    const double distance = axis.nearest(best) - position;
    const SentenceNumber there{best, axis.decimals() + 1};
    const SentenceNumber way{std::abs(distance), axis.decimals()};
    if (distance == 0)
        return {QT_TRANSLATE_NOOP("Sentence", "The best position is %1. The lens is there."), {there}};
    return {distance > 0
            ? QT_TRANSLATE_NOOP("Sentence", "The best position is %1: move the lens up by %2.")
            : QT_TRANSLATE_NOOP("Sentence", "The best position is %1: move the lens down by %2."),
        {there, way}};
}

Sentence noTiltSentence()
{
    return {QT_TRANSLATE_NOOP("Sentence",
        "Too few regions became sharp and blurred again to tell whether the focus is tilted. Point the "
        "camera "
        "at something with edges all over the picture, and go through the sharpest position once more.")};
}

Sentence tiltSentence(const FocusSurface &surface, const SurfaceUnit &unit)
{
    if (!surface.isTilted())
        return {QT_TRANSLATE_NOOP("Sentence", "The focus is not tilted.")};
    const Direction &direction = directionAt(surface.angle());
    return {unit.isTime ? direction.time : direction.position,
        {SentenceNumber{surface.tilt(), unit.isTime ? 2 : unit.decimals}}};
}

Sentence curvatureSentence(const FocusSurface &surface, const SurfaceUnit &unit)
{
    if (surface.curvature == 0)
        return {};
    const SentenceNumber size{std::abs(surface.curvature), unit.isTime ? 2 : unit.decimals};
    if (unit.isTime)
        return {surface.curvature > 0
                ? QT_TRANSLATE_NOOP("Sentence", "The centre became sharp before the corners, by %1 s.")
                : QT_TRANSLATE_NOOP("Sentence", "The corners became sharp before the centre, by %1 s."),
            {size}};
    return {surface.curvature > 0 ? QT_TRANSLATE_NOOP(
                "Sentence", "The corners are sharp at a higher position than the centre, by %1.")
                                  : QT_TRANSLATE_NOOP("Sentence",
                                      "The corners are sharp at a lower position than the centre, by %1."),
        {size}};
}

std::string directionName(double angle)
{
    return directionAt(angle).name;
}

std::vector<GridCorner> gridCorners(const FocusGrid &grid)
{
    const auto columns = static_cast<std::size_t>(grid.columns);
    if (grid.rows == 1)
        return {{"left", 0}, {"right", columns - 1}};
    return {{"upper left", 0}, {"upper right", columns - 1}, {"lower left", grid.size() - columns},
        {"lower right", grid.size() - 1}};
}
