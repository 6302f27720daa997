#include "sdk/simulator/DescriptionText.h"

#include "sdk/simulator/ChunkTrailer.h"
#include "sdk/simulator/DescriptionFragments.h"
#include "sdk/simulator/EnumerationValues.h"
#include "sdk/simulator/PixelPacking.h"
#include "sdk/simulator/RegisterLayout.h"

#include <cstdio>
#include <map>
#include <sstream>
#include <tuple>

namespace {

using Texts = std::map<std::string, std::string, std::less<>>;

std::string element(std::string_view name, std::string_view content)
{
    const std::string tag(name);
    return '<' + tag + '>' + std::string(content) + "</" + tag + '>';
}

std::string hexadecimal(std::uint64_t value)
{
    char text[24];
    std::snprintf(text, sizeof text, "%llX", static_cast<unsigned long long>(value));
    return text;
}

std::string enumEntry(const std::string &name, std::uint64_t value)
{
    return "<EnumEntry Name=\"" + name + "\" NameSpace=\"Standard\">"
        + element("Value", std::to_string(value)) + "</EnumEntry>\n";
}

std::string pixelFormatEntries(bool isColor)
{
    std::string entries;
    for (const PackedFormat &format : supportedPixelFormats())
        if ((format.colors != PackedFormat::Colors::Mono) == isColor)
            entries += enumEntry(format.name, format.code);
    return entries;
}

/// Returns one entry for each tap, for example Tap1.
std::string tapEntries(int taps)
{
    std::string entries;
    for (int tap = 1; taps > 1 && tap <= taps; ++tap)
        entries += enumEntry("Tap" + std::to_string(tap), static_cast<std::uint64_t>(tap));
    return entries;
}

/// What kind of node a register is, depending on its type.
struct NodeKind
{
    std::string_view tag;
    std::string_view ending; ///< The elements that end the node.
};

NodeKind nodeKind(RegisterType type)
{
    switch (type) {
    case RegisterType::Text:
        return {"StringReg", ""};
    case RegisterType::Float:
        return {"FloatReg", "<Endianess>LittleEndian</Endianess>"};
    case RegisterType::Long:
        return {"IntReg", "<Sign>Signed</Sign><Endianess>LittleEndian</Endianess>"};
    case RegisterType::Integer:
        break;
    }
    return {"IntReg", "<Sign>Unsigned</Sign><Endianess>LittleEndian</Endianess>"};
}

/// Returns the elements that say when a value that was read before is not valid any more.
std::string caching(const RegisterInfo &info)
{
    if (info.isChangedByCamera())
        return element("Cachable", "NoCache");
    std::string elements = element("Cachable", "WriteThrough");
    if (!info.invalidator.empty())
        elements += element("pInvalidator", std::string(info.invalidator) + "Reg");
    if (info.isInUserSet())
        elements += element("pInvalidator", "UserSetLoadReg");
    return elements;
}

std::string registerNode(const RegisterInfo &info)
{
    const NodeKind kind = nodeKind(info.type);
    const bool isReadOnly = info.isIn({RegisterUse::Constant, RegisterUse::Status});
    std::string node = '<' + std::string(kind.tag) + " Name=\"" + std::string(info.name) + "Reg\">";
    node += element("Address", "0x" + hexadecimal(registersAddress + info.offset));
    if (!info.selector.empty())
        node += "<pIndex Offset=\"" + std::to_string(info.elementSize()) + "\">" + std::string(info.selector)
            + "Reg</pIndex>";
    node += element("Length", std::to_string(info.valueSize()));
    node += element("AccessMode", isReadOnly ? "RO" : "RW") + element("pPort", "Device");
    return node + caching(info) + std::string(kind.ending) + "</" + std::string(kind.tag) + ">\n";
}

std::string registerNodes()
{
    std::string nodes = "<Group Comment=\"Registers\">\n";
    for (const RegisterInfo &info : registerTable())
        if (info.use != RegisterUse::Internal)
            nodes += registerNode(info);
    return nodes + "<Port Name=\"Device\" NameSpace=\"Standard\"></Port>\n</Group>\n";
}

struct ChunkNode
{
    std::size_t chunk;
    std::string_view name;
    bool isFloat;
};
constexpr ChunkNode chunkNodes[] = {
    {chunkTimestamp, "ChunkTimestamp", false},
    {chunkExposureTime, "ChunkExposureTime", true},
    {chunkFrameId, "ChunkFrameID", false},
    {chunkGain, "ChunkGain", true},
};

/// Returns the registers of the chunk data, each with a port of its own.
std::string chunkRegisters(bool isBigEndian)
{
    std::string nodes;
    for (const ChunkNode &node : chunkNodes) {
        const std::string name(node.name);
        const std::string tag = node.isFloat ? "FloatReg" : "IntReg";
        nodes += "<Port Name=\"" + name + "Port\">" + element("ChunkID", hexadecimal(chunkId(node.chunk)))
            + "</Port>\n<" + tag + " Name=\"" + name + "Reg\">"
            + "<Address>0</Address><Length>8</Length><AccessMode>RO</AccessMode>"
            + element("pPort", name + "Port") + (node.isFloat ? "" : "<Sign>Unsigned</Sign>")
            + element("Endianess", isBigEndian ? "BigEndian" : "LittleEndian") + "</" + tag + ">\n";
    }
    return nodes;
}

/// Applies the instructions of a fragment.
std::string expanded(std::string_view fragment, const Texts &replacements, const Texts &conditions)
{
    std::string text;
    std::istringstream lines{std::string(fragment)};
    bool isKept = true;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t start = line.find("<?");
        if (start == std::string::npos) {
            text += isKept ? line + '\n' : "";
            continue;
        }
        const std::string instruction = line.substr(start + 2, line.find("?>") - start - 2);
        if (instruction == "end")
            isKept = true;
        else if (instruction.rfind("if ", 0) == 0)
            isKept = conditions.count(instruction.substr(3)) != 0;
        else if (isKept)
            text += replacements.at(instruction);
    }
    return text;
}

