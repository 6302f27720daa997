#include <arv.h>

#include "sdk/camerahost/NodeEngine.h"

#include "sdk/camerahost/EngineDocument.h"
#include "sdk/camerahost/NodeChecks.h"
#include "sdk/camerahost/PortFileReader.h"
#include "sdk/text/Utf8.h"

#include <cctype>
#include <cmath>
#include <limits>
#include <mutex>

namespace {

constexpr char tooLarge[] = "the number is too large to be converted exactly";

/// Parses the document. The parser of the engine has a state that all threads share.
ArvGc *makeEngine(ArvRegisterDevice *device, const std::string &document)
{
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    return arv_gc_new(ARV_DEVICE(device), document.data(), document.size());
}

bool isZero(const Number &number)
{
    return std::visit([](auto value) { return !(value < 0) && !(value > 0); }, number);
}

/// Returns true if the number is an integer that a double holds exactly; the converters compute with doubles.
bool isExactAsDouble(const Number &number)
{
    constexpr std::int64_t limit = std::int64_t(1) << 53;
    const auto *const integer = std::get_if<std::int64_t>(&number);
    return !integer || (*integer >= -limit && *integer <= limit);
}

std::int64_t rounded(double value)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    if (std::isnan(value))
        return 0;
    return value >= limit ? std::numeric_limits<std::int64_t>::max()
        : value < -limit  ? std::numeric_limits<std::int64_t>::min()
                          : static_cast<std::int64_t>(std::round(value));
}

} // namespace

std::string AccessProblem::sentence() const
{
    std::string sentence = text + '.';
    sentence[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(sentence[0])));
    return sentence;
}

NodeEngine::NodeEngine(RegisterPort &port, const Description &description, const NodeReferences &references)
    : m_description(description),
      m_references(references),
      m_device(makeRegisterDevice(port, m_lastProblem)),
      m_parsedEngine(std::async([device = m_device.get(), &description, &references] {
          return EnginePointer(makeEngine(device, makeEngineDocument(description, references)));
      })),
      m_nodes(description.size())
{
    // The policies stay off: the register cache returns outdated values, and the checks of limits and access
    // reject valid values of some registers. The callers check both.
}

ArvGc *NodeEngine::engine()
{
    if (m_parsedEngine.valid())
        m_engine = m_parsedEngine.get();
    return m_engine.get();
}

ArvGcNode *NodeEngine::find(NodeIndex node)
{
    ArvGcNode *&found = m_nodes[node];
    if (!found && engine())
        found = arv_gc_get_node(engine(), m_description[node].name.c_str());
    return found;
}

/// Calls a function of the engine. The value is distrusted if any access on the way has failed.
template <typename Value, typename Call>
AccessResult<Value> NodeEngine::call(NodeIndex node, const Call &call)
{
    if (!m_references.isUsable(node))
        return AccessProblem{m_references.problem(node)};
    ArvGcNode *const found = find(node);
    if (!found)
        return AccessProblem{"the node has no value"};
    if (m_references.hasVariableLength(node)) {
        if (auto problem = checkLengths(node))
            return *std::move(problem);
    }
    m_lastProblem.reset();
    GError *error = nullptr;
    Value value = call(found, &error);
    const std::unique_ptr<GError, void (*)(GError *)> owner(error, [](GError *e) { g_clear_error(&e); });
    if (m_lastProblem)
        return AccessProblem{toText(*m_lastProblem)};
    if (error)
        return AccessProblem{toPrintable(error->message)};
    return value;
}

template <typename Call>
std::optional<AccessProblem> NodeEngine::callToWrite(NodeIndex node, const Call &write)
{
    const auto result = call<bool>(node, [&write](ArvGcNode *found, GError **error) {
        write(found, error);
        return true;
    });
    if (const auto *const problem = std::get_if<AccessProblem>(&result))
        return *problem;
    return std::nullopt;
}

