#include "tests/camerahost/NodeMapHarness.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>

using namespace CvxCPP;

namespace {

/// Returns an integer whose value decides about other nodes.
std::string condition(const std::string &name, const std::string &value)
{
    return element("Integer", name, "<Value>" + value + "</Value>");
}

} // namespace

TEST(NodeStateTest, integersHaveSizeSignAndByteOrder)
{
    struct Case
    {
        unsigned length;
        const char *layout;
        NodeValue value, minimum, maximum;
    };
    const Case cases[] = {
        {1, "<Sign>Unsigned</Sign>", integer(0xF1), integer(0), integer(255)},
        {1, "<Sign>Signed</Sign>", integer(-15), integer(-128), integer(127)},
        {2, "<Endianess>LittleEndian</Endianess>", integer(0xF2F1), integer(0), integer(65535)},
        {2, "<Endianess>BigEndian</Endianess>", integer(0xF1F2), integer(0), integer(65535)},
        {3, "", integer(0xF3F2F1), integer(0), integer(0xFFFFFF)},
        {4, "<Sign>Signed</Sign>", integer(-0x0B0C0D0F), integer(-0x80000000L), integer(0x7FFFFFFF)},
        {4, "", integer(0xF4F3F2F1), integer(0), integer(0xFFFFFFFF)},
        {8, "<Sign>Signed</Sign>", integer(-0x0708090A0B0C0D0F), {}, {}},
        {8, "<Sign>Unsigned</Sign>", integer(-0x0708090A0B0C0D0F), {}, {}},
    };
    for (const Case &c : cases) {
        NodeMapHarness camera({"Node"},
            element("Integer", "Node", "<pValue>Reg</pValue>")
                + element("IntReg", "Reg", registerAt(0, c.length) + c.layout));
        for (std::uint8_t i = 0; i < 8; ++i)
            camera.port.bytes[i] = static_cast<std::uint8_t>(0xF1 + i);
        const NodeState state = camera.state("Node");
        EXPECT_EQ(state.value, c.value) << c.length << c.layout;
        EXPECT_EQ(state.minimum, c.minimum) << c.length << c.layout;
        EXPECT_EQ(state.maximum, c.maximum) << c.length << c.layout;
        camera.write("Node", c.value);
        EXPECT_EQ(camera.read("Node"), c.value) << c.length << c.layout;
    }
}

TEST(NodeStateTest, bitsOfBigEndianRegistersCountFromTheMostSignificantOne)
{
    struct Case
    {
        const char *layout;
        std::int64_t value, maximum;
    };
    const Case cases[] = {
        {"<LSB>0</LSB><MSB>7</MSB>", 0x81, 0xFF},
        {"<LSB>7</LSB><MSB>0</MSB>", 0x81, 0xFF},
        {"<Bit>0</Bit>", 1, 1},
        {"<LSB>31</LSB><MSB>24</MSB><Endianess>BigEndian</Endianess>", 0x04, 0xFF},
        {"<LSB>0</LSB><MSB>7</MSB><Endianess>BigEndian</Endianess>", 0x81, 0xFF},
        {"<Bit>0</Bit><Endianess>BigEndian</Endianess>", 1, 1},
        {"<LSB>0</LSB><MSB>7</MSB><Sign>Signed</Sign>", -127, 127},
        {"<LSB>0</LSB><MSB>31</MSB><Sign>Signed</Sign>", 0x04030281, 0x7FFFFFFF},
    };
    for (const Case &c : cases) {
        NodeMapHarness camera({"Node"}, element("MaskedIntReg", "Node", registerAt(0) + c.layout));
        camera.port.bytes = {0x81, 0x02, 0x03, 0x04};
        EXPECT_EQ(camera.state("Node").value, integer(c.value)) << c.layout;
        EXPECT_EQ(camera.state("Node").maximum, integer(c.maximum)) << c.layout;
    }
}

TEST(NodeStateTest, entriesOfStructuresInheritTheRegister)
{
    NodeMapHarness camera({"Low", "High"},
        "<StructReg Comment=\"both\">" + registerAt(4, 2)
            + element("StructEntry", "Low", "<LSB>0</LSB><MSB>7</MSB>")
            + element("StructEntry", "High", "<AccessMode>RO</AccessMode><LSB>8</LSB><MSB>15</MSB>")
            + "</StructReg>");
    camera.port.bytes[4] = 5;
    camera.port.bytes[5] = 6;
    EXPECT_EQ(camera.state("Low").value, integer(5));
    EXPECT_EQ(camera.state("Low").access, NodeAccess::ReadWrite);
    EXPECT_EQ(camera.state("High").value, integer(6));
    EXPECT_EQ(camera.state("High").access, NodeAccess::ReadOnly);
}

