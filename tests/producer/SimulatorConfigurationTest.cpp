// What a configuration file of the simulator may contain.

#include "sdk/simulator/SimulatorConfiguration.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

constexpr auto readWrite = GenTL::DEVICE_ACCESS_STATUS_READWRITE;

/// Returns the text of a configuration with this list of devices on the interface "net".
std::string withDevices(const std::string &devices)
{
    return R"({"interfaces": [{"id": "net", "tlType": "GEV", "devices": [)" + devices + "]}]}";
}

struct Mistake
{
    const char *name;
    std::string text;
    const char *message; ///< The start of the message.
};

std::ostream &operator<<(std::ostream &stream, const Mistake &mistake)
{
    return stream << mistake.name;
}

struct DisplayName
{
    const char *device;
    const char *expected;
};

} // namespace

bool operator==(const SimulatedInterface &left, const SimulatedInterface &right)
{
    return left.record == right.record && left.devices == right.devices;
}

TEST(SimulatorConfiguration, defaultHasTwoCameras)
{
    EXPECT_EQ(defaultConfiguration(),
        (SimulatorConfiguration{{{"simulator", "Camera Simulator", "Custom"},
            {{"corvix-simulator-0001", "Orvelle", "Camera Simulator", "Custom",
                 "Orvelle Camera Simulator corvix-simulator-0001", "", "SIM0001", readWrite},
                {"corvix-simulator-0002", "Orvelle", "Camera Simulator", "Custom",
                    "Orvelle Camera Simulator corvix-simulator-0002", "", "SIM0002", readWrite}}}}));
}

TEST(SimulatorConfiguration, everyKeyIsRead)
{
    EXPECT_EQ(parseConfiguration(R"({"note": 1, "interfaces": [
            {"id": "net", "name": "Network", "tlType": "GEV", "devices": [
                {"id": "a", "vendor": "Vendor", "model": "カメラ \ud83d\udcf7", "serial": "0042",
                 "userName": "tab\t", "displayName": "Shown", "tlType": "U3V"},
                {"id": "b", "note": null}]},
            {"id": "usb", "devices": [{"id": "a"}]},
            {"id": "none", "name": "", "tlType": ""}]})"),
        (SimulatorConfiguration{
            {{"net", "Network", "GEV"},
                {{"a", "Vendor", u8"カメラ \U0001F4F7", "U3V", "Shown", "tab\t", "0042", readWrite},
                    {"b", "", "", "GEV", "b", "", "", readWrite}}},
            {{"usb", "usb", "Custom"}, {{"a", "", "", "Custom", "a", "", "", readWrite}}},
            {{"none", "none", "Custom"}, {}}}));
    EXPECT_TRUE(parseConfiguration(R"({"interfaces": []})").empty());
}

TEST(SimulatorConfiguration, emptyDisplayNameIsReplaced)
{
    const DisplayName expected[] = {
        {R"({"id": "a", "vendor": "V", "model": "M", "userName": "U", "displayName": ""})", "U"},
        {R"({"id": "a", "vendor": "V", "model": "M", "userName": ""})", "V M a"},
        {R"({"id": "a", "model": "M", "tlType": ""})", "M a"},
        {R"({"id": "a", "vendor": "V"})", "V a"},
    };
    for (const auto &[device, name] : expected) {
        const DeviceRecord record = parseConfiguration(withDevices(device)).at(0).devices.at(0);
        EXPECT_EQ(record.displayName, name) << device;
        EXPECT_EQ(record.tlType, "GEV") << device;
    }
}

class ConfigurationMistake : public testing::TestWithParam<Mistake>
{ };

TEST_P(ConfigurationMistake, isReportedWithItsPlace)
{
    try {
        parseConfiguration(GetParam().text);
        ADD_FAILURE() << "nothing was thrown";
    } catch (const std::runtime_error &error) {
        EXPECT_EQ(std::string(error.what()).rfind(GetParam().message, 0), 0U) << error.what();
    }
}

INSTANTIATE_TEST_SUITE_P(All, ConfigurationMistake,
    testing::Values(Mistake{"EmptyFile", "", "[json.exception.parse_error"},
        Mistake{"HalfWritten", R"({"interfaces": [{"id": "net", "dev)", "[json.exception.parse_error"},
        Mistake{"BadUtf8", withDevices("{\"id\": \"a\xff\xfe\"}"), "[json.exception.parse_error"},
        Mistake{"NumberOutOfRange", R"({"interfaces": [], "note": 1e999})", "[json.exception.out_of_range"},
        Mistake{"NoObject", "[]", R"(the file contains no object with "interfaces")"},
        Mistake{"NoInterfaces", "{}", R"(the file contains no object with "interfaces")"},
        Mistake{"InterfacesNoArray", R"({"interfaces": {}})", "interfaces is not an array"},
        Mistake{"InterfaceNoObject", R"({"interfaces": [1]})", "interfaces[0] is not an object"},
        Mistake{"InterfaceWithoutId", R"({"interfaces": [{"name": "x"}]})",
            R"(interfaces[0]: "id" is missing or empty)"},
        Mistake{"InterfaceIdEmpty", R"({"interfaces": [{"id": ""}]})",
            R"(interfaces[0]: "id" is missing or empty)"},
        Mistake{"DevicesNoArray", R"({"interfaces": [{"id": "n", "devices": "x"}]})",
            "interfaces[0].devices is not an array"},
        Mistake{"DeviceNoObject", withDevices("null"), "interfaces[0].devices[0] is not an object"},
        Mistake{"DeviceWithoutId", withDevices(R"({"id": "a"}, {"model": "M"})"),
            R"(interfaces[0].devices[1]: "id" is missing or empty)"},
        Mistake{"InterfaceIdTwice", R"({"interfaces": [{"id": "a"}, {"id": "b"}, {"id": "a"}]})",
            R"(interfaces[2]: "id" is already used by interfaces[0])"},
        Mistake{"DeviceIdTwice", withDevices(R"({"id": "a"}, {"id": "b"}, {"id": "b"})"),
            R"(interfaces[0].devices[2]: "id" is already used by interfaces[0].devices[1])"},
        Mistake{"NumberForString", withDevices(R"({"id": "a", "serial": 42})"),
            R"(interfaces[0].devices[0]: "serial" is not a string)"},
        Mistake{"NullForString", withDevices(R"({"id": "a", "userName": null})"),
            R"(interfaces[0].devices[0]: "userName" is not a string)"},
        Mistake{"NulInString", withDevices(R"({"id": "a\u0000b"})"),
            R"(interfaces[0].devices[0]: "id" contains a NUL character)"}),
    [](const auto &parameter) { return std::string(parameter.param.name); });
