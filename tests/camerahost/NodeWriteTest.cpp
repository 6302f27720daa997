#include "tests/camerahost/NodeMapHarness.h"

#include <gtest/gtest.h>
#include <limits>

using namespace CvxCPP;

namespace {

std::string cameraNodes()
{
    return element("Integer", "Width", "<Min>16</Min><Max>4096</Max><Inc>4</Inc><pValue>WidthReg</pValue>")
        + element("IntReg", "WidthReg", registerAt(0)) + element("IntReg", "Small", registerAt(4, 1))
        + element("Float", "Gain", "<Min>0.5</Min><Max>24</Max><Inc>0.25</Inc><pValue>GainReg</pValue>")
        + element("FloatReg", "GainReg", registerAt(8) + "<Endianess>LittleEndian</Endianess>")
        + element("Boolean", "ReverseX", "<OnValue>8</OnValue><OffValue>4</OffValue><pValue>Reverse</pValue>")
        + element("IntReg", "Reverse", registerAt(12, 1))
        + element("Enumeration", "Format",
            element("EnumEntry", "Mono8", "<Value>1</Value>")
                + element("EnumEntry", "Mono10", "<Value>2</Value>")
                + element("EnumEntry", "Mono12", "<Value>3</Value><pIsAvailable>Zero</pIsAvailable>")
                + "<pValue>FormatReg</pValue>")
        + element("IntReg", "FormatReg", registerAt(16)) + element("Integer", "Zero", "<Value>0</Value>")
        + element("StringReg", "UserName", registerAt(20, 8))
        + element("Register", "Table", registerAt(32, 4))
        + element("Command", "Start", "<CommandValue>1</CommandValue><pValue>StartReg</pValue>")
        + element("IntReg", "StartReg", registerAt(36))
        + element("IntReg", "ReadOnly", "<Address>0</Address><Length>4</Length><pPort>Device</pPort>")
        + element("Integer", "Off", "<pIsAvailable>Zero</pIsAvailable><Value>1</Value>");
}

NodeMapHarness makeCamera()
{
    return {{"Width", "Small", "Gain", "ReverseX", "Format", "UserName", "Table", "Start", "ReadOnly", "Off",
                "Zero"},
        cameraNodes()};
}

using Bytes = std::vector<std::uint8_t>;

} // namespace

TEST(NodeWriteTest, refusedValuesChangeNothingAndSayWhy)
{
    struct Case
    {
        const char *node;
        NodeValue value;
        DeviceFailure failure;
        const char *reason; // A part of the text.
    };
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const Case cases[] = {
        {"Width", integer(12), DeviceFailure::OutOfRange,
            "\"Width\" cannot be set to 12: the smallest value is 16."},
        {"Width", integer(5000), DeviceFailure::OutOfRange, "to 5000: the largest value is 4096."},
        {"Width", integer(641), DeviceFailure::OutOfRange,
            "steps of 4, so the nearest values are 640 and 644."},
        {"Width", 640.0, DeviceFailure::WrongType, "\"Width\" takes integers."},
        {"Width", text("640"), DeviceFailure::WrongType, ""},
        {"Width", true, DeviceFailure::WrongType, ""},
        {"Width", NodeValue(), DeviceFailure::WrongType, "is no command"},
        {"Small", integer(256), DeviceFailure::OutOfRange, "the largest value is 255."},
        {"Small", integer(-1), DeviceFailure::OutOfRange, "the smallest value is 0."},
        {"Gain", 24.5, DeviceFailure::OutOfRange, "to 24.5: the largest value is 24."},
        {"Gain", 0.1, DeviceFailure::OutOfRange, "to 0.1: the smallest value is 0.5."},
        {"Gain", 1.1, DeviceFailure::OutOfRange, "steps of 0.25, so the nearest values are 1 and 1.25."},
        {"Gain", infinity, DeviceFailure::OutOfRange, "has to be a number"},
        {"Gain", text("1"), DeviceFailure::WrongType, ""},
        {"ReverseX", integer(1), DeviceFailure::WrongType, "true or false"},
        {"Format", text("Mono9"), DeviceFailure::OutOfRange,
            "it has no such entry; possible are Mono8, Mono10."},
        {"Format", text("Mono12"), DeviceFailure::OutOfRange, "not available at present; possible are"},
        {"Format", integer(1), DeviceFailure::WrongType, "the name of an entry"},
        {"UserName", text("123456789"), DeviceFailure::OutOfRange, "9 bytes, but only 8 fit"},
        {"UserName", std::string("a\0b", 3), DeviceFailure::InvalidParameter, "zero bytes"},
        {"Table", Bytes{1, 2}, DeviceFailure::OutOfRange, "its length is 4 bytes"},
        {"Table", text("x"), DeviceFailure::WrongType, "bytes"},
        {"Start", integer(1), DeviceFailure::WrongType, "is a command"},
        {"ReadOnly", integer(1), DeviceFailure::NotWritable, "it is read-only"},
        {"Off", integer(1), DeviceFailure::NotAvailable, "which depends on \"Zero\""},
        {"Root", integer(1), DeviceFailure::WrongType, "is a category"},
        {"Nothing", integer(1), DeviceFailure::NotFound, "\"Nothing\""},
    };
    NodeMapHarness camera = makeCamera();
    for (const Case &c : cases) {
        const NodeMap::Failure failure = camera.writeFailure(c.node, c.value);
        EXPECT_EQ(failure.failure, c.failure) << c.node << ": " << failure.text;
        EXPECT_NE(failure.text.find(c.reason), std::string::npos) << failure.text;
    }
    EXPECT_EQ(camera.port.bytes, MemoryPort().bytes);
}

