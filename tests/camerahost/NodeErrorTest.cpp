#include "tests/camerahost/NodeMapHarness.h"

#include <gtest/gtest.h>

using namespace CvxCPP;

namespace {

std::string chain(int length, const std::string &last)
{
    std::string nodes;
    for (int i = 0; i < length; ++i)
        nodes
            += element("Integer", "N" + std::to_string(i), "<pValue>N" + std::to_string(i + 1) + "</pValue>");
    return nodes + element("Integer", "N" + std::to_string(length), last);
}

} // namespace

TEST(NodeErrorTest, unusableDescriptionsAreRefused)
{
    std::string manyNodes, deep;
    for (int i = 0; i <= 200'000; ++i)
        manyNodes += "<Integer Name=\"N" + std::to_string(i) + "\"/>";
    for (int i = 0; i < 100'000; ++i)
        deep += "<Group>";
    const std::string root = "<RegisterDescription>", end = "</RegisterDescription>";
    const std::pair<std::string, const char *> cases[] = {
        {"", "no element found"},
        {"<Html></Html>", "its root element is not RegisterDescription"},
        {root + "\n<Integer Name=\"A\"></Float>" + end, "line 2: mismatched tag"},
        {"<!DOCTYPE x [<!ENTITY e \"text\">]>" + root + end, "it declares entities"},
        {root + manyNodes + end, "it has more than 200000 nodes"},
        {root + deep, "its elements are nested too deeply"},
    };
    MemoryPort port;
    for (const auto &[description, reason] : cases) {
        const auto result = NodeMap::create(port, description);
        ASSERT_TRUE(std::holds_alternative<NodeMap::Failure>(result)) << reason;
        const NodeMap::Failure &failure = std::get<NodeMap::Failure>(result);
        EXPECT_EQ(failure.failure, DeviceFailure::Device);
        EXPECT_NE(failure.text.find(reason), std::string::npos) << failure.text;
    }
}

TEST(NodeErrorTest, nodesWithErrorsAreNotAvailable)
{
    const std::pair<std::string, const char *> cases[] = {
        {element("Integer", "Node", "<pValue>Gone</pValue>"),
            "\"Node\" refers to \"Gone\", which does not exist"},
        {element("Integer", "Node", "<pValue>A</pValue>") + element("Integer", "A", "<pValue>Gone</pValue>"),
            "\"A\" refers to \"Gone\", which does not exist"},
        {element("Integer", "Node", "<pValue>A</pValue>") + element("StringReg", "A", registerAt(0)),
            "\"A\", which is no number"},
        {element("IntReg", "Node", "<Address>0</Address><Length>4</Length><pPort>Gone</pPort>"),
            "does not exist"},
        {element("IntReg", "Node", "<Address>0</Address><Length>4</Length>"), "has no port"},
        {element("IntReg", "Node", "<Length>4</Length><pPort>Device</pPort>"), "has no address"},
        {element("IntReg", "Node", registerAt(0, 9)), "cannot have a length of 9 bytes"},
        {element(
             "StringReg", "Node", "<Address>0</Address><Length>99999999999</Length><pPort>Device</pPort>"),
            "cannot have a length of 99999999999 bytes"},
        {element("IntReg", "Node", "<Address>zero</Address><Length>4</Length><pPort>Device</pPort>"),
            "\"zero\""},
        {element("FloatReg", "Node", registerAt(0, 3)), "cannot have a length of 3 bytes"},
        {element("MaskedIntReg", "Node", registerAt(0) + "<LSB>0</LSB><MSB>32</MSB>"),
            "the bits of \"Node\""},
        {element("MaskedIntReg", "Node", registerAt(0)), "the bits of \"Node\""},
        {element("Integer", "Node", ""), "has no value"},
        {element("Integer", "Node", "<Value>many</Value>"), "\"many\", which is no number"},
        {element("Command", "Node", "<Value>0</Value>"), "has no command value"},
        {element("SwissKnife", "Node", ""), "has no formula"},
        {element("SwissKnife", "Node", "<Formula>1 +</Formula>"),
            "the formula of \"Node\" cannot be computed"},
        {element("IntSwissKnife", "Node", "<Formula>A</Formula>"), "unknown variable"},
        {element("Integer", "Node", "<pValue>Node</pValue>"), "depends on itself, by way of \"Node\""},
        {element("Integer", "Node", "<pValue>A</pValue>") + element("Integer", "A", "<pValue>B</pValue>")
                + element("SwissKnife", "B", "<pVariable Name=\"V\">A</pVariable><Formula>V</Formula>"),
            "by way of \"A\", \"B\""},
        {element("Integer", "Node", "<pValue>N0</pValue>") + chain(1000, "<Value>1</Value>"),
            "too many other nodes"},
    };
    for (const auto &[nodes, reason] : cases) {
        NodeMapHarness camera({"Node"}, nodes);
        const NodeState state = camera.state("Node");
        EXPECT_EQ(state.access, NodeAccess::NotAvailable) << reason;
        EXPECT_NE(state.problem.find(reason), std::string::npos) << state.problem;
        EXPECT_EQ(state.problem.find("The register description is wrong: "), 0U) << state.problem;
        EXPECT_EQ(
            camera
                .writeFailure("Node",
                    camera.map->nodes().at(1).type == NodeType::Command ? NodeValue() : NodeValue(integer(1)))
                .failure,
            DeviceFailure::NotAvailable);
        EXPECT_FALSE(camera.map->readInteger("Node"));
        EXPECT_FALSE(camera.map->writeInteger("Node", 1));
        camera.map->dependents("Node");
    }
}

TEST(NodeErrorTest, missingNodesDoNotEndTheProcess)
{
    NodeMapHarness camera({"Group", "Start"},
        element("Category", "Group", "<pValue>Nowhere</pValue>")
            + element("Command", "Start", "<pValue>Reg</pValue>") + element("IntReg", "Reg", registerAt(0)));
    EXPECT_FALSE(camera.map->execute("Start")) << "there is no command value";
}

TEST(NodeErrorTest, cyclesAmongConditionsLimitsAndSelectorsAreHarmless)
{
    const char *const references[]
        = {"pIsAvailable", "pIsImplemented", "pIsLocked", "pMax", "pSelected", "pInvalidator"};
    for (const std::string name : references) {
        const auto node = [&name](const char *from, const char *to) {
            return element("Integer", from, '<' + name + '>' + to + "</" + name + "><Value>1</Value>");
        };
        NodeMapHarness camera({"A", "B"}, node("A", "B") + node("B", "A"));
        EXPECT_EQ(camera.state("A").value, integer(1)) << name;
        EXPECT_EQ(camera.map->dependents("A"), std::vector<std::string>{"B"}) << name;
    }
}

TEST(NodeErrorTest, conditionsThatCannotBeReadExcludeTheNode)
{
    for (const char *const target : {"Gone", "Broken"}) {
        const std::string reference
            = std::string("<pIsAvailable>") + target + "</pIsAvailable><Value>1</Value>";
        NodeMapHarness camera({"Node"},
            element("Integer", "Node", reference) + element("IntReg", "Broken", registerAt(40'000)));
        const NodeState state = camera.state("Node");
        EXPECT_EQ(state.access, NodeAccess::NotAvailable);
        EXPECT_NE(state.problem.find(target), std::string::npos) << state.problem;
    }
    NodeMapHarness camera(
        {"Node"}, element("Integer", "Node", "<pIsLocked>Gone</pIsLocked><Value>1</Value>"));
    EXPECT_EQ(camera.state("Node").lockReason, LockReason::LockedByNode);
    EXPECT_EQ(camera.state("Node").value, integer(1));
}

TEST(NodeErrorTest, evaluationThatWouldTakeForeverIsRefused)
{
    std::string nodes;
    for (int i = 0; i < 60; ++i) {
        const std::string next = "F" + std::to_string(i + 1);
        nodes += element("IntSwissKnife", "F" + std::to_string(i),
            "<pVariable Name=\"A\">" + next + "</pVariable><pVariable Name=\"B\">" + next
                + "</pVariable><Formula>A + B</Formula>");
    }
    NodeMapHarness camera({"F0", "F50"}, nodes + element("Integer", "F60", "<Value>1</Value>"));
    EXPECT_NE(camera.state("F0").problem.find("depends on too many other nodes"), std::string::npos);
    EXPECT_EQ(camera.state("F50").value, integer(1024));
}

TEST(NodeErrorTest, divisionByZeroIsAProblem)
{
    const std::string nodes = element("Float", "Rate", "<pValue>Formula</pValue>")
        + element(
            "SwissKnife", "Formula", "<pVariable Name=\"T\">Time</pVariable><Formula>1000 / T</Formula>")
        + element("IntReg", "Time", registerAt(0));
    NodeMapHarness camera({"Rate"}, nodes);
    const NodeState state = camera.state("Rate");
    EXPECT_EQ(state.value, NodeValue());
    EXPECT_EQ(
        state.problem, "The formula of \"Formula\" cannot be computed: Parsing error (division by zero).");
    camera.port.bytes[0] = 10;
    EXPECT_EQ(camera.read("Rate"), NodeValue(100.0));
}

TEST(NodeErrorTest, lengthsInRegistersAreChecked)
{
    const std::string nodes = element("IntReg", "Length", registerAt(0, 8))
        + element("StringReg", "Text", "<Address>8</Address><pLength>Length</pLength><pPort>Device</pPort>")
        + element("String", "Node", "<pValue>Text</pValue>");
    NodeMapHarness camera({"Node"}, nodes);
    camera.port.bytes[8] = 'A';
    camera.port.bytes[0] = 3;
    EXPECT_EQ(camera.read("Node"), text("A"));
    for (const int highest : {0x80, 0x01}) {
        camera.port.bytes[7] = static_cast<std::uint8_t>(highest);
        EXPECT_NE(camera.state("Node").problem.find("\"Text\" cannot have a length of "), std::string::npos);
    }
}

TEST(NodeErrorTest, untidyTextIsUnderstood)
{
    const std::string nodes = element("Integer", " Node ", "<pValue>\n Reg \t</pValue>")
        + element("IntReg", "Reg",
            "<Address> 0x10 </Address><Length>04</Length><pPort> Device "
            "</pPort><Unknown><Value>5</Value></Unknown>")
        + element("IntReg", "Reg", registerAt(0)) + "<Group Comment=\"g\">"
        + element("Integer", "Decimal", "<Value>010</Value><ToolTip>5 \xB0</ToolTip>") + "</Group>"
        + element("Integer", "Large", "<Value>0xFFFFFFFFFFFFFFFE</Value>")
        + "<Integer><Value>1</Value></Integer>";
    NodeMapHarness camera({" Node ", "Decimal", "Large"}, nodes);
    camera.port.bytes[16] = 5;
    EXPECT_EQ(camera.read("Node"), integer(5));
    EXPECT_EQ(camera.read("Decimal"), integer(10));
    EXPECT_EQ(camera.map->nodes().at(2).toolTip, "5 \xC2\xB0");
    EXPECT_EQ(camera.read("Large"), integer(-2));
}
