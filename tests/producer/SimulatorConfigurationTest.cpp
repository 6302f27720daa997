// These tests check what a configuration file of the simulator may contain.

#include "sdk/simulator/SimulatorConfiguration.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <utility>

namespace {

constexpr auto readWrite = GenTL::DEVICE_ACCESS_STATUS_READWRITE;

/// Returns the text of a configuration whose interface "net" has these devices.
std::string withDevices(const std::string &devices)
{
    return R"({"interfaces": [{"id": "net", "tlType": "GEV", "devices": [)" + devices + "]}]}";
}

/// Returns the message of the exception that parsing this text throws, or "none".
std::string problemOf(const std::string &text)
{
    try {
        parseConfiguration(text);
        return "none";
    } catch (const std::runtime_error &error) {
        return error.what();
    }
}

} // namespace

bool operator==(const SimulatedInterface &left, const SimulatedInterface &right)
{
    return left.record == right.record && left.devices == right.devices;
}

TEST(SimulatorConfiguration, defaultConfigurationHasTwoCameras)
{
    EXPECT_EQ(defaultConfiguration(),
        (SimulatorConfiguration{{{"simulator", "Camera Simulator", "Custom"},
            {{"corvix-simulator-0001", "Orvelle", "Camera Simulator", "Custom",
                 "Orvelle Camera Simulator corvix-simulator-0001", "", "SIM0001", readWrite, "1.0"},
                {"corvix-simulator-0002", "Orvelle", "Camera Simulator", "Custom",
                    "Orvelle Camera Simulator corvix-simulator-0002", "", "SIM0002", readWrite, "1.0"}}}}));
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
                {{"a", "Vendor", u8"カメラ \U0001F4F7", "U3V", "Shown", "tab\t", "0042", readWrite, "1.0"},
                    {"b", "", "", "GEV", "b", "", "", readWrite, "1.0"}}},
            {{"usb", "usb", "Custom"}, {{"a", "", "", "Custom", "a", "", "", readWrite, "1.0"}}},
            {{"none", "none", "Custom"}, {}}}));
    EXPECT_TRUE(parseConfiguration(R"({"interfaces": []})").empty());
}

TEST(SimulatorConfiguration, emptyDisplayNameIsReplaced)
{
    const std::pair<const char *, const char *> expected[] = {
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

TEST(SimulatorConfiguration, mistakeIsReportedWithItsPlace)
{
    const std::pair<std::string, std::string> expected[] = {
        // Each row contains a text and the start of its error message.
        {"", "[json.exception.parse_error"},
        {R"({"interfaces": [], "note": 1e999})", "[json.exception.out_of_range"},
        {"[]", R"(the file contains no object with "interfaces")"},
        {"{}", R"(the file contains no object with "interfaces")"},
        {R"({"interfaces": {}})", "interfaces is not an array"},
        {R"({"interfaces": [1]})", "interfaces[0] is not an object"},
        {R"({"interfaces": [{"id": ""}]})", R"(interfaces[0]: "id" is missing or empty)"},
        {R"({"interfaces": [{"id": "n", "devices": "x"}]})", "interfaces[0].devices is not an array"},
        {R"({"interfaces": [{"id": "a"}, {"id": "b"}, {"id": "a"}]})",
            R"(interfaces[2]: "id" is already used by interfaces[0])"},
        {withDevices("null"), "interfaces[0].devices[0] is not an object"},
        {withDevices(R"({"id": "a"}, {"model": "M"})"),
            R"(interfaces[0].devices[1]: "id" is missing or empty)"},
        {withDevices(R"({"id": "a"}, {"id": "b"}, {"id": "b"})"),
            R"(interfaces[0].devices[2]: "id" is already used by interfaces[0].devices[1])"},
        {withDevices(R"({"id": "a", "serial": 42})"),
            R"(interfaces[0].devices[0]: "serial" is not a string)"},
        {withDevices(R"({"id": "a\u0000b"})"), R"(interfaces[0].devices[0]: "id" contains a NUL character)"},
    };
    for (const auto &[text, message] : expected)
        EXPECT_EQ(problemOf(text).substr(0, message.size()), message) << text;
}
