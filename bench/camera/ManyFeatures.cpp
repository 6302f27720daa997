#include "bench/camera/ManyFeatures.h"

#include <algorithm>
#include <array>

namespace {

constexpr unsigned featuresPerCategory = 84; // Makes 60 categories of 5,000 features.
constexpr unsigned entryCount = 6; // Number of entries of each enumeration.

// The registers of one feature, in bytes from its block. The registers of a selected feature fill the block.
constexpr unsigned blockSize = 32;
constexpr unsigned valueOffset = 0;
constexpr unsigned minimumOffset = 8;
constexpr unsigned maximumOffset = 16;
constexpr unsigned textOffset = 24;

std::string element(const char *kind, const std::string &name, const std::string &content)
{
    return std::string("<") + kind + " Name=\"" + name + "\">" + content + "</" + kind + ">\n";
}

std::string property(const char *name, const std::string &value)
{
    return std::string("<") + name + '>' + value + "</" + name + '>';
}

/// One feature, and the names of what belongs to it.
struct Feature
{
    unsigned index = 0;
    // The camera host reads the width of a camera when it opens it.
    std::string name = index == 1 ? "Width" : "Feature" + std::to_string(index);
    std::string selector = "Feature"
        + std::to_string(
            index / featuresPerCategory * featuresPerCategory); ///< The first feature of its category.

    std::string part(const char *suffix) const { return name + suffix; }
};

std::string texts(const Feature &feature)
{
    constexpr std::array visibilities = {"Beginner", "Expert", "Guru"};
    return property("ToolTip", "Sets what " + feature.name + " controls.")
        + property("Description",
            feature.name + " controls one property of the picture. Its limits may depend on other features.")
        + property("DisplayName", "Feature " + std::to_string(feature.index))
        + property("Visibility", visibilities[feature.index % visibilities.size()]);
}

std::string registerAt(const Feature &feature, unsigned offset, const std::string &length = "4")
{
    return property("Address", std::to_string(feature.index * blockSize + offset))
        + property("Length", length) + property("AccessMode", "RW") + property("pPort", "Device");
}

std::string integerRegister(const Feature &feature, const char *suffix, unsigned offset)
{
    return element("IntReg", feature.part(suffix),
        registerAt(feature, offset) + property("Sign", "Unsigned") + property("Endianess", "LittleEndian"));
}

std::string valueRegister(const Feature &feature)
{
    return integerRegister(feature, "Value", valueOffset);
}

std::string integer(const Feature &feature)
{
    return element("Integer", feature.name,
               texts(feature) + property("pValue", feature.part("Value"))
                   + property("pMin", feature.part("Minimum")) + property("pMax", feature.part("Maximum"))
                   + property("Inc", "1"))
        + valueRegister(feature) + integerRegister(feature, "Minimum", minimumOffset)
        + integerRegister(feature, "Maximum", maximumOffset);
}

std::string number(const Feature &feature)
{
    return element("Float", feature.name,
               texts(feature) + property("pValue", feature.part("Formula")) + property("Min", "0")
                   + property("Max", "10") + property("Unit", "us")
                   + property("Representation", "Logarithmic"))
        + element("Converter", feature.part("Formula"),
            property("FormulaTo", "FROM*100") + property("FormulaFrom", "TO/100")
                + property("pValue", feature.part("Value")))
        + valueRegister(feature);
}

std::string enumeration(const Feature &feature, const std::string &further = {})
{
    std::string entries;
    for (unsigned entry = 0; entry < entryCount; ++entry)
        entries += element("EnumEntry", "Entry" + std::to_string(entry),
            property("DisplayName", "Entry " + std::to_string(entry))
                + property("Value", std::to_string(entry)));
    return element("Enumeration", feature.name,
               texts(feature) + entries + property("pValue", feature.part("Value")) + further)
        + valueRegister(feature);
}

std::string boolean(const Feature &feature)
{
    return element("Boolean", feature.name, texts(feature) + property("pValue", feature.part("Value")))
        + element("MaskedIntReg", feature.part("Value"),
            registerAt(feature, valueOffset) + property("Bit", "0") + property("Endianess", "LittleEndian"));
}

/// Its register depends on the entry that the selector of the category has. The selector locks it, too.
std::string selected(const Feature &feature)
{
    return element("Integer", feature.name,
               texts(feature) + property("pIsLocked", feature.selector)
                   + property("pValue", feature.part("Value")) + property("Min", "0")
                   + property("Max", "1000"))
        + element("IntReg", feature.part("Value"),
            registerAt(feature, valueOffset) + "<pIndex Offset=\"4\">" + feature.selector + "Value</pIndex>"
                + property("Sign", "Unsigned") + property("Endianess", "LittleEndian"));
}

std::string text(const Feature &feature)
{
    return element("StringReg", feature.name, texts(feature) + registerAt(feature, textOffset, "8"));
}

std::string command(const Feature &feature)
{
    return element("Command", feature.name,
               texts(feature) + property("pValue", feature.part("Value")) + property("CommandValue", "1"))
        + valueRegister(feature);
}

constexpr bool isSelector(unsigned index)
{
    return index % featuresPerCategory == 0;
}

using Describe = std::string (*)(const Feature &);
constexpr std::array<Describe, 10> kinds = {integer, integer, integer, number, number,
    [](const Feature &feature) { return enumeration(feature); }, boolean, selected, text, command};

bool isSelected(unsigned index)
{
    return !isSelector(index) && kinds[index % kinds.size()] == selected;
}

std::string category(unsigned first, unsigned end)
{
    std::string references, selectedFeatures, nodes;
    for (unsigned index = first; index < end; ++index) {
        const Feature feature{index};
        references += property("pFeature", feature.name);
        if (isSelected(index))
            selectedFeatures += property("pSelected", feature.name);
        if (!isSelector(index))
            nodes += kinds[index % kinds.size()](feature);
    }
    return element("Category", "Category" + std::to_string(first / featuresPerCategory), references)
        + enumeration({first}, selectedFeatures) + nodes;
}

} // namespace

std::string describeManyFeatures(unsigned features)
{
    std::string categories, references;
    for (unsigned first = 0; first < features; first += featuresPerCategory) {
        references += property("pFeature", "Category" + std::to_string(first / featuresPerCategory));
        categories += category(first, std::min(first + featuresPerCategory, features));
    }
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
           "<RegisterDescription ModelName=\"ManyFeatures\" VendorName=\"Bench\" StandardNameSpace=\"None\" "
           "SchemaMajorVersion=\"1\" SchemaMinorVersion=\"1\" SchemaSubMinorVersion=\"0\" MajorVersion=\"1\" "
           "MinorVersion=\"0\" SubMinorVersion=\"0\" "
           "xmlns=\"http://www.genicam.org/GenApi/Version_1_1\">\n"
        + element("Category", "Root", references) + categories + element("Port", "Device", "")
        + "</RegisterDescription>\n";
}

std::vector<std::uint8_t> registersOfManyFeatures(unsigned features)
{
    constexpr std::uint8_t maximum = 100;
    std::vector<std::uint8_t> registers(std::size_t(features) * blockSize);
    for (unsigned index = 0; index < features; ++index) {
        if (!isSelected(index))
            registers[index * blockSize + maximumOffset] = maximum;
        registers[index * blockSize + textOffset] = kinds[index % kinds.size()] == text ? 'A' : 0;
    }
    return registers;
}