/// Checks the lengths of the registers on which the value depends, as far as other nodes contain them. The
/// engine would abort the process because of a length that it cannot allocate.
std::optional<AccessProblem> NodeEngine::checkLengths(NodeIndex node)
{
    for (const NodeIndex source : m_references.valueSources(node)) {
        const NodeProperty *const length = m_description[source].properties.find(PropertyKind::PLength);
        if (!length)
            continue;
        const auto result = readInteger(*m_description.find(length->text));
        if (const auto *const problem = std::get_if<AccessProblem>(&result))
            return *problem;
        const std::int64_t bytes = std::get<std::int64_t>(result);
        if (!isValidLength(m_description[source].kind, bytes))
            return AccessProblem{'"' + m_description[source].name + "\" cannot have a length of "
                + std::to_string(bytes) + " bytes"};
    }
    return std::nullopt;
}

/// Finds a formula that divides by zero. The engine then computes 0 without an error.
std::optional<AccessProblem> NodeEngine::checkFormulas(NodeIndex node)
{
    const NumberReader readSource = [this](const std::string &name) -> std::optional<Number> {
        const auto result = readUnchecked(*m_description.find(name));
        const auto *const number = std::get_if<Number>(&result);
        return number ? std::optional(*number) : std::nullopt;
    };
    for (const NodeIndex source : m_references.valueSources(node)) {
        if (!isFormula(m_description[source].kind) || !canDivide(m_description[source]))
            continue;
        if (auto problem = currentFormulaProblem(m_description[source], readSource))
            return AccessProblem{*std::move(problem)};
    }
    return std::nullopt;
}

AccessResult<Number> NodeEngine::readUnchecked(NodeIndex node)
{
    if (isFloat(m_description[node].kind))
        return call<Number>(node, [](ArvGcNode *found, GError **error) -> Number {
            return arv_gc_float_get_value(ARV_GC_FLOAT(found), error);
        });
    if (isInteger(m_description[node].kind)) {
        auto number = call<Number>(node, [](ArvGcNode *found, GError **error) -> Number {
            return std::int64_t(arv_gc_integer_get_value(ARV_GC_INTEGER(found), error));
        });
        const auto *const value = std::get_if<Number>(&number);
        if (value && m_description[node].kind == NodeKind::IntConverter && !isExactAsDouble(*value))
            return AccessProblem{tooLarge};
        return number;
    }
    return AccessProblem{'"' + m_description[node].name + "\" is no number"};
}

AccessResult<Number> NodeEngine::readNumber(NodeIndex node)
{
    auto number = readUnchecked(node);
    const auto *const value = std::get_if<Number>(&number);
    if (value && isZero(*value) && m_references.canDivide(node)) {
        if (auto problem = checkFormulas(node))
            return *std::move(problem);
    }
    return number;
}

AccessResult<std::int64_t> NodeEngine::readInteger(NodeIndex node)
{
    const auto number = readNumber(node);
    if (const auto *const problem = std::get_if<AccessProblem>(&number))
        return *problem;
    const Number &value = std::get<Number>(number);
    if (const auto *const integer = std::get_if<std::int64_t>(&value))
        return *integer;
    return rounded(std::get<double>(value));
}

AccessResult<std::string> NodeEngine::readText(NodeIndex node)
{
    return call<std::string>(node, [](ArvGcNode *found, GError **error) {
        const char *const text = arv_gc_string_get_value(ARV_GC_STRING(found), error);
        return toValidUtf8(text ? text : "");
    });
}

AccessResult<std::vector<std::uint8_t>> NodeEngine::readBytes(NodeIndex node)
{
    const auto length = readLength(node);
    if (const auto *const problem = std::get_if<AccessProblem>(&length))
        return *problem;
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(std::get<std::int64_t>(length)));
    return call<std::vector<std::uint8_t>>(node, [&bytes](ArvGcNode *found, GError **error) {
        arv_gc_register_get(ARV_GC_REGISTER(found), bytes.data(), bytes.size(), error);
        return std::move(bytes);
    });
}