TEST(NodeStateTest, everyTypeHasValues)
{
    const std::string nodes
        = element("FloatReg", "Float", registerAt(0) + "<Endianess>LittleEndian</Endianess>")
        + element("Boolean", "Boolean", "<pValue>Byte</pValue><OnValue>7</OnValue>")
        + element("IntReg", "Byte", registerAt(8, 1))
        + element("Enumeration", "Enumeration",
            element("EnumEntry", "Six", "<Value>6</Value>")
                + element("EnumEntry", "Seven", "<Value>7</Value>") + "<pValue>Byte</pValue>")
        + element("String", "String", "<pValue>Text</pValue>")
        + element("StringReg", "Text", registerAt(16, 8))
        + element("Register", "Register", registerAt(16, 3));
    NodeMapHarness camera({"Float", "Boolean", "Enumeration", "String", "Register"}, nodes);
    const float number = 2.5F;
    std::memcpy(camera.port.bytes.data(), &number, sizeof number);
    camera.port.bytes[8] = 7;
    std::memcpy(&camera.port.bytes[16], "abc", 3);
    EXPECT_EQ(camera.read("Float"), NodeValue(2.5));
    EXPECT_EQ(camera.read("Boolean"), NodeValue(true));
    EXPECT_EQ(camera.read("Enumeration"), text("Seven"));
    EXPECT_EQ(camera.read("String"), text("abc"));
    EXPECT_EQ(camera.state("String").maxLength, 8);
    EXPECT_EQ(camera.read("Register"), NodeValue(std::vector<std::uint8_t>{'a', 'b', 'c'}));
    EXPECT_EQ(camera.state("Register").maxLength, 3);
    camera.port.bytes[8] = 6;
    EXPECT_EQ(camera.read("Boolean"), NodeValue(false));
}

TEST(NodeStateTest, integersMayBelongToBooleansAndFormulas)
{
    const std::string nodes = element("IntReg", "Byte", registerAt(0, 1))
        + element("Boolean", "Switch", "<pValue>Byte</pValue>")
        + element("Integer", "Integer", "<pValue>Switch</pValue>")
        + element("IntSwissKnife", "Formula",
            "<pVariable Name=\"S\">Switch</pVariable><Constant Name=\"C\">0x10</Constant>"
            "<Expression Name=\"E\">S * 2</Expression><Formula>E + C</Formula>")
        + element("Converter", "Converter",
            "<FormulaTo>FROM * 2</FormulaTo><FormulaFrom>TO / 2</FormulaFrom><pValue>Byte</pValue>");
    NodeMapHarness camera({"Integer", "Formula", "Converter"}, nodes);
    camera.write("Integer", integer(1));
    EXPECT_EQ(camera.port.bytes[0], 1);
    EXPECT_EQ(camera.read("Integer"), integer(1));
    EXPECT_EQ(camera.read("Formula"), integer(18));
    EXPECT_EQ(camera.state("Formula").access, NodeAccess::ReadOnly);
    const NodeState converter = camera.state("Converter");
    EXPECT_EQ(converter.value, NodeValue(0.5));
    EXPECT_EQ(converter.minimum, NodeValue(0.0));
    EXPECT_EQ(converter.maximum, NodeValue(127.5));
    camera.write("Converter", 12.5);
    EXPECT_EQ(camera.port.bytes[0], 25);
}

TEST(NodeStateTest, addressesMayDependOnOtherNodes)
{
    const std::string nodes = element("Integer", "Selector", "<Value>2</Value>")
        + element("IntReg", "Indexed",
            "<pIndex Offset=\"4\">Selector</pIndex><AccessMode>RW</AccessMode>" + registerAt(16))
        + element("IntReg", "Inner",
            element("IntSwissKnife", "InnerAddress",
                "<pVariable Name=\"S\">Selector</pVariable><Formula>S * 4 + 16</Formula>")
                + "<Length>4</Length><pPort>Device</pPort>")
        + element("Integer", "Chosen",
            "<pIndex>Selector</pIndex><ValueIndexed Index=\"1\">11</ValueIndexed>"
            "<pValueIndexed Index=\"2\">Indexed</pValueIndexed><ValueDefault>99</ValueDefault>");
    NodeMapHarness camera({"Selector", "Indexed", "Inner", "Chosen"}, nodes);
    camera.port.bytes[20] = 1;
    camera.port.bytes[24] = 2;
    for (const char *name : {"Indexed", "Inner", "Chosen"})
        EXPECT_EQ(camera.read(name), integer(2)) << name;
    EXPECT_EQ(camera.state("Chosen").maximum, integer(0xFFFFFFFF));
    camera.write("Selector", integer(1));
    EXPECT_EQ(camera.read("Indexed"), integer(1));
    EXPECT_EQ(camera.read("Chosen"), integer(11));
}

