#include "sdk/cvxcpp/KnownInterfaces.h"

#include <gtest/gtest.h>
#include <string>

using namespace std::chrono_literals;

using Ids = std::vector<std::string>;

namespace {

/// Returns an interface with one device for each character of `ids`.
InterfaceRecord interfaceWith(const std::string &ids, const std::string &type = "GEV",
    const std::string &id = "x", std::uint64_t number = 1)
{
    InterfaceRecord record{number, id, "", type, {}};
    for (const char device : ids)
        record.devices.push_back({std::string(1, device), "", "", "", "", ""});
    return record;
}

bool holdAll(const InterfaceRecord &, const DeviceRecord &, TimePoint)
{
    return true;
}

bool holdNone(const InterfaceRecord &, const DeviceRecord &, TimePoint)
{
    return false;
}

/// Returns the interfaces and their devices, for example "x:12 y:" for two interfaces.
std::string textOf(const KnownInterfaces &known)
{
    std::string text;
    for (const auto &record : known.records()) {
        text += (text.empty() ? "" : " ") + record->id + ':';
        for (const DeviceRecord &device : record->devices)
            text += device.id;
    }
    return text;
}

} // namespace

TEST(KnownInterfacesTest, searchesInARowDecideWhatIsKept)
{
    struct Step
    {
        SearchKind kind;
        const char *reported, *known;
    };
    constexpr SearchKind quick = SearchKind::Short, full = SearchKind::Background,
                         complete = SearchKind::SelfUpdating;
    const struct
    {
        const char *name, *type;
        std::vector<Step> steps;
    } rows[] = {
        {"second miss in a row removes the device", "GEV",
            {{full, "12", "12"}, {full, "2", "12"}, {full, "2", "2"}}},
        {"alternating misses remove nothing", "GEV",
            {{full, "12", "12"}, {full, "1", "12"}, {full, "2", "12"}, {full, "1", "12"}, {full, "2", "12"}}},
        {"short search adds and never removes", "GEV",
            {{quick, "1", "1"}, {quick, "2", "12"}, {quick, "", "12"}, {quick, "", "12"}}},
        {"short search does not count as a miss", "GEV",
            {{full, "1", "1"}, {full, "", "1"}, {quick, "", "1"}, {quick, "", "1"}, {full, "", ""}}},
        {"short search that reports the device counts as seen", "GEV",
            {{full, "1", "1"}, {full, "", "1"}, {quick, "1", "1"}, {full, "", "1"}, {full, "", ""}}},
        {"device of a short search has two background searches", "GEV",
            {{quick, "1", "1"}, {full, "", "1"}, {full, "", ""}}},
        {"Ethernet is a network", "eTHERNET", {{full, "1", "1"}, {full, "", "1"}, {full, "", ""}}},
        {"other interfaces forget at once", "U3V", {{full, "12", "12"}, {full, "1", "1"}, {quick, "", ""}}},
        {"producer that keeps its list", "GEV", {{complete, "12", "12"}, {complete, "1", "1"}}},
        {"device that returns", "GEV",
            {{full, "1", "1"}, {full, "", "1"}, {full, "", ""}, {full, "1", "1"}, {full, "", "1"}}},
    };
    for (const auto &row : rows) {
        KnownInterfaces known;
        std::size_t number = 0;
        for (const Step &step : row.steps) {
            SCOPED_TRACE(row.name + std::string(", search ") + std::to_string(++number));
            const std::string before = textOf(known);
            const bool isReplyNew = known.replaceAll({interfaceWith(step.reported, row.type)}, step.kind, {});
            const bool isAnyRemoved = known.removeMissing(holdNone);
            EXPECT_EQ(textOf(known), std::string("x:") + step.known);
            EXPECT_EQ(isReplyNew || isAnyRemoved, textOf(known) != before);
        }
    }
}

TEST(KnownInterfacesTest, deviceTypeDecidesWhereTheInterfaceTypeSaysNothing)
{
    const struct
    {
        const char *interface, *device;
        bool isNetwork;
    } rows[] = {
        {"", "GEV", true},
        {"", "Ethernet", true},
        {"", "U3V", false},
        {"", "", false},
        {"Mixed", "gev", true},
        {"mixed", "Custom", false},
        {"GEV", "U3V", true},
        {"CXP", "GEV", false},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.interface + std::string("/") + row.device);
        KnownInterfaces known;
        InterfaceRecord record{1, "x", "", row.interface, {{"1", "", "", "", "", row.device}}};
        known.replaceAll({record}, SearchKind::Background, {});
        record.devices.clear();
        known.replaceAll({record}, SearchKind::Background, {});
        EXPECT_EQ(known.hasMissing(), !row.isNetwork);
    }
}

TEST(KnownInterfacesTest, missingDeviceStaysAsLongAsItIsHeld)
{
    KnownInterfaces known;
    const TimePoint start = TimePoint() + 1h;
    known.replaceAll({interfaceWith("12")}, SearchKind::Background, start);
    const auto record = known.find("x");
    known.replaceAll({interfaceWith("2")}, SearchKind::Background, start + 2s);
    EXPECT_FALSE(known.hasMissing());
    EXPECT_FALSE(known.replaceAll({interfaceWith("2")}, SearchKind::Background, start + 4s));
    EXPECT_TRUE(known.hasMissing());
    EXPECT_FALSE(known.removeMissing(holdAll));
    EXPECT_EQ(known.find("x"), record) << "the same object";

    std::vector<std::pair<std::string, TimePoint>> questions;
    const auto remember = [&](const InterfaceRecord &interface, const DeviceRecord &device, TimePoint time) {
        questions.emplace_back(interface.id + device.id, time);
        return true;
    };
    known.replaceAll({interfaceWith("2")}, SearchKind::Short, start + 5s);
    known.removeMissing(remember);
    EXPECT_EQ(questions, (decltype(questions){{"x1", start}})) << "time of the last report";
    known.replaceAll({interfaceWith("12")}, SearchKind::Short, start + 6s);
    EXPECT_FALSE(known.hasMissing()) << "reported again";
    EXPECT_EQ(known.find("x"), record);
}

