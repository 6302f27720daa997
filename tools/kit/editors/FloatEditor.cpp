#include "tools/kit/editors/FloatEditor.h"

#include "tools/kit/editors/NumberSteps.h"
#include "tools/kit/editors/NumberText.h"

using CvxCPP::NodeRepresentation;
using CvxCPP::NodeValue;

namespace {

double floatOr(const NodeValue &value, double fallback)
{
    const auto *const number = std::get_if<double>(&value);
    return number ? *number : fallback;
}

FloatRange floatRange(const CvxCPP::NodeState *state)
{
    FloatRange range;
    if (!state)
        return range;
    range.minimum = floatOr(state->minimum, range.minimum);
    range.maximum = floatOr(state->maximum, range.maximum);
    range.increment = floatOr(state->increment, range.increment);
    return range;
}

} // namespace

FloatEditor::FloatEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent)
    : NumberEditor(info, client, parent)
{ }

QString FloatEditor::textOf(const NodeValue &value) const
{
    return floatText(floatOr(value, 0));
}

NodeValue FloatEditor::parse(const QString &text) const
{
    const std::optional<double> value = parseFloat(text);
    return value ? NodeValue(*value) : NodeValue();
}

NodeValue FloatEditor::nearest(const NodeValue &value) const
{
    return nearestValue(floatOr(value, 0), floatRange(state()));
}

NodeValue FloatEditor::stepped(const NodeValue &value, int steps) const
{
    const bool isLogarithmic = sliderScale() && sliderScale()->isLogarithmic();
    return steppedValue(floatOr(value, 0), steps, floatRange(state()), isLogarithmic);
}

double FloatEditor::toDouble(const NodeValue &value) const
{
    return floatOr(value, 0);
}

NodeValue FloatEditor::fromDouble(double value) const
{
    return value;
}

bool FloatEditor::wantsSlider() const
{
    return info().representation != NodeRepresentation::PureNumber;
}
