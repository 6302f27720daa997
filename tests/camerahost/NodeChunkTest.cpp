#include "tests/camerahost/NodeMapHarness.h"

#include <gtest/gtest.h>

using namespace CvxCPP;

namespace {

std::string chunkRegister(const std::string &kind, const std::string &name, const std::string &content)
{
    return element(kind, name, "<AccessMode>RO</AccessMode><pPort>Chunk</pPort>" + content);
}

} // namespace

TEST(NodeChunkTest, chunkFeaturesSayWhereTheirValuesAre)
{
    const std::string nodes = element("Port", "Chunk", "<ChunkID>1f0A</ChunkID>")
        + element("Integer", "ChunkWidth", "<pValue>WidthReg</pValue>")
        + chunkRegister("IntReg", "WidthReg",
            "<Address>4</Address><Length>2</Length><Sign>Signed</Sign><Endianess>BigEndian</Endianess>")
        + element("Enumeration", "ChunkSource",
            element("EnumEntry", "Line3", "<Value>3</Value>") + "<pValue>SourceReg</pValue>")
        + chunkRegister("MaskedIntReg", "SourceReg",
            "<Address>0</Address><pIndex "
            "Offset=\"8\">Index</pIndex><Length>4</Length><LSB>31</LSB><MSB>28</MSB>"
            "<Endianess>BigEndian</Endianess>")
        + element("Integer", "Index", "<Value>2</Value>")
        + chunkRegister("FloatReg", "ChunkGain", "<Address>16</Address><Length>8</Length>")
        + element("Float", "Computed", "<pValue>Formula</pValue>")
        + element("SwissKnife", "Formula", "<pVariable Name=\"A\">WidthReg</pVariable><Formula>A</Formula>")
        + element("IntReg", "Ordinary", registerAt(0));
    NodeMapHarness camera({"Ordinary", "ChunkWidth", "ChunkSource", "ChunkGain", "Computed"}, nodes);
    const std::vector<ChunkFeature> features = camera.map->chunkFeatures();
    ASSERT_EQ(features.size(), 3U);

    EXPECT_EQ(features[0].name, "ChunkWidth");
    EXPECT_EQ(features[0].type, NodeType::Integer);
    EXPECT_EQ(features[0].chunkId, 0x1F0AU);
    EXPECT_EQ(features[0].address, 4U);
    EXPECT_EQ(features[0].length, 2U);
    EXPECT_TRUE(features[0].isBigEndian);
    EXPECT_TRUE(features[0].isSigned);
    EXPECT_EQ(features[0].lowestBit, 0U);
    EXPECT_EQ(features[0].highestBit, 15U);

    EXPECT_EQ(features[1].type, NodeType::Enumeration);
    EXPECT_EQ(features[1].address, 16U);
    EXPECT_EQ(features[1].lowestBit, 0U);
    EXPECT_EQ(features[1].highestBit, 3U);
    ASSERT_EQ(features[1].entries.size(), 1U);
    EXPECT_EQ(features[1].entries[0].name, "Line3");

    EXPECT_EQ(features[2].type, NodeType::Float);
    EXPECT_EQ(features[2].length, 8U);
    EXPECT_FALSE(features[2].isBigEndian);
}

TEST(NodeChunkTest, chunkFeaturesCannotBeReadFromTheCamera)
{
    const std::string nodes = element("Port", "Chunk", "<ChunkID>1</ChunkID>")
        + chunkRegister("IntReg", "ChunkWidth", "<Address>0</Address><Length>4</Length>");
    NodeMapHarness camera({"ChunkWidth"}, nodes);
    const NodeState state = camera.state("ChunkWidth");
    EXPECT_EQ(state.access, NodeAccess::NotAvailable);
    EXPECT_NE(state.problem.find("comes with the images"), std::string::npos);
    EXPECT_EQ(
        std::get<NodeMap::Failure>(camera.map->read("ChunkWidth")).failure, DeviceFailure::NotAvailable);
    EXPECT_EQ(camera.port.accesses, 0U);
}
