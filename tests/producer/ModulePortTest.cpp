// These tests check the ports of the producer's own modules with the test producer: their features as a
// consumer with a node map sees them, and the registers below.

#include "tests/producer/CameraSession.h"
#include "tests/producer/PortNodes.h"

#include <set>

using namespace GenTL;
using Lines = std::vector<std::string>;

class ModulePorts : public CameraSession
{
protected:
    ModulePorts() { openStream(); }

    PortNodes nodes(PORT_HANDLE module) const { return PortNodes(producer, module); }

    GC_ERROR read(PORT_HANDLE module, std::uint64_t address, std::size_t size) const
    {
        std::string bytes(size, 'x');
        return producer.GCReadPort(module, address, bytes.data(), &size);
    }
    GC_ERROR write(PORT_HANDLE module, std::uint64_t address, const std::string &bytes) const
    {
        std::size_t size = bytes.size();
        return producer.GCWritePort(module, address, bytes.data(), &size);
    }

    /// Returns the address of a register, which the description contains.
    std::uint64_t addressOf(PORT_HANDLE module, const std::string &node) const
    {
        const std::string xml = nodes(module).xml();
        const std::size_t start = xml.find("<Address>", xml.find("Name=\"" + node + '"'));
        return std::stoull(xml.substr(start + 9), nullptr, 16);
    }
};

TEST_F(ModulePorts, systemModuleDescribesTheProducer)
{
    const PortNodes system = nodes(session.system());
    EXPECT_EQ(system.dump(),
        (Lines{
            "SystemInformation.TLID: TestProducer",
            "SystemInformation.TLVendorName: Test Vendor",
            "SystemInformation.TLModelName: Test Model",
            "SystemInformation.TLVersion: 1.2.3",
            "SystemInformation.TLPath: " + producer.file().string(),
            "SystemInformation.TLType: Mixed",
            "SystemInformation.GenTLVersionMajor: 1",
            "SystemInformation.GenTLVersionMinor: 5",
            "InterfaceEnumeration.InterfaceUpdateList (writable): command",
            "InterfaceEnumeration.InterfaceSelector (writable): 0",
            "InterfaceEnumeration.InterfaceID: one",
        }));
    EXPECT_TRUE(system.write("InterfaceSelector", "1"));
    EXPECT_EQ(system.read("InterfaceID"), "two");
    EXPECT_FALSE(system.write("InterfaceSelector", "2"));
    EXPECT_EQ(system.read("InterfaceSelector"), "1");
}

TEST_F(ModulePorts, interfaceModuleListsItsDevices)
{
    const PortNodes one = nodes(interface);
    EXPECT_TRUE(one.write("DeviceSelector", "2"));
    EXPECT_EQ(one.dump(),
        (Lines{
            "InterfaceInformation.InterfaceID: one",
            "InterfaceInformation.InterfaceDisplayName: Interface One",
            "InterfaceInformation.InterfaceType: GigEVision",
            "DeviceEnumeration.DeviceUpdateList (writable): command",
            "DeviceEnumeration.DeviceSelector (writable): 2",
            "DeviceEnumeration.DeviceID: in use",
            "DeviceEnumeration.DeviceVendorName: Camera Vendor",
            "DeviceEnumeration.DeviceModelName: Camera Model",
            "DeviceEnumeration.DeviceAccessStatus: ReadWrite",
            "DeviceEnumeration.DeviceSerialNumber: Serial",
            "DeviceEnumeration.DeviceUserID: User",
        }));
}

TEST_F(ModulePorts, emptyListHasNoSelectedEntry)
{
    const IF_HANDLE two = session.open("two");
    const PortNodes interfaceTwo = nodes(two);
    EXPECT_EQ(interfaceTwo.dump(),
        (Lines{
            "InterfaceInformation.InterfaceID: two",
            "InterfaceInformation.InterfaceDisplayName: Interface Two",
            "InterfaceInformation.InterfaceType: USB3Vision",
            "DeviceEnumeration.DeviceUpdateList (writable): command",
            "DeviceEnumeration.DeviceSelector (writable): not available",
            "DeviceEnumeration.DeviceID: not available",
            "DeviceEnumeration.DeviceVendorName: not available",
            "DeviceEnumeration.DeviceModelName: not available",
            "DeviceEnumeration.DeviceAccessStatus: not available",
            "DeviceEnumeration.DeviceSerialNumber: not available",
            "DeviceEnumeration.DeviceUserID: not available",
        }));
    EXPECT_EQ(read(two, addressOf(two, "DeviceID"), 8), GC_ERR_NOT_AVAILABLE);
    EXPECT_EQ(write(two, addressOf(two, "DeviceSelectorValue"), std::string(8, '\0')), GC_ERR_INVALID_VALUE);
}

