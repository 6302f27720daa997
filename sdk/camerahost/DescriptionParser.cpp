#include "sdk/camerahost/DescriptionParser.h"

#include "sdk/camerahost/DescriptionElements.h"

#include <algorithm>
#include <cstring>
#include <expat.h>
#include <memory>
#include <new>

namespace {

constexpr std::size_t maxNodes = 200'000; // Real descriptions have at most some ten thousand.
constexpr std::size_t maxElements = 2'000'000;
constexpr std::size_t maxDepth = 64;

constexpr const char *rootElement = "RegisterDescription";

std::string attributeOf(const char **attributes, const char *name)
{
    for (; *attributes; attributes += 2) {
        if (std::strcmp(attributes[0], name) == 0)
            return std::string(withoutBlanks(attributes[1]));
    }
    return {};
}

/// Builds the description while Expat reads the document.
class DescriptionBuilder
{
public:
    explicit DescriptionBuilder(XML_Parser parser) : m_parser(parser) { }

    void startElement(const char *element, const char **attributes)
    {
        if (!m_problem.empty())
            return; // A stopped parser still calls the handlers of the current element.
        if (++m_elements > maxElements || m_levels.size() >= maxDepth) {
            fail(
                m_elements > maxElements ? "it has too many elements" : "its elements are nested too deeply");
            return;
        }
        m_text.clear();
        m_levels.push_back(levelOf(element, attributes));
    }

    void endElement()
    {
        if (!m_problem.empty())
            return;
        const Level level = std::move(m_levels.back());
        m_levels.pop_back();
        if (level.kind == LevelKind::Property)
            addProperty(level);
        else if (level.kind == LevelKind::Node || level.kind == LevelKind::StructEntry)
            finishNode(level.kind);
        else if (level.kind == LevelKind::Entry)
            finishEntry();
        else if (level.kind == LevelKind::Structure)
            m_structure = {};
        m_text.clear();
    }

    void addText(const char *text, int length)
    {
        if (!m_levels.empty() && m_levels.back().kind == LevelKind::Property)
            m_text.append(text, static_cast<std::size_t>(length));
    }

    void fail(const std::string &reason)
    {
        m_problem = reason;
        XML_StopParser(m_parser, XML_FALSE);
    }

    const std::string &problem() const { return m_problem; }
    bool hasRoot() const { return m_hasRoot; }
    Description &description() { return m_description; }

private:
    enum class LevelKind : std::uint8_t
    {
        Group, // The root element, or one that only groups nodes.
        Node,
        Structure,
        StructEntry,
        Entry,
        Property,
        Ignored
    };
    struct Level
    {
        LevelKind kind = LevelKind::Ignored;
        PropertyKind property{};
        std::string attribute;
        std::string offsetNode; // Node in the pOffset attribute of a pIndex element.
    };

    Level levelOf(const char *element, const char **attributes)
    {
        const LevelKind parent = m_levels.empty() ? LevelKind::Group : m_levels.back().kind;
        if (m_levels.empty()) {
            m_hasRoot = std::strcmp(element, rootElement) == 0;
            return {m_hasRoot ? LevelKind::Group : LevelKind::Ignored, {}, {}, {}};
        }
        if (parent == LevelKind::Ignored || parent == LevelKind::Property)
            return {};
        if (const auto property = propertyKindOf(element); property && parent != LevelKind::Group) {
            const bool isIndex = *property == PropertyKind::PIndex;
            return {LevelKind::Property, *property,
                attributeOf(attributes, isIndex ? "Offset" : attributeNameOf(*property)),
                isIndex ? attributeOf(attributes, "pOffset") : std::string()};
        }
        return {startNode(parent, element, attributes), {}, {}, {}};
    }

    /// Starts what the element stands for, if it is allowed in its parent.
    LevelKind startNode(LevelKind parent, const char *element, const char **attributes)
    {
        const bool isInGroup = parent == LevelKind::Group;
        if (isInGroup && std::strcmp(element, "Group") == 0)
            return LevelKind::Group;
        if (isInGroup && std::strcmp(element, "StructReg") == 0)
            return LevelKind::Structure;
        if (parent == LevelKind::Structure && std::strcmp(element, "StructEntry") == 0) {
            m_open.push_back({NodeKind::MaskedIntReg, attributeOf(attributes, "Name"), {}, {}});
            return LevelKind::StructEntry;
        }
        if (parent == LevelKind::Node && std::strcmp(element, "EnumEntry") == 0) {
            m_open.back().entries.push_back({attributeOf(attributes, "Name"), {}});
            return LevelKind::Entry;
        }
        const std::optional<NodeKind> kind = nodeKindOf(element);
        const bool isInnerFormula = parent == LevelKind::Node && kind == NodeKind::IntSwissKnife;
        if (!kind || !(isInGroup || isInnerFormula))
            return LevelKind::Ignored;
        m_open.push_back({*kind, attributeOf(attributes, "Name"), {}, {}});
        return LevelKind::Node;
    }

