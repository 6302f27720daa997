// These tests check the access to the registers of the test producer's camera, and what its port reports.

#include "tests/producer/CameraSession.h"

using namespace GenTL;

class PortFunctions : public CameraSession
{
protected:
    GC_ERROR read(std::uint64_t address, std::size_t size)
    {
        std::string bytes(size, 'x');
        return producer.GCReadPort(port, address, bytes.data(), &size);
    }
    GC_ERROR write(std::uint64_t address, const std::string &bytes)
    {
        std::size_t size = bytes.size();
        return producer.GCWritePort(port, address, bytes.data(), &size);
    }
    InfoCall portInfo(PORT_INFO_CMD command) const { return infoCall(producer.GCGetPortInfo, port, command); }
    InfoCall urlInfo(std::uint32_t index, URL_INFO_CMD command) const
    {
        return infoCall(producer.GCGetPortURLInfo, port, index, command);
    }

    /// Returns readable, writable, not available, not implemented.
    std::string access() const
    {
        std::string text;
        for (const PORT_INFO_CMD command :
            {PORT_INFO_ACCESS_READ, PORT_INFO_ACCESS_WRITE, PORT_INFO_ACCESS_NA, PORT_INFO_ACCESS_NI})
            text += readBool(portInfo(command)) ? '1' : '0';
        return text;
    }
};

