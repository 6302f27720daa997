#include "tools/kit/measure/thermal/TemperatureReader.h"
#include "tests/features/ScriptedDevice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using CvxCPP::NodeValue;
using testing::ElementsAre;
using testing::Optional;

namespace {

/// A camera with two temperatures.
class WarmCamera : public ScriptedDevice
{
public:
    WarmCamera()
    {
        addEntries("DeviceTemperatureSelector", {"Sensor", "Mainboard"});
        add("DeviceTemperature", 45.5);
        select("DeviceTemperatureSelector", {"DeviceTemperature"});
        set("DeviceTemperatureSelector", std::string("Mainboard"));
        set("DeviceTemperature", 50.5);
    }
};

/// The temperature of its sensor cannot be read.
class HalfReadableCamera : public WarmCamera
{
public:
    CvxCPP::CvxResult Read(const std::string &name, NodeValue &read) override
    {
        if (name == "DeviceTemperature" && value("DeviceTemperatureSelector") == NodeValue("Sensor"))
            return {CvxCPP::CvxErrorNotAvailable, "The sensor sleeps."};
        return WarmCamera::Read(name, read);
    }
};

TEST(TemperatureReaderTest, readsEveryPlaceAndPutsTheSelectorBack)
{
    WarmCamera camera;
    TemperatureSource source;
    ASSERT_TRUE(findTemperatures(camera, source).isEmpty());
    EXPECT_THAT(source.places, ElementsAre("Sensor", "Mainboard"));
    const TemperatureReading reading = readTemperatures(camera, source);
    EXPECT_TRUE(reading.problem);
    EXPECT_THAT(reading.celsius, ElementsAre(Optional(45.5), Optional(50.5)));
    EXPECT_EQ(camera.value("DeviceTemperatureSelector"), NodeValue("Mainboard"));
}

TEST(TemperatureReaderTest, readsThePresentPlaceWithoutWriting)
{
    WarmCamera camera;
    TemperatureSource source;
    camera.feature("DeviceTemperatureSelector").rule
        = [](CvxCPP::NodeState &state) { state.lockReason = CvxCPP::LockReason::Watching; };
    ASSERT_TRUE(findTemperatures(camera, source).isEmpty());
    EXPECT_THAT(source.places, ElementsAre("Mainboard"));
    EXPECT_THAT(readTemperatures(camera, source).celsius, ElementsAre(Optional(50.5)));
    EXPECT_TRUE(camera.writes.empty());
}

TEST(TemperatureReaderTest, hasNoValueForALostCamera)
{
    WarmCamera camera;
    TemperatureSource source;
    ASSERT_TRUE(findTemperatures(camera, source).isEmpty());
    camera.callsUntilLoss = camera.callCount;
    const TemperatureReading reading = readTemperatures(camera, source);
    EXPECT_EQ(reading.problem.code, CvxCPP::CvxErrorDeviceLost);
    EXPECT_THAT(reading.celsius, ElementsAre(std::nullopt, std::nullopt));
}

TEST(TemperatureReaderTest, readsTheOtherPlacesIfOneFails)
{
    HalfReadableCamera camera;
    TemperatureSource source;
    ASSERT_TRUE(findTemperatures(camera, source).isEmpty());
    const TemperatureReading reading = readTemperatures(camera, source);
    EXPECT_THAT(reading.celsius, ElementsAre(std::nullopt, Optional(50.5)));
    EXPECT_FALSE(reading.problem);
    EXPECT_EQ(camera.value("DeviceTemperatureSelector"), NodeValue("Mainboard"));
}

TEST(TemperatureReaderTest, knowsTheNamesOfOlderCameras)
{
    ScriptedDevice old;
    old.add("TemperatureAbs", 41.0);
    TemperatureSource source;
    ASSERT_TRUE(findTemperatures(old, source).isEmpty());
    EXPECT_EQ(source.feature, "TemperatureAbs");
    EXPECT_THAT(source.places, ElementsAre(""));
    EXPECT_THAT(readTemperatures(old, source).celsius, ElementsAre(Optional(41.0)));

    ScriptedDevice raw;
    raw.add("DeviceTemperatureRaw", std::int64_t(1234));
    EXPECT_STREQ(findTemperatures(raw, source).text,
        "The camera has no feature DeviceTemperature, so it does not report its temperature.");
    raw.feature("DeviceTemperatureRaw").info.unit = "C";
    EXPECT_TRUE(findTemperatures(raw, source).isEmpty());
}

} // namespace