std::optional<AccessProblem> NodeEngine::writeNumber(NodeIndex node, Number value)
{
    for (const NodeIndex link : valueChain(node)) {
        const NodeKind kind = m_description[link].kind;
        if (kind == NodeKind::SwissKnife || kind == NodeKind::IntSwissKnife)
            return AccessProblem{'"' + m_description[link].name + "\" is computed from other values"};
        if (kind == NodeKind::IntConverter && !isExactAsDouble(value))
            return AccessProblem{tooLarge};
    }
    if (isFloat(m_description[node].kind)) {
        const double number = std::visit([](auto n) { return static_cast<double>(n); }, value);
        return callToWrite(node, [number](ArvGcNode *found, GError **error) {
            arv_gc_float_set_value(ARV_GC_FLOAT(found), number, error);
        });
    }
    const auto *const integer = std::get_if<std::int64_t>(&value);
    const std::int64_t number = integer ? *integer : rounded(std::get<double>(value));
    return callToWrite(node, [number](ArvGcNode *found, GError **error) {
        arv_gc_integer_set_value(ARV_GC_INTEGER(found), number, error);
    });
}

std::optional<AccessProblem> NodeEngine::writeText(NodeIndex node, const std::string &value)
{
    return callToWrite(node, [&value](ArvGcNode *found, GError **error) {
        arv_gc_string_set_value(ARV_GC_STRING(found), value.c_str(), error);
    });
}

std::optional<AccessProblem> NodeEngine::writeBytes(NodeIndex node, const std::vector<std::uint8_t> &value)
{
    return callToWrite(node, [&value](ArvGcNode *found, GError **error) {
        arv_gc_register_set(ARV_GC_REGISTER(found), value.data(), value.size(), error);
    });
}

std::vector<NodeIndex> NodeEngine::valueChain(NodeIndex node)
{
    std::vector<NodeIndex> chain{node};
    if (!m_references.isUsable(node))
        return chain; // The chain of an unusable node may have no end.
    while (const auto target = valueTarget(chain.back()))
        chain.push_back(*target);
    return chain;
}

std::optional<NodeIndex> NodeEngine::valueTarget(NodeIndex node)
{
    const PropertyList &properties = m_description[node].properties;
    if (const NodeProperty *const target = properties.find(PropertyKind::PValue))
        return m_description.find(target->text);
    if (!properties.has(PropertyKind::PValueIndexed) && !properties.has(PropertyKind::PValueDefault))
        return std::nullopt;
    const auto indexNode = m_description.find(properties.text(PropertyKind::PIndex));
    if (!indexNode)
        return std::nullopt;
    const auto result = readInteger(*indexNode);
    const auto *const index = std::get_if<std::int64_t>(&result);
    if (!index)
        return std::nullopt;
    for (const NodeProperty &property : properties) {
        const bool isIndexed
            = property.kind == PropertyKind::PValueIndexed || property.kind == PropertyKind::ValueIndexed;
        if (isIndexed && parseInteger(property.attribute) == *index)
            return m_description.find(property.text); // Nothing if the value is a constant.
    }
    return m_description.find(properties.text(PropertyKind::PValueDefault));
}

AccessResult<std::uint64_t> NodeEngine::readAddress(NodeIndex node)
{
    return call<std::uint64_t>(node, [](ArvGcNode *found, GError **error) {
        return std::uint64_t(arv_gc_register_get_address(ARV_GC_REGISTER(found), error));
    });
}

AccessResult<std::int64_t> NodeEngine::readLength(NodeIndex node)
{
    return call<std::int64_t>(node, [](ArvGcNode *found, GError **error) {
        return static_cast<std::int64_t>(arv_gc_register_get_length(ARV_GC_REGISTER(found), error));
    });
}

AccessResult<Number> NodeEngine::readMinimum(NodeIndex node)
{
    return call<Number>(node, [](ArvGcNode *found, GError **error) -> Number {
        if (ARV_IS_GC_FLOAT(found))
            return arv_gc_float_get_min(ARV_GC_FLOAT(found), error);
        return std::int64_t(arv_gc_integer_get_min(ARV_GC_INTEGER(found), error));
    });
}

AccessResult<Number> NodeEngine::readMaximum(NodeIndex node)
{
    return call<Number>(node, [](ArvGcNode *found, GError **error) -> Number {
        if (ARV_IS_GC_FLOAT(found))
            return arv_gc_float_get_max(ARV_GC_FLOAT(found), error);
        return std::int64_t(arv_gc_integer_get_max(ARV_GC_INTEGER(found), error));
    });
}
