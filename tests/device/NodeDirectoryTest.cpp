#include "sdk/device/NodeDirectory.h"

#include <gtest/gtest.h>

using namespace CvxCPP;
using Names = std::vector<std::string>;

namespace {

NodeInfo node(const std::string &name, const Names &selectors = {})
{
    NodeInfo info;
    info.name = name;
    info.selectors = selectors;
    return info;
}

} // namespace

TEST(NodeDirectoryTest, nodesAreFoundByName)
{
    const NodeDirectory directory({node("Width"), node("Height")});
    ASSERT_NE(directory.find("Height"), nullptr);
    EXPECT_EQ(directory.find("Height")->name, "Height");
    EXPECT_EQ(directory.find("height"), nullptr);
    EXPECT_EQ(directory.names(), (Names{"Width", "Height"}));
}

TEST(NodeDirectoryTest, everySelectorComesAfterItsOwnSelectors)
{
    const NodeDirectory directory({node("Lut"), node("Index", {"Lut"}), node("Value", {"Index", "Lut"}),
        node("Other", {"Value"}), node("Unknown", {"Missing"})});
    EXPECT_EQ(directory.selectorsOf(*directory.find("Lut")), Names());
    EXPECT_EQ(directory.selectorsOf(*directory.find("Index")), (Names{"Lut"}));
    EXPECT_EQ(directory.selectorsOf(*directory.find("Value")), (Names{"Lut", "Index"}));
    EXPECT_EQ(directory.selectorsOf(*directory.find("Other")), (Names{"Lut", "Index", "Value"}));
    EXPECT_EQ(directory.selectorsOf(*directory.find("Unknown")), Names());
}

TEST(NodeDirectoryTest, selectorsMaySelectEachOther)
{
    const NodeDirectory directory({node("A", {"B"}), node("B", {"A"}), node("C", {"A"})});
    EXPECT_EQ(directory.selectorsOf(*directory.find("A")), (Names{"B"}));
    EXPECT_EQ(directory.selectorsOf(*directory.find("C")), (Names{"B", "A"}));
}

TEST(NodeDirectoryTest, longChainsOfSelectorsAreCutOff)
{
    std::vector<NodeInfo> nodes{node("0")};
    for (int i = 1; i < 1000; ++i)
        nodes.push_back(node(std::to_string(i), {std::to_string(i - 1)}));
    const NodeDirectory directory(nodes);
    EXPECT_LT(directory.selectorsOf(directory.nodes().back()).size(), 100U);
}