std::string rootNode(const DescriptionKind &kind)
{
    std::string categories;
    for (const char *name : {"DeviceControl", "ImageFormatControl", "AcquisitionControl", "AnalogControl",
             "DigitalIOControl", "EncoderControl", "UserSetControl", "ChunkDataControl",
             "TransportLayerControl", "LensControl", "SceneControl"})
        if (kind.isLineScan || name != std::string_view("EncoderControl"))
            categories += element("pFeature", name);
    return "<Category Name=\"Root\" NameSpace=\"Standard\">" + categories + "</Category>\n";
}

std::string openingTag(const DescriptionKind &kind)
{
    const std::string schema = "http://www.genicam.org/GenApi/Version_1_1";
    const auto code = static_cast<unsigned>(
        kind.isColor | kind.isLineScan << 1 | kind.hasBigEndianChunks << 2 | kind.taps << 4);
    char guid[40];
    std::snprintf(guid, sizeof guid, "7A0C51D2-93B4-4E6F-8D15-2F60B7E9%04X", code);
    return "<RegisterDescription ModelName=\"" + descriptionName(kind)
        + "\" VendorName=\"Orvelle\" ToolTip=\"Simulated camera\" StandardNameSpace=\"None\""
          " SchemaMajorVersion=\"1\" SchemaMinorVersion=\"1\" SchemaSubMinorVersion=\"0\""
          " MajorVersion=\"1\" MinorVersion=\"0\" SubMinorVersion=\"0\" ProductGuid=\""
        + guid + "\" VersionGuid=\"" + guid + "\" xmlns=\"" + schema
        + "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"" + schema
        + " http://www.genicam.org/GenApi/GenApiSchema_Version_1_1.xsd\">\n";
}

} // namespace

bool operator==(const DescriptionKind &left, const DescriptionKind &right)
{
    return std::tie(left.isColor, left.isLineScan, left.taps, left.hasBigEndianChunks)
        == std::tie(right.isColor, right.isLineScan, right.taps, right.hasBigEndianChunks);
}

std::string descriptionName(const DescriptionKind &kind)
{
    return std::string("Simulated") + (kind.isLineScan ? "LineScan" : "AreaScan")
        + (kind.isColor ? "Color" : "") + (kind.taps > 1 ? std::to_string(kind.taps) + "Taps" : "");
}

std::string descriptionText(const DescriptionKind &kind)
{
    Texts conditions{{kind.isColor ? "color" : "mono", ""}, {kind.isLineScan ? "lineScan" : "areaScan", ""}};
    if (kind.taps > 1)
        conditions.emplace("taps", "");
    const auto taps = static_cast<std::uint64_t>(kind.taps);
    const Texts replacements{
        {"pixelFormats", pixelFormatEntries(kind.isColor)},
        {"taps", tapEntries(kind.taps)},
        {"geometries", enumEntry("Geometry_" + std::to_string(taps) + "X_1Y", taps)},
        {"chunks", chunkRegisters(kind.hasBigEndianChunks)},
    };
    std::string text = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n" + openingTag(kind) + rootNode(kind);
    for (const std::string_view fragment : descriptionFragments)
        text += expanded(fragment, replacements, conditions);
    return text + registerNodes() + "</RegisterDescription>\n";
}