TEST_F(ModulePorts, updateCommandsSearch)
{
    const IF_HANDLE two = session.open("two");
    std::uint32_t count = 1;
    EXPECT_EQ(producer.IFGetNumDevices(two, &count), GC_ERR_NOT_AVAILABLE);
    EXPECT_TRUE(nodes(two).execute("DeviceUpdateList"));
    EXPECT_EQ(producer.IFGetNumDevices(two, &count), GC_ERR_SUCCESS);

    EXPECT_EQ(producer.TLClose(session.system()), GC_ERR_SUCCESS);
    TL_HANDLE system = nullptr;
    EXPECT_EQ(producer.TLOpen(&system), GC_ERR_SUCCESS);
    EXPECT_EQ(nodes(system).read("InterfaceID"), std::nullopt);
    EXPECT_TRUE(nodes(system).execute("InterfaceUpdateList"));
    EXPECT_EQ(nodes(system).read("InterfaceID"), "one");
}

TEST_F(ModulePorts, deviceModuleNamesItsStream)
{
    EXPECT_EQ(nodes(device).dump(),
        (Lines{
            "DeviceInformation.DeviceID: camera",
            "DeviceInformation.DeviceVendorName: Camera Vendor",
            "DeviceInformation.DeviceModelName: Camera Model",
            "DeviceInformation.DeviceType: GigEVision",
            "StreamEnumeration.StreamSelector (writable): 0",
            "StreamEnumeration.StreamID: " + streamId(),
        }));
    EXPECT_TRUE(nodes(device).write("StreamSelector", "0"));
    EXPECT_FALSE(nodes(device).write("StreamSelector", "1"));
    EXPECT_EQ(nodes(openDevice("control only")).read("StreamID"), std::nullopt);
}

TEST_F(ModulePorts, streamModuleCountsItsBuffers)
{
    for (int i = 0; i < 5; ++i)
        queueBuffer();
    announceBuffer();
    const EVENT_HANDLE event = registerEvent(stream, EVENT_NEW_BUFFER);
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    writeRegister(Registers::deliver, 3);
    BUFFER_HANDLE buffer = nullptr;
    EXPECT_EQ(fetch(event, &buffer), GC_ERR_SUCCESS);
    const PortNodes nodesOfStream = nodes(stream);
    EXPECT_EQ(nodesOfStream.dump(),
        (Lines{
            "StreamInformation.StreamID: " + streamId(),
            "StreamInformation.StreamType: GigEVision",
            "BufferHandlingControl.StreamBufferHandlingMode (writable): Default",
            "BufferHandlingControl.StreamAnnounceBufferMinimum: 1",
            "BufferHandlingControl.StreamAnnouncedBufferCount: 6",
            "BufferHandlingControl.StreamInputBufferCount: 2",
            "BufferHandlingControl.StreamOutputBufferCount: 2",
            "BufferHandlingControl.StreamDeliveredFrameCount: 1",
            "BufferHandlingControl.StreamStartedFrameCount: 3",
            "BufferHandlingControl.StreamLostFrameCount: 0",
        }));
    EXPECT_TRUE(nodesOfStream.write("StreamBufferHandlingMode", "Default"));
    EXPECT_EQ(write(stream, addressOf(stream, "StreamBufferHandlingModeValue"), std::string(8, '\1')),
        GC_ERR_INVALID_VALUE);
    writeRegister(Registers::deliver, 10); // 8 find no buffer, and the camera reports 1 lost image.
    EXPECT_EQ(nodesOfStream.read("StreamLostFrameCount"), "9");
}