TEST(NodeStateTest, limitsAreTheNarrowestOnTheWayToTheRegister)
{
    const std::string nodes
        = element("Integer", "Width",
              "<Min>-5</Min><pMax>WidthMax</pMax><pInc>Step</pInc><pValue>Middle</pValue>")
        + element("Integer", "Middle", "<Max>2000</Max><pValue>Reg</pValue>")
        + element("IntReg", "Reg", registerAt(0, 2)) + element("Float", "WidthMax", "<Value>1920.7</Value>")
        + element("Integer", "Step", "<Value>4</Value>") + element("Float", "Free", "<Value>1</Value>");
    NodeMapHarness camera({"Width", "Free"}, nodes);
    const NodeState state = camera.state("Width");
    EXPECT_EQ(state.minimum, integer(0));
    EXPECT_EQ(state.maximum, integer(1920));
    EXPECT_EQ(state.increment, integer(4));
    EXPECT_EQ(camera.state("Free").minimum, NodeValue());
    EXPECT_EQ(camera.state("Free").increment, NodeValue());
}

TEST(NodeStateTest, converterOfAnUnlimitedValueHasNoLimits)
{
    const std::string formulas = "<FormulaTo>FROM * 2</FormulaTo><FormulaFrom>TO / 2</FormulaFrom>";
    NodeMapHarness camera({"Real", "Whole"},
        element("Converter", "Real", formulas + "<pValue>Float</pValue>")
            + element("IntConverter", "Whole", formulas + "<pValue>Integer</pValue>")
            + element("Float", "Float", "<Value>3</Value>")
            + element("Integer", "Integer", "<Value>3</Value>"));
    for (const char *name : {"Real", "Whole"}) {
        const NodeState state = camera.state(name);
        EXPECT_EQ(state.minimum, NodeValue()) << name;
        EXPECT_EQ(state.maximum, NodeValue()) << name;
    }
}

TEST(NodeStateTest, integerConverterComputesWithDoubles)
{
    NodeMapHarness camera({"Converter"},
        element("IntConverter", "Converter",
            "<FormulaTo>FROM</FormulaTo><FormulaFrom>FLOOR(TO * 1.5)</FormulaFrom><pValue>Reg</pValue>")
            + element("IntReg", "Reg", registerAt(0, 8)));
    camera.port.bytes[0] = 3;
    EXPECT_EQ(camera.read("Converter"), integer(4));
    camera.port.bytes[7] = 0x40; // A double does not hold all digits of such a number.
    EXPECT_NE(camera.state("Converter").problem.find("too large"), std::string::npos);
    EXPECT_NE(camera.writeFailure("Converter", integer((std::int64_t(1) << 53) + 1)).text.find("too large"),
        std::string::npos);
}

TEST(NodeStateTest, limitThatCannotBeReadDoesNotHideTheValue)
{
    const std::string nodes = element("Integer", "Width", "<pMax>Broken</pMax><Value>3</Value>")
        + element("Integer", "Height", "<pMax>Nowhere</pMax><Value>4</Value>")
        + element("IntReg", "Broken", registerAt(100));
    NodeMapHarness camera({"Width", "Height"}, nodes);
    camera.port.failingAddresses = {100};
    const NodeState state = camera.state("Width");
    EXPECT_EQ(state.value, integer(3));
    EXPECT_EQ(state.problem,
        "A limit of \"Width\" cannot be read: GCReadPort failed with error -1010 (no answer).");
    EXPECT_EQ(camera.state("Height").value, integer(4));
    EXPECT_NE(camera.state("Height").problem.find("\"Nowhere\""), std::string::npos);
}