TEST(KnownInterfacesTest, deviceThatAnotherInterfaceReportsIsNotHeld)
{
    KnownInterfaces known;
    const auto search = [&](const char *x, const char *y) {
        known.replaceAll(
            {interfaceWith(x, "U3V", "x", 1), interfaceWith(y, "U3V", "y", 2)}, SearchKind::Background, {});
        known.removeMissing(holdAll);
        return textOf(known);
    };
    EXPECT_EQ(search("1", "12"), "x:1 y:12");
    EXPECT_EQ(search("", "12"), "x: y:12");
    EXPECT_EQ(search("12", "12"), "x:12 y:12");
    EXPECT_EQ(search("", ""), "x:12 y:12") << "missing on both interfaces";
}

TEST(KnownInterfacesTest, unreportedInterfaceIsRemovedAtOnce)
{
    KnownInterfaces known;
    known.replaceAll(
        {interfaceWith("1", "GEV", "y", 2), interfaceWith("2", "GEV", "x", 1)}, SearchKind::Background, {});
    EXPECT_EQ(textOf(known), "x:2 y:1");
    EXPECT_TRUE(known.replaceAll({interfaceWith("1", "GEV", "y", 2)}, SearchKind::Short, {}));
    EXPECT_EQ(textOf(known), "y:1");
    EXPECT_EQ(known.find("x"), nullptr);
    EXPECT_TRUE(known.replaceAll({interfaceWith("", "GEV", "y", 3)}, SearchKind::Short, {}));
    EXPECT_EQ(textOf(known), "y:1") << "an interface that was opened anew keeps its devices";
    EXPECT_EQ(known.find("y")->number, 3U);
}

TEST(KnownInterfacesTest, oneInterfaceIsReplacedByItsNumber)
{
    KnownInterfaces known;
    known.replaceAll(
        {interfaceWith("12", "GEV", "x", 1), interfaceWith("3", "GEV", "y", 2)}, SearchKind::Background, {});
    EXPECT_FALSE(known.replace(interfaceWith("9", "GEV", "x", 7), SearchKind::Background, {}));
    EXPECT_TRUE(known.replace(interfaceWith("14", "GEV", "x", 1), SearchKind::Background, {}));
    EXPECT_EQ(textOf(known), "x:124 y:3");
    EXPECT_FALSE(known.replace(interfaceWith("14", "GEV", "x", 1), SearchKind::Background, {}));
    EXPECT_TRUE(known.removeMissing(holdNone)) << "the second background search missed it";
    EXPECT_EQ(textOf(known), "x:14 y:3");
}

TEST(KnownInterfacesTest, changedFieldsReplaceTheDevice)
{
    KnownInterfaces known;
    InterfaceRecord record = interfaceWith("12");
    known.replaceAll({record}, SearchKind::Background, {});
    const auto untouched = known.records();
    EXPECT_FALSE(known.replaceAll({interfaceWith("21")}, SearchKind::Short, {})) << "the order is ignored";
    EXPECT_EQ(known.records(), untouched);
    record.devices = {{"1", "", "", "", "New name", ""}};
    EXPECT_TRUE(known.replaceAll({record}, SearchKind::Short, {}));
    EXPECT_EQ(textOf(known), "x:12");
    EXPECT_EQ(known.find("x")->devices[0].name, "New name");
    record.devices.push_back(record.devices[0]);
    known.replaceAll({record}, SearchKind::Short, {});
    EXPECT_EQ(textOf(known), "x:112") << "an ID that the interface reports twice";
    record.devices.pop_back();
    known.replaceAll({record}, SearchKind::Short, {});
    EXPECT_EQ(textOf(known), "x:12");
}

TEST(KnownInterfacesTest, numberOfUnreportedDevicesIsLimited)
{
    KnownInterfaces known;
    const auto crowd = [](const char *interface, const std::string &prefix, int count) {
        InterfaceRecord record = interfaceWith("", "GEV", interface, interface[0]);
        for (int i = 0; i < count; ++i)
            record.devices.push_back({prefix + std::to_string(i), "", "", "", "", ""});
        return record;
    };
    known.replaceAll({crowd("x", "a", 600), crowd("y", "b", 600)}, SearchKind::Short, {});
    EXPECT_EQ(known.find("x")->devices.size(), 600U) << "reported devices are not limited here";
    known.replaceAll({crowd("x", "c", 300), crowd("y", "b", 600)}, SearchKind::Short, {});
    EXPECT_EQ(known.find("x")->devices.size(), 400U) << "100 unreported ones";
    known.replace(crowd("x", "d", 350), SearchKind::Short, {});
    EXPECT_EQ(known.find("x")->devices.size(), 400U) << "50 unreported ones";
    known.replaceAll({crowd("x", "e", 1200), crowd("y", "f", 0)}, SearchKind::Short, {});
    EXPECT_EQ(known.find("x")->devices.size(), 1200U);
    EXPECT_EQ(known.find("y")->devices.size(), 0U);
}
