#include <arv.h>

#include "sdk/camerahost/FormulaCheck.h"

#include "sdk/text/Utf8.h"

#include <array>
#include <memory>

namespace {

constexpr int divisionByZero = 11; // The library does not publish its codes.

struct FormulaElement
{
    PropertyKind kind;
    const char *input; // The variable that is not a reference.
};
constexpr std::array<FormulaElement, 3> formulaElements{
    {{PropertyKind::Formula, nullptr}, {PropertyKind::FormulaFrom, "TO"}, {PropertyKind::FormulaTo, "FROM"}}};

using Evaluator = std::unique_ptr<ArvEvaluator, void (*)(void *)>;

/// Returns an evaluator of the formula that knows everything except the values of variables.
Evaluator makeEvaluator(const NodeDescription &node, const std::string &formula)
{
    Evaluator evaluator(arv_evaluator_new(formula.c_str()), g_object_unref);
    for (const NodeProperty &property : node.properties) {
        if (property.kind == PropertyKind::Constant)
            arv_evaluator_set_constant(evaluator.get(), property.attribute.c_str(), property.text.c_str());
        else if (property.kind == PropertyKind::Expression)
            arv_evaluator_set_sub_expression(
                evaluator.get(), property.attribute.c_str(), property.text.c_str());
    }
    return evaluator;
}

/// Evaluates and returns the error, or null.
std::unique_ptr<GError, void (*)(GError *)> evaluate(ArvEvaluator *evaluator, NodeKind kind)
{
    GError *error = nullptr;
    if (kind == NodeKind::IntSwissKnife) // The engine computes an IntConverter with doubles.
        arv_evaluator_evaluate_as_int64(evaluator, &error);
    else
        arv_evaluator_evaluate_as_double(evaluator, &error);
    return {error, g_error_free};
}

std::string describe(const NodeDescription &node, const GError &error)
{
    return "the formula of \"" + node.name + "\" cannot be computed: " + toPrintable(error.message);
}

} // namespace

std::optional<std::string> formulaProblem(const NodeDescription &node)
{
    for (const FormulaElement &element : formulaElements) {
        const NodeProperty *const formula = node.properties.find(element.kind);
        if (!formula)
            continue;
        const Evaluator evaluator = makeEvaluator(node, formula->text);
        for (const NodeProperty &property : node.properties) {
            if (property.kind == PropertyKind::PVariable)
                arv_evaluator_set_int64_variable(evaluator.get(), property.attribute.c_str(), 1);
        }
        if (element.input)
            arv_evaluator_set_int64_variable(evaluator.get(), element.input, 1);
        const auto error = evaluate(evaluator.get(), node.kind);
        if (error && error->code != divisionByZero)
            return describe(node, *error);
    }
    return std::nullopt;
}

bool canDivide(const NodeDescription &node)
{
    for (const NodeProperty &property : node.properties) {
        const bool isFormula = property.kind == PropertyKind::Formula
            || property.kind == PropertyKind::FormulaFrom || property.kind == PropertyKind::Expression;
        if (isFormula && property.text.find_first_of("/%") != std::string::npos)
            return true;
    }
    return false;
}

std::optional<std::string> currentFormulaProblem(const NodeDescription &node, const NumberReader &readNumber)
{
    const bool isConverter = node.properties.has(PropertyKind::FormulaFrom);
    const Evaluator evaluator = makeEvaluator(
        node, node.properties.text(isConverter ? PropertyKind::FormulaFrom : PropertyKind::Formula));
    const auto setVariable = [&](const std::string &name, const std::string &target) {
        const std::optional<Number> value = readNumber(target);
        if (!value)
            return;
        if (const auto *const integer = std::get_if<std::int64_t>(&*value))
            arv_evaluator_set_int64_variable(evaluator.get(), name.c_str(), *integer);
        else
            arv_evaluator_set_double_variable(evaluator.get(), name.c_str(), std::get<double>(*value));
    };
    for (const NodeProperty &property : node.properties) {
        if (property.kind == PropertyKind::PVariable)
            setVariable(property.attribute, property.text);
    }
    if (isConverter)
        setVariable("TO", node.properties.text(PropertyKind::PValue));
    const auto error = evaluate(evaluator.get(), node.kind);
    if (!error)
        return std::nullopt;
    return describe(node, *error);
}