TEST_F(ModulePorts, portOfEachModuleDescribesItself)
{
    const std::pair<void *, Lines> expected[] = {
        {session.system(),
            {"TestProducer", "Test Vendor", "Test Model", "Mixed", "TLSystem", "1.2.3", "TLPort"}},
        {interface, {"one", "Test Vendor", "Interface One", "GEV", "TLInterface", "1.2.3", "InterfacePort"}},
        {device, {"camera", "Camera Vendor", "Camera Model", "GEV", "TLDevice", "1.2.3", "DevicePort"}},
        {stream, {streamId(), "Camera Vendor", "Camera Model", "GEV", "TLDataStream", "1.2.3", "StreamPort"}},
    };
    std::set<std::string> descriptions;
    for (const auto &[module, texts] : expected) {
        Lines found;
        for (const PORT_INFO_CMD command : {PORT_INFO_ID, PORT_INFO_VENDOR, PORT_INFO_MODEL, PORT_INFO_TLTYPE,
                 PORT_INFO_MODULE, PORT_INFO_VERSION, PORT_INFO_PORTNAME})
            found.push_back(readString(infoCall(producer.GCGetPortInfo, module, command)));
        EXPECT_EQ(found, texts);
        const std::pair<URL_INFO_CMD, std::int32_t> versions[]
            = {{URL_INFO_SCHEMA_VER_MAJOR, 1}, {URL_INFO_SCHEMA_VER_MINOR, 1}, {URL_INFO_FILE_VER_MAJOR, 1},
                {URL_INFO_FILE_VER_MINOR, 0}, {URL_INFO_FILE_VER_SUBMINOR, 0}};
        for (const auto &[command, version] : versions)
            EXPECT_EQ(readNumber(infoCall(producer.GCGetPortURLInfo, module, std::uint32_t(0), command),
                          INFO_DATATYPE_INT32),
                version);
        const std::string xml = nodes(module).xml();
        const std::size_t guid = xml.find("VersionGuid=");
        EXPECT_TRUE(descriptions.insert(xml.substr(guid, 50)).second) << "a GUID of its own";
        EXPECT_NE(xml.find("Port Name=\"" + texts.back() + '"'), std::string::npos);
    }
}

TEST_F(ModulePorts, registersAreAccessedAtTheirAddressesOnly)
{
    const std::uint64_t text = addressOf(device, "DeviceID");
    const std::uint64_t number = addressOf(device, "StreamSelectorValue");
    const std::uint64_t xml = readLong(
        infoCall(producer.GCGetPortURLInfo, device, std::uint32_t(0), URL_INFO_FILE_REGISTER_ADDRESS),
        INFO_DATATYPE_UINT64);
    const std::size_t xmlSize = nodes(device).xml().size();
    struct Row
    {
        std::uint64_t address;
        std::size_t size;
        GC_ERROR code;
    };
    const Row reads[] = {{text, 1, GC_ERR_SUCCESS}, {text + 4095, 1, GC_ERR_SUCCESS},
        {text + 4095, 2, GC_ERR_INVALID_ADDRESS}, {number + 4, 4, GC_ERR_SUCCESS},
        {number + 4, 5, GC_ERR_INVALID_ADDRESS}, {number + 8, 1, GC_ERR_INVALID_ADDRESS},
        {0, 1, GC_ERR_INVALID_ADDRESS}, {xml - 1, 1, GC_ERR_INVALID_ADDRESS}, {xml + 10, 10, GC_ERR_SUCCESS},
        {xml, xmlSize + 1, GC_ERR_INVALID_ADDRESS}, {UINT64_MAX, 1, GC_ERR_INVALID_ADDRESS}};
    for (const auto &[address, size, code] : reads)
        EXPECT_EQ(read(device, address, size), code) << std::hex << address;
    const Row writes[] = {{text, 4096, GC_ERR_ACCESS_DENIED}, {number, 8, GC_ERR_SUCCESS},
        {number, 4, GC_ERR_INVALID_ADDRESS}, {number + 4, 8, GC_ERR_INVALID_ADDRESS},
        {xml, 8, GC_ERR_INVALID_ADDRESS}, {0, 8, GC_ERR_INVALID_ADDRESS}};
    for (const auto &[address, size, code] : writes)
        EXPECT_EQ(write(device, address, std::string(size, '\0')), code) << std::hex << address;
}
