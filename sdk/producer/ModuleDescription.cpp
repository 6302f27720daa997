#include "sdk/producer/ModuleDescription.h"

#include <algorithm>
#include <cstdio>
#include <sstream>

namespace {

constexpr std::uint64_t firstRegister = 0x1000;
constexpr std::uint64_t registerStride = 0x1000;
constexpr std::size_t textSize = 0x1000; // A path fits.
constexpr std::size_t numberSize = 8;

/// Writes the nodes of a register description. Names and tool tips need no escaping.
class DescriptionWriter
{
public:
    explicit DescriptionWriter(const PortDescription &port) : m_port(port) { }

    std::string nodes(const std::vector<ModuleFeature> &features)
    {
        writeCategories(features);
        for (std::size_t index = 0; index < features.size(); ++index)
            writeFeature(features[index], registerAddress(index), features);
        m_out << "  <Port Name=\"" << m_port.portName << "\"></Port>\n";
        return m_out.str();
    }

private:
    using Kind = ModuleFeature::Kind;

    void writeCategories(const std::vector<ModuleFeature> &features);
    void writeFeature(
        const ModuleFeature &feature, std::uint64_t address, const std::vector<ModuleFeature> &features);
    void writeCount(const ModuleFeature &selector);
    void begin(const char *element, const ModuleFeature &feature);
    void writeRegister(const ModuleFeature &feature, std::uint64_t address);
    void element(const std::string &name, const std::string &content)
    {
        m_out << "    <" << name << '>' << content << "</" << name << ">\n";
    }

    const PortDescription &m_port;
    std::ostringstream m_out;
};

void DescriptionWriter::writeCategories(const std::vector<ModuleFeature> &features)
{
    std::vector<std::string> categories;
    for (const ModuleFeature &feature : features)
        if (!feature.category.empty()
            && std::find(categories.begin(), categories.end(), feature.category) == categories.end())
            categories.push_back(feature.category);
    m_out << "  <Category Name=\"Root\" NameSpace=\"Standard\">\n";
    for (const std::string &category : categories)
        element("pFeature", category);
    m_out << "  </Category>\n";
    for (const std::string &category : categories) {
        m_out << "  <Category Name=\"" << category << "\" NameSpace=\"Standard\">\n";
        for (const ModuleFeature &feature : features)
            if (feature.category == category)
                element("pFeature", feature.name);
        m_out << "  </Category>\n";
    }
}

void DescriptionWriter::begin(const char *element, const ModuleFeature &feature)
{
    m_out << "  <" << element << " Name=\"" << feature.name << "\" NameSpace=\"Standard\">\n";
    this->element("ToolTip", feature.toolTip);
    this->element("Visibility", feature.category.empty() ? "Invisible" : "Expert");
    const std::string &selector = feature.kind == Kind::Selector ? feature.name : feature.selectedBy;
    if (!selector.empty())
        this->element("pIsAvailable", selector + "IsAvailable");
}

/// Writes the elements that all kinds of registers have in common.
void DescriptionWriter::writeRegister(const ModuleFeature &feature, std::uint64_t address)
{
    char text[32];
    std::snprintf(text, sizeof text, "0x%llX", static_cast<unsigned long long>(address));
    element("Address", text);
    element("Length", std::to_string(registerSize(feature)));
    element("AccessMode", feature.write ? "RW" : "RO");
    element("pPort", m_port.portName);
    element("Cachable", "NoCache");
}

void DescriptionWriter::writeFeature(
    const ModuleFeature &feature, std::uint64_t address, const std::vector<ModuleFeature> &features)
{
    if (feature.kind == Kind::Text) {
        begin("StringReg", feature);
        writeRegister(feature, address);
        m_out << "  </StringReg>\n";
        return;
    }
    const std::string value = feature.name + "Value";
    if (feature.kind == Kind::Choice) {
        begin("Enumeration", feature);
        for (std::size_t i = 0; i < feature.entries.size(); ++i)
            m_out << "    <EnumEntry Name=\"" << feature.entries[i] << "\" NameSpace=\"Standard\"><Value>"
                  << i << "</Value></EnumEntry>\n";
        element("pValue", value);
        m_out << "  </Enumeration>\n";
    } else if (feature.kind == Kind::Command) {
        begin("Command", feature);
        element("pValue", value);
        element("CommandValue", "1");
        m_out << "  </Command>\n";
    } else {
        begin("Integer", feature);
        element("pValue", value);
        element("Min", "0");
        if (feature.kind == Kind::Selector)
            element("pMax", feature.name + "Max");
        for (const ModuleFeature &selected : features)
            if (selected.selectedBy == feature.name)
                element("pSelected", selected.name);
        m_out << "  </Integer>\n";
        if (feature.kind == Kind::Selector)
            writeCount(feature);
    }
    m_out << "  <IntReg Name=\"" << value << "\">\n";
    writeRegister(feature, address);
    element("Sign", "Unsigned");
    element("Endianess", "LittleEndian");
    m_out << "  </IntReg>\n";
}

/// Writes the largest value of a selector, and whether the selector has any value.
void DescriptionWriter::writeCount(const ModuleFeature &selector)
{
    for (const auto &[suffix, formula] : {std::pair("Max", "COUNT - 1"), {"IsAvailable", "COUNT &gt; 0"}}) {
        m_out << "  <IntSwissKnife Name=\"" << selector.name << suffix << "\">\n"
              << "    <pVariable Name=\"COUNT\">" << selector.countedBy << "</pVariable>\n";
        element("Formula", formula);
        m_out << "  </IntSwissKnife>\n";
    }
}

/// Returns a GUID that depends on the text, because consumers keep descriptions by their GUID.
std::string guidOf(const std::string &text)
{
    std::uint64_t parts[2] = {0xCBF29CE484222325, 0x84222325CBF29CE4};
    for (std::uint64_t &part : parts)
        for (const char character : text)
            part = (part ^ static_cast<unsigned char>(character)) * 0x100000001B3;
    char guid[40];
    std::snprintf(guid, sizeof guid, "%08X-%04X-%04X-%04X-%012llX", static_cast<unsigned>(parts[0] >> 32U),
        static_cast<unsigned>(parts[0] >> 16U & 0xFFFFU), static_cast<unsigned>(parts[0] & 0xFFFFU),
        static_cast<unsigned>(parts[1] >> 48U), static_cast<unsigned long long>(parts[1] & 0xFFFFFFFFFFFFU));
    return guid;
}

} // namespace

