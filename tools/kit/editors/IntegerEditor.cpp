#include "tools/kit/editors/IntegerEditor.h"

#include "tools/kit/editors/NumberSteps.h"
#include "tools/kit/editors/NumberText.h"

#include <algorithm>
#include <cmath>

using CvxCPP::NodeRepresentation;
using CvxCPP::NodeValue;

namespace {

std::int64_t integerOr(const NodeValue &value, std::int64_t fallback)
{
    const auto *const integer = std::get_if<std::int64_t>(&value);
    return integer ? *integer : fallback;
}

IntegerRange integerRange(const CvxCPP::NodeState *state)
{
    IntegerRange range;
    if (!state)
        return range;
    range.minimum = integerOr(state->minimum, range.minimum);
    range.maximum = integerOr(state->maximum, range.maximum);
    range.increment = std::max<std::int64_t>(1, integerOr(state->increment, 1));
    return range;
}

} // namespace

IntegerEditor::IntegerEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent)
    : NumberEditor(info, client, parent)
{ }

QString IntegerEditor::textOf(const NodeValue &value) const
{
    return integerText(integerOr(value, 0), info().representation);
}

NodeValue IntegerEditor::parse(const QString &text) const
{
    const std::optional<std::int64_t> value = parseInteger(text, info().representation);
    return value ? NodeValue(*value) : NodeValue();
}

NodeValue IntegerEditor::nearest(const NodeValue &value) const
{
    return nearestValue(integerOr(value, 0), integerRange(state()));
}

NodeValue IntegerEditor::stepped(const NodeValue &value, int steps) const
{
    return steppedValue(integerOr(value, 0), steps, integerRange(state()));
}

double IntegerEditor::toDouble(const NodeValue &value) const
{
    return static_cast<double>(integerOr(value, 0));
}

NodeValue IntegerEditor::fromDouble(double value) const
{
    return static_cast<std::int64_t>(std::llround(value));
}

bool IntegerEditor::wantsSlider() const
{
    return info().representation == NodeRepresentation::Linear
        || info().representation == NodeRepresentation::Logarithmic;
}