TEST_F(PortFunctions, anyBytesCanBeWrittenAndReadBack)
{
    EXPECT_EQ(write(3, "register"), GC_ERR_SUCCESS);
    char bytes[8] = {};
    std::size_t size = 5;
    EXPECT_EQ(producer.GCReadPort(port, 4, bytes, &size), GC_ERR_SUCCESS);
    EXPECT_EQ(std::string(bytes), "egist");
    EXPECT_EQ(size, 5U);
    EXPECT_EQ(producer.GCReadPort(port, 0, nullptr, &size), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(producer.GCReadPort(port, 0, bytes, nullptr), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(producer.GCWritePort(port, 0, nullptr, &size), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(producer.GCWritePort(port, 0, bytes, nullptr), GC_ERR_INVALID_PARAMETER);
}

TEST_F(PortFunctions, failureOfTheCameraReachesTheConsumer)
{
    EXPECT_EQ(read(Registers::memorySize - 1, 2), GC_ERR_INVALID_ADDRESS);
    EXPECT_EQ(session.lastError().second, "There is no memory.");
    for (const GC_ERROR code : {GC_ERR_IO, GC_ERR_TIMEOUT, GC_ERR_INVALID_VALUE, GC_ERR_ACCESS_DENIED}) {
        writeRegister(Registers::fail, static_cast<std::uint64_t>(code));
        EXPECT_EQ(read(0, 4), code);
        EXPECT_EQ(write(0, "1234"), code);
        EXPECT_EQ(session.lastError(), std::pair(code, std::string("The access fails.")));
    }
}

TEST_F(PortFunctions, cameraOpenedForReadingIsNeverWritten)
{
    EXPECT_EQ(producer.DevClose(device), GC_ERR_SUCCESS);
    EXPECT_EQ(producer.IFOpenDevice(interface, "camera", DEVICE_ACCESS_READONLY, &device), GC_ERR_SUCCESS);
    port = portOf(device);
    EXPECT_EQ(read(0, 4), GC_ERR_SUCCESS);
    EXPECT_EQ(write(0, "1234"), GC_ERR_ACCESS_DENIED);
    EXPECT_EQ(access(), "1000");
}

TEST_F(PortFunctions, stackedAccessStopsAtTheFirstFailure)
{
    char first[2] = {'a', 'b'};
    char second[3] = {'c', 'd', 'e'};
    PORT_REGISTER_STACK_ENTRY entries[]
        = {{0, first, 2}, {2, second, 3}, {Registers::memorySize - 1, second, 3}, {0, first, 2}};
    std::size_t count = 2;
    EXPECT_EQ(producer.GCWritePortStacked(port, entries, &count), GC_ERR_SUCCESS);
    EXPECT_EQ(count, 2U);
    count = 4;
    EXPECT_EQ(producer.GCWritePortStacked(port, entries, &count), GC_ERR_INVALID_ADDRESS);
    EXPECT_EQ(count, 2U);
    char all[5] = {};
    PORT_REGISTER_STACK_ENTRY parts[] = {{0, all, 4}, {4, all + 4, 1}, {0, nullptr, 1}};
    count = 2;
    EXPECT_EQ(producer.GCReadPortStacked(port, parts, &count), GC_ERR_SUCCESS);
    EXPECT_EQ(std::string(all, sizeof all), "abcde");
    count = 3;
    EXPECT_EQ(producer.GCReadPortStacked(port, parts, &count), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(count, 2U);
    EXPECT_EQ(producer.GCReadPortStacked(port, nullptr, &count), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(producer.GCWritePortStacked(port, entries, nullptr), GC_ERR_INVALID_PARAMETER);
}

TEST_F(PortFunctions, portReportsWhatItIs)
{
    const std::pair<PORT_INFO_CMD, const char *> expected[] = {{PORT_INFO_ID, "camera"},
        {PORT_INFO_VENDOR, "Camera Vendor"}, {PORT_INFO_MODEL, "Camera Model"}, {PORT_INFO_TLTYPE, "GEV"},
        {PORT_INFO_MODULE, "Device"}, {PORT_INFO_VERSION, ""}, {PORT_INFO_PORTNAME, "Device"}};
    for (const auto &[command, text] : expected)
        EXPECT_EQ(readString(portInfo(command)), text) << command;
    for (const PORT_INFO_CMD command : {-1, 13, 1000})
        EXPECT_EQ(codeOf(portInfo(command)), GC_ERR_NOT_IMPLEMENTED);
    EXPECT_TRUE(readBool(portInfo(PORT_INFO_LITTLE_ENDIAN)));
    EXPECT_FALSE(readBool(portInfo(PORT_INFO_BIG_ENDIAN)));
    EXPECT_EQ(access(), "1100");
    writeRegister(Registers::lose, 1);
    EXPECT_EQ(access(), "0010");
    port = portOf(openDevice("control only"));
    EXPECT_FALSE(readBool(portInfo(PORT_INFO_LITTLE_ENDIAN)));
    EXPECT_TRUE(readBool(portInfo(PORT_INFO_BIG_ENDIAN)));
}

TEST_F(PortFunctions, placesOfTheDescriptionAreTakenApart)
{
    struct Row
    {
        const char *url;
        std::optional<URL_SCHEME_ID> scheme;
        const char *file;
        std::optional<std::uint64_t> address;
        std::optional<std::uint64_t> size;
    };
    const Row rows[] = {
        {"Local:test.xml;1A0;2F", URL_SCHEME_LOCAL, "test.xml", 0x1A0, 0x2F},
        {"File:///usr/share/cameras/test.zip", URL_SCHEME_FILE, "test.zip", {}, {}},
        {"Http://host/test.xml", URL_SCHEME_HTTP, "test.xml", {}, {}},
        {"gopher:test.xml", {}, "gopher:test.xml", {}, {}},
        {"local:/folder/test.xml;12;3x", URL_SCHEME_LOCAL, "test.xml", 0x12, {}},
        {"LOCAL:test.xml;1", URL_SCHEME_LOCAL, "test.xml", {}, {}},
        {"Local:v.xml;10;20", URL_SCHEME_LOCAL, "v.xml", 0x10, 0x20},
        {"File:v.zip", URL_SCHEME_FILE, "v.zip", {}, {}},
    };
    std::uint32_t count = 0;
    EXPECT_EQ(producer.GCGetNumPortURLs(port, &count), GC_ERR_SUCCESS);
    ASSERT_EQ(count, std::size(rows));
    std::vector<std::string> urls;
    const auto expectLong = [&](const InfoCall &call, const std::optional<std::uint64_t> &value) {
        EXPECT_EQ(codeOf(call), value ? GC_ERR_SUCCESS : GC_ERR_NOT_AVAILABLE);
        if (value) {
            EXPECT_EQ(readLong(call, INFO_DATATYPE_UINT64), *value);
        }
    };
    for (std::uint32_t i = 0; i < count; ++i) {
        urls.push_back(rows[i].url);
        EXPECT_EQ(readString(urlInfo(i, URL_INFO_URL)), rows[i].url);
        EXPECT_EQ(readString(urlInfo(i, URL_INFO_FILENAME)), rows[i].file);
        EXPECT_EQ(
            codeOf(urlInfo(i, URL_INFO_SCHEME)), rows[i].scheme ? GC_ERR_SUCCESS : GC_ERR_NOT_AVAILABLE);
        if (rows[i].scheme) {
            EXPECT_EQ(readNumber(urlInfo(i, URL_INFO_SCHEME), INFO_DATATYPE_INT32), *rows[i].scheme);
        }
        expectLong(urlInfo(i, URL_INFO_FILE_REGISTER_ADDRESS), rows[i].address);
        expectLong(urlInfo(i, URL_INFO_FILE_SIZE), rows[i].size);
    }
    EXPECT_EQ(readStringList(idCall(producer.GCGetPortURL, port)), urls);
}

TEST_F(PortFunctions, versionOfTheSchemaIsReportedApartFromTheUrl)
{
    const auto version = [this](std::uint32_t index, URL_INFO_CMD command) {
        return readNumber(urlInfo(index, command), INFO_DATATYPE_INT32);
    };
    EXPECT_EQ(version(6, URL_INFO_SCHEMA_VER_MAJOR), 1);
    EXPECT_EQ(version(6, URL_INFO_SCHEMA_VER_MINOR), 2);
    EXPECT_EQ(version(7, URL_INFO_SCHEMA_VER_MAJOR), 2);
    EXPECT_EQ(version(7, URL_INFO_SCHEMA_VER_MINOR), 4);
}

TEST_F(PortFunctions, unknownPartsOfTheDescriptionAreNotInvented)
{
    for (URL_INFO_CMD command = URL_INFO_SCHEMA_VER_MAJOR; command <= URL_INFO_FILE_SHA1_HASH; ++command)
        EXPECT_EQ(codeOf(urlInfo(0, command)), GC_ERR_NOT_AVAILABLE) << command;
    for (const URL_INFO_CMD command : {-1, 11, 1000})
        EXPECT_EQ(codeOf(urlInfo(0, command)), GC_ERR_NOT_IMPLEMENTED) << command;
    EXPECT_EQ(codeOf(urlInfo(8, URL_INFO_URL)), GC_ERR_INVALID_INDEX);
    EXPECT_EQ(producer.GCGetNumPortURLs(port, nullptr), GC_ERR_INVALID_PARAMETER);
    port = portOf(openDevice("control only"));
    std::uint32_t count = 1;
    EXPECT_EQ(producer.GCGetNumPortURLs(port, &count), GC_ERR_SUCCESS);
    EXPECT_EQ(count, 0U);
    EXPECT_TRUE(readStringList(idCall(producer.GCGetPortURL, port)).empty());
}
