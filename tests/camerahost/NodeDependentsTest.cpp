#include "tests/camerahost/NodeMapHarness.h"

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;

std::string constant(const std::string &name, const std::string &content = "")
{
    return element("Integer", name, "<Value>1</Value>" + content);
}

} // namespace

TEST(NodeDependentsTest, everythingThatEvaluatesTheNodeDependsOnIt)
{
    const std::string nodes = element("Integer", "Node", "<pValue>Reg</pValue>")
        + element("IntReg", "Reg", registerAt(0)) + element("Integer", "SameRegister", "<pValue>Reg</pValue>")
        + constant("Limited", "<pMax>Node</pMax>") + constant("Locked", "<pIsLocked>Formula</pIsLocked>")
        + element("IntSwissKnife", "Formula", "<pVariable Name=\"A\">Reg</pVariable><Formula>A</Formula>")
        + element("IntReg", "Indexed", registerAt(8) + "<pIndex>Node</pIndex>")
        + element("IntReg", "Invalidated", registerAt(12) + "<pInvalidator>Node</pInvalidator>")
        + element("Enumeration", "Entries",
            element("EnumEntry", "E", "<Value>1</Value><pIsAvailable>Indexed</pIsAvailable>")
                + "<Value>1</Value>")
        + constant("Other");
    const NodeMapHarness camera(
        {"Other", "Entries", "Invalidated", "Indexed", "Locked", "Limited", "SameRegister", "Node"}, nodes);
    EXPECT_EQ(camera.map->dependents("Node"),
        (Names{"Entries", "Invalidated", "Indexed", "Locked", "Limited", "SameRegister"}));
    EXPECT_EQ(camera.map->dependents("Other"), Names());
    EXPECT_EQ(camera.map->dependents("Limited"), Names());
    EXPECT_EQ(camera.map->dependents("Missing"), Names());
}

TEST(NodeDependentsTest, selectedFeaturesDependOnAllSelectors)
{
    const std::string nodes = constant("Outer", "<pSelected>Inner</pSelected>")
        + constant("Inner", "<pSelected>Gain</pSelected>")
        + element("Integer", "Gain", "<pValue>GainReg</pValue>") + element("IntReg", "GainReg", registerAt(0))
        + constant("Exposure", "<pMax>GainReg</pMax>");
    const NodeMapHarness camera({"Outer", "Inner", "Gain", "Exposure"}, nodes);
    EXPECT_EQ(camera.map->dependents("Outer"), (Names{"Inner", "Gain", "Exposure"}));
    EXPECT_EQ(camera.map->dependents("Inner"), (Names{"Gain", "Exposure"}));
}

TEST(NodeDependentsTest, commandsOfUnknownEffectChangeEverything)
{
    const std::string command = "<CommandValue>1</CommandValue><Value>0</Value>";
    const std::string nodes = element("Command", "UserSetLoad", command)
        + element("Command", "TriggerSoftware", command)
        + constant("Latched", "<pInvalidator>TriggerSoftware</pInvalidator>");
    const NodeMapHarness camera({"UserSetLoad", "TriggerSoftware", "Latched"}, nodes);
    EXPECT_EQ(camera.map->dependents("UserSetLoad"), (Names{"Root", "TriggerSoftware", "Latched"}));
    EXPECT_EQ(camera.map->dependents("TriggerSoftware"), Names{"Latched"});
}