std::uint64_t registerAddress(std::size_t index)
{
    return firstRegister + index * registerStride;
}

std::size_t registerSize(const ModuleFeature &feature)
{
    return feature.kind == ModuleFeature::Kind::Text ? textSize : numberSize;
}

std::optional<RegisterPlace> findRegister(std::uint64_t address, std::size_t count)
{
    if (address < firstRegister || (address - firstRegister) / registerStride >= count)
        return std::nullopt;
    return RegisterPlace{
        (address - firstRegister) / registerStride, (address - firstRegister) % registerStride};
}

std::string describeModule(const PortDescription &port, const std::vector<ModuleFeature> &features)
{
    const std::string nodes = DescriptionWriter(port).nodes(features);
    std::ostringstream xml;
    xml << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        << "<RegisterDescription ModelName=\"" << port.module << "\" VendorName=\"Corvix\""
        << " ToolTip=\"Features of the module " << port.module << "\" StandardNameSpace=\"None\""
        << " SchemaMajorVersion=\"" << moduleSchemaVersion.major << "\" SchemaMinorVersion=\""
        << moduleSchemaVersion.minor << "\" SchemaSubMinorVersion=\"" << moduleSchemaVersion.subminor << "\""
        << " MajorVersion=\"" << moduleFileVersion.major << "\" MinorVersion=\"" << moduleFileVersion.minor
        << "\" SubMinorVersion=\"" << moduleFileVersion.subminor << "\""
        << " ProductGuid=\"" << guidOf(port.module) << "\" VersionGuid=\"" << guidOf(nodes) << "\""
        << " xmlns=\"http://www.genicam.org/GenApi/Version_1_1\""
        << " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
        << " xsi:schemaLocation=\"http://www.genicam.org/GenApi/Version_1_1"
        << " http://www.genicam.org/GenApi/GenApiSchema_Version_1_1.xsd\">\n"
        << nodes << "</RegisterDescription>\n";
    return xml.str();
}