TEST(NodeWriteTest, acceptedValuesReachTheRegisters)
{
    struct Case
    {
        const char *node;
        NodeValue value;
        std::size_t address;
        Bytes bytes;
    };
    const Case cases[] = {
        {"Width", integer(640), 0, {0x80, 0x02, 0, 0}},
        {"Small", integer(255), 4, {255}},
        {"Gain", 1.25, 8, {0, 0, 0xA0, 0x3F}},
        {"Gain", integer(24), 8, {0, 0, 0xC0, 0x41}},
        {"ReverseX", true, 12, {8}},
        {"ReverseX", false, 12, {4}},
        {"Format", text("Mono10"), 16, {2, 0, 0, 0}},
        {"UserName", text("12345678"), 20, {'1', '2', '3', '4', '5', '6', '7', '8'}},
        {"UserName", text("ab"), 20, {'a', 'b', 0}},
        {"Table", Bytes{1, 2, 3, 4}, 32, {1, 2, 3, 4}},
        {"Start", NodeValue(), 36, {1, 0, 0, 0}},
    };
    NodeMapHarness camera = makeCamera();
    for (const Case &c : cases) {
        camera.write(c.node, c.value);
        const auto start = camera.port.bytes.begin() + static_cast<std::ptrdiff_t>(c.address);
        EXPECT_EQ(Bytes(start, start + static_cast<std::ptrdiff_t>(c.bytes.size())), c.bytes) << c.node;
    }
}

TEST(NodeWriteTest, limitBetweenTwoIntegersIsRounded)
{
    NodeMapHarness camera({"Width"},
        element("Integer", "Width", "<pMin>Min</pMin><Inc>2</Inc><pValue>Reg</pValue>")
            + element("Float", "Min", "<Value>15.5</Value>") + element("IntReg", "Reg", registerAt(0)));
    camera.write("Width", integer(18));
    EXPECT_EQ(camera.port.bytes[0], 18);
    EXPECT_NE(camera.writeFailure("Width", integer(17)).text.find("16 and 18"), std::string::npos);
}

TEST(NodeWriteTest, floatsMayDeviateByThePrecisionOfTheRegister)
{
    const std::string nodes = element("Float", "Gain", "<pMin>Limit</pMin><pMax>Limit</pMax><Value>0</Value>")
        + element("Float", "Limit", "<Value>0.10000000149</Value>");
    NodeMapHarness camera({"Gain"}, nodes);
    camera.write("Gain", 0.1);
    EXPECT_EQ(camera.read("Gain"), NodeValue(0.10000000149));
    camera.writeFailure("Gain", 0.1001);
    camera.writeFailure("Gain", 0.0999);
}

TEST(NodeWriteTest, copiesAreWrittenToo)
{
    NodeMapHarness camera({"Node"},
        element("Integer", "Node", "<pValue>A</pValue><pValueCopy>B</pValueCopy>")
            + element("IntReg", "A", registerAt(0)) + element("IntReg", "B", registerAt(4)));
    camera.write("Node", integer(9));
    EXPECT_EQ(camera.port.bytes[0], 9);
    EXPECT_EQ(camera.port.bytes[4], 9);
}

TEST(NodeWriteTest, failureOfTheCameraNamesFeatureAndError)
{
    NodeMapHarness camera = makeCamera();
    camera.port.failingAddresses = {4};
    const NodeMap::Failure failure = camera.writeFailure("Small", integer(1));
    EXPECT_EQ(failure.failure, DeviceFailure::Device);
    EXPECT_EQ(failure.text,
        "The feature \"Small\" cannot be written: GCWritePort failed with error -1010 (no answer).");
}

TEST(NodeWriteTest, computedNodesAreNeverWritten)
{
    NodeMapHarness camera({},
        element("Integer", "Node", "<pValue>Formula</pValue>")
            + element("IntSwissKnife", "Formula", "<Formula>1</Formula>"));
    EXPECT_FALSE(camera.map->writeInteger("Node", 2));
    EXPECT_EQ(camera.map->readInteger("Node"), 1);
}
