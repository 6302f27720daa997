#include "tests/camerahost/NodeMapHarness.h"

#include <gtest/gtest.h>

using namespace CvxCPP;

namespace {

std::vector<std::string> namesOf(const NodeMap &map)
{
    std::vector<std::string> names;
    for (const NodeInfo &node : map.nodes())
        names.push_back(node.category + '/' + node.name);
    return names;
}

const NodeInfo &infoOf(const NodeMap &map, const std::string &name)
{
    for (const NodeInfo &node : map.nodes()) {
        if (node.name == name)
            return node;
    }
    throw std::out_of_range(name);
}

} // namespace

TEST(NodeListTest, listsEachNodeOnceAfterItsCategory)
{
    const std::string nodes = element("Category", "Inner",
                                  "<pFeature>B</pFeature><pFeature>Root</pFeature><pFeature>A</pFeature>")
        + element("Integer", "A", "<Value>1</Value>") + element("Integer", "B", "<Value>1</Value>")
        + element("Integer", "Unlisted", "<Value>1</Value>");
    const NodeMapHarness camera({"A", "Inner", "Missing", "A"}, nodes);
    EXPECT_EQ(namesOf(*camera.map), (std::vector<std::string>{"/Root", "Root/A", "Root/Inner", "Inner/B"}));
}

TEST(NodeListTest, thousandsOfNestedCategoriesAreListed)
{
    std::string nodes;
    constexpr int count = 50'000;
    for (int i = 0; i < count; ++i)
        nodes += element("Category", "C" + std::to_string(i),
            "<pFeature>C" + std::to_string(i + 1) + "</pFeature><pFeature>C0</pFeature>");
    const NodeMapHarness camera({"C0"}, nodes);
    EXPECT_EQ(camera.map->nodes().size(), count + 1U);
}

TEST(NodeListTest, infoHasThePropertiesOfTheDescription)
{
    const std::string nodes
        = element("Float", "ExposureTime",
              "<ToolTip>Tip</ToolTip><Description>Long &amp; short</Description>"
              "<DisplayName>Exposure Time</DisplayName><Visibility>Beginner</Visibility>"
              "<ImposedVisibility>Guru</ImposedVisibility><Streamable>Yes</Streamable><pValue>Reg</pValue>")
        + element("FloatReg", "Reg",
            registerAt(0)
                + "<Unit>us</Unit><Representation>Logarithmic</Representation>"
                  "<PollingTime>200</PollingTime>");
    const NodeMapHarness camera({"ExposureTime"}, nodes);
    const NodeInfo info = camera.map->nodes().at(1);
    EXPECT_EQ(info.displayName, "Exposure Time");
    EXPECT_EQ(info.toolTip, "Tip");
    EXPECT_EQ(info.description, "Long & short");
    EXPECT_EQ(info.type, NodeType::Float);
    EXPECT_EQ(info.visibility, NodeVisibility::Guru);
    EXPECT_TRUE(info.isStreamable);
    EXPECT_EQ(info.unit, "us");
    EXPECT_EQ(info.representation, NodeRepresentation::Logarithmic);
    EXPECT_EQ(info.pollingTime, 200U);
}

TEST(NodeListTest, kindsOfNodesHaveTypes)
{
    const std::pair<const char *, NodeType> kinds[]
        = {{"Category", NodeType::Category}, {"IntReg", NodeType::Integer},
            {"MaskedIntReg", NodeType::Integer}, {"IntConverter", NodeType::Integer},
            {"IntSwissKnife", NodeType::Integer}, {"Float", NodeType::Float}, {"FloatReg", NodeType::Float},
            {"Converter", NodeType::Float}, {"SwissKnife", NodeType::Float}, {"Boolean", NodeType::Boolean},
            {"Enumeration", NodeType::Enumeration}, {"Command", NodeType::Command},
            {"String", NodeType::String}, {"StringReg", NodeType::String}, {"Register", NodeType::Register}};
    for (const auto &[kind, type] : kinds) {
        const NodeMapHarness camera({"Node"}, element(kind, "Node", ""));
        EXPECT_EQ(camera.map->nodes().at(1).type, type) << kind;
        EXPECT_EQ(camera.map->nodes().at(1).displayName, "Node");
    }
}

TEST(NodeListTest, entriesAreInTheOrderOfTheDescription)
{
    const std::string nodes = element("Enumeration", "Mode",
        element("EnumEntry", "Second", "<DisplayName>The second</DisplayName><Value>0x10</Value>")
            + element("EnumEntry", "First", "<Value>010</Value>")
            + element("EnumEntry", "Old", "<Value>3</Value><Symbolic>Third</Symbolic>")
            + "<Value>10</Value>");
    const NodeMapHarness camera({"Mode"}, nodes);
    const std::vector<EnumerationEntry> &entries = camera.map->nodes().at(1).entries;
    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries[0].name, "Second");
    EXPECT_EQ(entries[0].displayName, "The second");
    EXPECT_EQ(entries[0].value, 16);
    EXPECT_EQ(entries[1].displayName, "First");
    EXPECT_EQ(entries[1].value, 10);
    EXPECT_EQ(entries[2].name, "Third");
}

TEST(NodeListTest, selectorsAreListedInBothDirections)
{
    const std::string selected = "<Value>0</Value><pSelected>Gain</pSelected><pSelected>Hidden</"
                                 "pSelected><pSelected>Gain</pSelected>";
    const std::string nodes = element("Integer", "S1", selected) + element("Integer", "S2", selected)
        + element("Integer", "Hidden", "<Value>1</Value>") + element("Float", "Gain", "<Value>1</Value>");
    const NodeMapHarness camera({"S1", "Gain", "S2"}, nodes);
    EXPECT_EQ(infoOf(*camera.map, "S1").selected, std::vector<std::string>{"Gain"});
    EXPECT_EQ(infoOf(*camera.map, "Gain").selectors, (std::vector<std::string>{"S1", "S2"}));
}