    void addProperty(const Level &level)
    {
        const LevelKind parent = m_levels.back().kind;
        PropertyList &properties = parent == LevelKind::Structure ? m_structure
            : parent == LevelKind::Entry                          ? m_open.back().entries.back().properties
                                                                  : m_open.back().properties;
        properties.add({level.property, std::string(withoutBlanks(m_text)), level.attribute});
        if (!level.offsetNode.empty())
            properties.add({PropertyKind::POffset, level.offsetNode, {}});
    }

    void finishNode(LevelKind kind)
    {
        NodeDescription node = std::move(m_open.back());
        m_open.pop_back();
        if (node.name.empty())
            return;
        if (kind == LevelKind::StructEntry)
            inherit(node);
        if (!m_open.empty()) // The result of a formula inside a register is part of its address.
            m_open.back().properties.add({PropertyKind::PAddress, node.name, {}});
        m_description.add(std::move(node));
        if (m_description.size() > maxNodes)
            fail("it has more than " + std::to_string(maxNodes) + " nodes");
    }

    /// Adds those properties of the structure that its entry does not have.
    void inherit(NodeDescription &node) const
    {
        const PropertyList own = node.properties;
        for (const NodeProperty &property : m_structure) {
            if (!own.has(property.kind))
                node.properties.add(property);
        }
    }

    void finishEntry()
    {
        EntryDescription &entry = m_open.back().entries.back();
        const std::string symbolic = entry.properties.text(PropertyKind::Symbolic);
        if (!symbolic.empty())
            entry.name = symbolic;
        if (entry.name.empty())
            m_open.back().entries.pop_back();
    }

    const XML_Parser m_parser;
    Description m_description;
    std::vector<Level> m_levels; // The open elements.
    std::vector<NodeDescription> m_open; // The nodes among them.
    PropertyList m_structure; // Properties of the open structure.
    std::string m_text; // Text of the open property.
    std::string m_problem;
    std::size_t m_elements = 0;
    bool m_hasRoot = false;
};

void onStartElement(void *builder, const char *element, const char **attributes)
{
    static_cast<DescriptionBuilder *>(builder)->startElement(element, attributes);
}

void onEndElement(void *builder, const char *)
{
    static_cast<DescriptionBuilder *>(builder)->endElement();
}

void onText(void *builder, const char *text, int length)
{
    static_cast<DescriptionBuilder *>(builder)->addText(text, length);
}

void onEntity(void *builder, const char *, int, const char *, int, const char *, const char *, const char *,
    const char *)
{
    static_cast<DescriptionBuilder *>(builder)->fail("it declares entities");
}

/// Parses the document in the encoding that it declares, or in `encoding`.
std::variant<Description, DescriptionProblem> parseEncoded(const std::string &xml, const char *encoding)
{
    const std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser(
        XML_ParserCreate(encoding), XML_ParserFree);
    if (!parser)
        throw std::bad_alloc();
    DescriptionBuilder builder(parser.get());
    XML_SetUserData(parser.get(), &builder);
    XML_SetElementHandler(parser.get(), onStartElement, onEndElement);
    XML_SetCharacterDataHandler(parser.get(), onText);
    XML_SetEntityDeclHandler(parser.get(), onEntity);
    if (XML_Parse(parser.get(), xml.data(), static_cast<int>(xml.size()), XML_TRUE) == XML_STATUS_OK) {
        if (builder.hasRoot())
            return std::move(builder.description());
        return DescriptionProblem{std::string("its root element is not ") + rootElement};
    }
    if (!builder.problem().empty())
        return DescriptionProblem{builder.problem()};
    const XML_Error error = XML_GetErrorCode(parser.get());
    // Some descriptions contain characters such as the degree sign in another encoding than they declare.
    if (!encoding && (error == XML_ERROR_INVALID_TOKEN || error == XML_ERROR_UNKNOWN_ENCODING))
        return parseEncoded(xml, "ISO-8859-1");
    return DescriptionProblem{
        "line " + std::to_string(XML_GetCurrentLineNumber(parser.get())) + ": " + XML_ErrorString(error)};
}

} // namespace

std::variant<Description, DescriptionProblem> parseDescription(const std::string &xml)
{
    return parseEncoded(xml, nullptr);
}