TEST(NodeStateTest, failingRegisterIsAProblem)
{
    NodeMapHarness camera({"Node"}, element("IntReg", "Node", registerAt(0)));
    camera.port.failingAddresses = {0};
    const NodeState state = camera.state("Node");
    EXPECT_EQ(state.access, NodeAccess::ReadWrite);
    EXPECT_EQ(state.value, NodeValue());
    EXPECT_EQ(state.problem, "GCReadPort failed with error -1010 (no answer).");
    const auto result = camera.map->read("Node");
    ASSERT_TRUE(std::holds_alternative<NodeMap::Failure>(result));
    EXPECT_EQ(std::get<NodeMap::Failure>(result).failure, DeviceFailure::Device);
    camera.port.failingAddresses.clear();
    EXPECT_EQ(camera.state("Node").problem, "");
}

TEST(NodeStateTest, accessIsThatOfTheWholeWayToTheRegister)
{
    struct Case
    {
        const char *feature, *reg;
        NodeAccess access;
        LockReason reason;
        const char *lockingNode;
    };
    const Case cases[] = {
        {"", "<AccessMode>RW</AccessMode>", NodeAccess::ReadWrite, LockReason::None, ""},
        {"", "<AccessMode>RO</AccessMode>", NodeAccess::ReadOnly, LockReason::ReadOnlyNode, ""},
        {"", "", NodeAccess::ReadOnly, LockReason::ReadOnlyNode, ""},
        {"", "<AccessMode>WO</AccessMode>", NodeAccess::WriteOnly, LockReason::None, ""},
        {"<ImposedAccessMode>RO</ImposedAccessMode>", "<AccessMode>RW</AccessMode>", NodeAccess::ReadOnly,
            LockReason::ReadOnlyNode, ""},
        {"<pIsImplemented>No</pIsImplemented><pIsAvailable>No</pIsAvailable>", "", NodeAccess::NotImplemented,
            LockReason::NotImplemented, ""},
        {"", "<pIsImplemented>No</pIsImplemented>", NodeAccess::NotImplemented, LockReason::NotImplemented,
            ""},
        {"<pIsAvailable>No</pIsAvailable>", "", NodeAccess::NotAvailable, LockReason::NotAvailable, "No"},
        {"", "<pIsAvailable>Formula</pIsAvailable>", NodeAccess::NotAvailable, LockReason::NotAvailable,
            "Mode"},
        {"<pIsAvailable>Yes</pIsAvailable>", "<AccessMode>RW</AccessMode><pIsLocked>Formula2</pIsLocked>",
            NodeAccess::ReadWrite, LockReason::LockedByNode, "Mode"},
        {"<pIsLocked>OffSwitch</pIsLocked>", "<AccessMode>RW</AccessMode>", NodeAccess::ReadWrite,
            LockReason::None, ""},
        {"<pIsLocked>No</pIsLocked>", "<AccessMode>RW</AccessMode>", NodeAccess::ReadWrite, LockReason::None,
            ""},
    };
    for (const Case &c : cases) {
        const std::string nodes = element("Integer", "Node", c.feature + std::string("<pValue>Reg</pValue>"))
            + element("IntReg", "Reg",
                "<Address>0</Address><Length>4</Length><pPort>Device</pPort>" + std::string(c.reg))
            + condition("Yes", "1") + condition("No", "0")
            + element("Boolean", "OffSwitch", "<OnValue>1</OnValue><OffValue>2</OffValue><Value>2</Value>")
            + element("Integer", "Mode", "<pValue>ModeReg</pValue>")
            + element("IntReg", "ModeReg", registerAt(8))
            + element("IntSwissKnife", "Formula",
                "<pVariable Name=\"M\">ModeReg</pVariable><Formula>M = 1</Formula>")
            + element("IntSwissKnife", "Formula2",
                "<pVariable Name=\"M\">ModeReg</pVariable><Formula>M = 0</Formula>");
        NodeMapHarness camera({"Node", "Mode", "No"}, nodes);
        const NodeState state = camera.state("Node");
        EXPECT_EQ(state.access, c.access) << c.feature << c.reg;
        EXPECT_EQ(state.lockReason, c.reason) << c.feature << c.reg;
        EXPECT_EQ(state.lockingNode, c.lockingNode) << c.feature << c.reg;
        EXPECT_EQ(state.problem, "") << c.feature << c.reg;
    }
}

