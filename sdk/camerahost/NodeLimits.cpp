#include "sdk/camerahost/NodeLimits.h"

#include "sdk/camerahost/RegisterLayout.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// The engine computes the limits of a converter twice for each converter behind it.
constexpr int maxConverters = 4;

void raise(std::optional<long double> &minimum, std::optional<long double> value)
{
    if (value && (!minimum || *value > *minimum))
        minimum = value;
}

void lower(std::optional<long double> &maximum, std::optional<long double> value)
{
    if (value && (!maximum || *value < *maximum))
        maximum = value;
}

long double toLongDouble(const Number &number)
{
    return std::visit([](auto value) { return static_cast<long double>(value); }, number);
}

/// Infinity is no limit.
std::optional<long double> ifFinite(long double number)
{
    return std::isfinite(number) ? std::optional(number) : std::nullopt;
}

bool isConverter(NodeKind kind)
{
    return kind == NodeKind::Converter || kind == NodeKind::IntConverter;
}

/// Returns a limit of a converter. The engine returns the largest numbers for a limit that does not exist.
std::optional<long double> converterLimit(const AccessResult<Number> &result)
{
    const auto *const number = std::get_if<Number>(&result);
    if (!number) // The formula may be undefined there.
        return std::nullopt;
    using Integers = std::numeric_limits<std::int64_t>;
    const auto *const integer = std::get_if<std::int64_t>(number);
    if (integer && (*integer == Integers::min() || *integer == Integers::max()))
        return std::nullopt;
    const long double limit = toLongDouble(*number);
    return std::abs(limit) < std::numeric_limits<double>::max() ? std::optional(limit) : std::nullopt;
}

} // namespace

Limits NodeLimits::read(NodeIndex node)
{
    Limits limits;
    const std::vector<NodeIndex> chain = m_engine.valueChain(node);
    for (const NodeIndex link : chain) {
        const NodeDescription &description = m_description[link];
        narrow(limits, description);
        addRegisterLimits(limits, description);
        if (!isConverter(description.kind))
            continue;
        const auto converters = std::count_if(chain.begin(), chain.end(),
            [this](NodeIndex other) { return isConverter(m_description[other].kind); });
        if (converters <= maxConverters)
            addConverterLimits(limits, link);
        break; // The limits behind a converter are those of another quantity.
    }
    return limits;
}

void NodeLimits::narrow(Limits &limits, const NodeDescription &node)
{
    raise(limits.minimum, stated(node, PropertyKind::Minimum, PropertyKind::PMinimum, limits.problem));
    lower(limits.maximum, stated(node, PropertyKind::Maximum, PropertyKind::PMaximum, limits.problem));
    if (!limits.increment)
        limits.increment = stated(node, PropertyKind::Increment, PropertyKind::PIncrement, limits.problem);
    if (limits.increment && !(*limits.increment > 0))
        limits.increment.reset();
}

/// Returns a limit that is a constant or the value of another node.
std::optional<long double> NodeLimits::stated(
    const NodeDescription &node, PropertyKind constant, PropertyKind reference, std::string &problem)
{
    if (const NodeProperty *const text = node.properties.find(constant)) {
        const auto integer = parseInteger(text->text);
        const auto number = parseFloat(text->text);
        if (integer)
            return static_cast<long double>(*integer);
        return number ? ifFinite(*number) : std::nullopt;
    }
    const NodeProperty *const target = node.properties.find(reference);
    if (!target)
        return std::nullopt;
    const auto index = m_description.find(target->text);
    const AccessResult<Number> result = index
        ? m_engine.readNumber(*index)
        : AccessProblem{"the register description is wrong: there is no node \"" + target->text + '"'};
    if (const auto *const failure = std::get_if<AccessProblem>(&result)) {
        if (problem.empty())
            problem = AccessProblem{"a limit of \"" + node.name + "\" cannot be read: " + failure->text}
                          .sentence();
        return std::nullopt;
    }
    return ifFinite(toLongDouble(std::get<Number>(result)));
}

void NodeLimits::addRegisterLimits(Limits &limits, const NodeDescription &node)
{
    if (node.kind != NodeKind::IntReg && node.kind != NodeKind::MaskedIntReg)
        return;
    const auto length = fixedLength(node);
    const auto bits = length ? bitRange(node, static_cast<std::uint32_t>(*length)) : std::nullopt;
    if (!bits)
        return;
    const int count = static_cast<int>(bits->highest - bits->lowest) + 1;
    if (count == 64)
        return; // Every integer is allowed; an unsigned one keeps its bits.
    const bool hasSign = isSigned(node);
    raise(limits.minimum, hasSign ? -std::ldexp(1.0L, count - 1) : 0.0L);
    lower(limits.maximum, std::ldexp(1.0L, hasSign ? count - 1 : count) - 1);
}

void NodeLimits::addConverterLimits(Limits &limits, NodeIndex node)
{
    raise(limits.minimum, converterLimit(m_engine.readMinimum(node)));
    lower(limits.maximum, converterLimit(m_engine.readMaximum(node)));
}