TEST(NodeStateTest, locksNameTheirReason)
{
    const std::string lock = "<pVariable Name=\"T\">TLParamsLockedReg</pVariable>"
                             "<pVariable Name=\"A\">ExposureAuto</pVariable><Formula>T || A</Formula>";
    const std::string nodes = element("Integer", "TLParamsLocked", "<pValue>TLParamsLockedReg</pValue>")
        + element("IntReg", "TLParamsLockedReg", registerAt(0)) + element("IntSwissKnife", "Lock", lock)
        + element("Enumeration", "ExposureAuto",
            element("EnumEntry", "Off", "<Value>0</Value>") + element("EnumEntry", "On", "<Value>1</Value>")
                + "<Value>0</Value>")
        + element("Integer", "Node", "<pIsLocked>Lock</pIsLocked><Value>1</Value>");
    NodeMapHarness camera({"TLParamsLocked", "ExposureAuto", "Node"}, nodes);
    EXPECT_EQ(camera.state("Node").lockReason, LockReason::None);

    camera.write("ExposureAuto", text("On"));
    EXPECT_EQ(camera.state("Node").lockReason, LockReason::LockedByNode);
    EXPECT_EQ(camera.state("Node").lockingNode, "ExposureAuto");
    camera.write("ExposureAuto", text("Off"));

    EXPECT_TRUE(camera.map->writeInteger("TLParamsLocked", 1));
    camera.map->setStreaming(true);
    EXPECT_EQ(camera.state("Node").lockReason, LockReason::StreamRunning);
    EXPECT_EQ(camera.writeFailure("Node", integer(2)).text,
        "The feature \"Node\" cannot be written: it is locked while the stream runs.");
    camera.map->setStreaming(false);
    EXPECT_EQ(camera.state("Node").lockReason, LockReason::LockedByNode);

    camera.map->setWatching(true);
    EXPECT_EQ(camera.state("Node").lockReason, LockReason::Watching);
    EXPECT_EQ(camera.writeFailure("Node", integer(2)).failure, DeviceFailure::NotWritable);
    EXPECT_TRUE(camera.map->writeInteger("TLParamsLocked", 0));
}

TEST(NodeStateTest, enumerationsListTheirAvailableEntries)
{
    const std::string nodes
        = element("Enumeration", "Mode",
              element("EnumEntry", "A", "<Value>1</Value><pIsAvailable>No</pIsAvailable>")
                  + element("EnumEntry", "B", "<Value>2</Value><pIsImplemented>Yes</pIsImplemented>")
                  + element("EnumEntry", "C", "<Value>3</Value><pIsAvailable>Missing</pIsAvailable>")
                  + "<pValue>Reg</pValue>")
        + element("IntReg", "Reg", registerAt(0)) + condition("Yes", "1") + condition("No", "0");
    NodeMapHarness camera({"Mode"}, nodes);
    camera.port.bytes[0] = 9;
    const NodeState state = camera.state("Mode");
    EXPECT_EQ(state.availableEntries, std::vector<std::string>{"B"});
    EXPECT_EQ(state.value, NodeValue());
    EXPECT_EQ(state.problem, "The value 9 of \"Mode\" is none of its entries.");
    EXPECT_EQ(camera.map->readInteger("Mode"), 9);
}

TEST(NodeStateTest, commandIsDoneWhenTheCameraResetsIt)
{
    const std::string nodes
        = element("Command", "Start", "<CommandValue>3</CommandValue><pValue>Reg</pValue>")
        + element("IntReg", "Reg", registerAt(0));
    NodeMapHarness camera({"Start"}, nodes);
    EXPECT_TRUE(camera.state("Start").isCommandDone);
    camera.write("Start", NodeValue());
    EXPECT_EQ(camera.port.bytes[0], 3);
    EXPECT_FALSE(camera.state("Start").isCommandDone);
    camera.port.bytes[0] = 0;
    EXPECT_TRUE(camera.state("Start").isCommandDone);
    EXPECT_TRUE(camera.map->execute("Start"));
    EXPECT_EQ(camera.port.bytes[0], 3);
}

TEST(NodeStateTest, hostReachesNodesThatAreNotListed)
{
    NodeMapHarness camera({}, element("IntReg", "Hidden", registerAt(0)) + condition("Constant", "7"));
    EXPECT_TRUE(camera.map->writeInteger("Hidden", 258));
    EXPECT_EQ(camera.map->readInteger("Hidden"), 258);
    EXPECT_EQ(camera.map->readInteger("Constant"), 7);
    EXPECT_EQ(camera.map->readInteger("Missing"), std::nullopt);
    EXPECT_FALSE(camera.map->writeInteger("Missing", 1));
    EXPECT_FALSE(camera.map->execute("Hidden"));
    EXPECT_EQ(std::get<NodeMap::Failure>(camera.map->state("Hidden")).failure, DeviceFailure::NotFound);
}
