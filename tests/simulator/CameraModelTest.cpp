// These tests check which camera follows from the configuration file.

#include "sdk/simulator/CameraModel.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace {

DeviceRecord deviceOf(const std::string &model, const std::string &tlType)
{
    DeviceRecord record;
    record.id = "id";
    record.model = model;
    record.tlType = tlType;
    return record;
}

std::string withDevice(const std::string &keys)
{
    return R"({"interfaces": [{"id": "net", "devices": [{"id": "a")" + keys + "}]}]}";
}

std::string problemOf(const std::string &keys)
{
    try {
        parseConfiguration(withDevice(keys));
        return "none";
    } catch (const std::runtime_error &error) {
        return error.what();
    }
}

} // namespace

TEST(CameraModel, sensorFollowsFromNameAndTechnology)
{
    struct
    {
        const char *model;
        const char *tlType;
        int width;
        int height;
        bool isColor;
        bool isLineScan;
        int taps;
    } const expected[] = {
        {"", "Custom", 1280, 1024, false, false, 1},
        {"Kx200 Pro 5MP-C", "GEV", 2496, 2000, true, false, 1},
        {"Ilvo Universal 2MP-M", "U3V", 1568, 1264, false, false, 1},
        {"Borea SWIR 1.3MP", "GEV", 1264, 1008, false, false, 1},
        {"Qz40 TDI 16k", "CLHS", 16384, 1, false, true, 1},
        {"HX", "CL", 1280, 1024, false, false, 4},
        {"BenchCam", "UVC", 1280, 1024, true, false, 1},
        {"99999MP", "CXP", 15808, 12640, false, false, 1},
    };
    for (const auto &[name, tlType, width, height, isColor, isLineScan, taps] : expected) {
        const SensorModel sensor = cameraModel(deviceOf(name, tlType), {}).sensor;
        EXPECT_EQ(sensor.width, width) << name;
        EXPECT_EQ(sensor.height, height) << name;
        EXPECT_EQ(sensor.isColor, isColor) << name;
        EXPECT_EQ(sensor.isLineScan, isLineScan) << name;
        EXPECT_EQ(sensor.taps, taps) << name;
    }
}

TEST(CameraModel, keysOfTheConfigurationFileDecide)
{
    const SensorKeys keys = parseConfiguration(withDevice(R"(, "sensorWidth": 129, "sensorHeight": 100,
        "color": true, "lineScan": false, "taps": 2, "seed": 18446744073709551615)"))
                                .at(0)
                                .sensors.at("a");
    const SensorModel sensor = cameraModel(deviceOf("TDI 16k", "CL"), keys).sensor;
    EXPECT_EQ(sensor.width, 128); // Even, because of the colours.
    EXPECT_EQ(sensor.height, 100);
    EXPECT_TRUE(sensor.isColor);
    EXPECT_FALSE(sensor.isLineScan);
    EXPECT_EQ(sensor.taps, 2);
    EXPECT_EQ(sensor.seed, ~std::uint64_t{0});
}

TEST(CameraModel, lineScanSensorHasNoColorFilters)
{
    SensorKeys keys;
    keys.isColor = true;
    keys.isLineScan = true;
    EXPECT_FALSE(cameraModel(deviceOf("Kx200", "GEV"), keys).sensor.isColor);
}

TEST(CameraModel, sensorWithoutFlawsHasOnlyItsNoise)
{
    const auto sensorKeys
        = [](const std::string &keys) { return parseConfiguration(withDevice(keys)).at(0).sensors.at("a"); };
    const DeviceRecord record = deviceOf("SWIR HX", "CL");
    const CameraModel flawless = cameraModel(record, sensorKeys(R"(, "flaws": false)"));
    const SensorModel &sensor = flawless.sensor;
    for (const double flaw : {sensor.shading, sensor.tapMismatch, sensor.hotPixels, sensor.stuckPixels,
             sensor.blinkingPixels, sensor.focusTilt})
        EXPECT_EQ(flaw, 0);
    EXPECT_EQ(sensor.focusPosition, 500);
    const CameraModel ordinary = cameraModel(record, sensorKeys(""));
    EXPECT_GT(ordinary.sensor.tapMismatch, 0);
    EXPECT_EQ(sensor.taps, ordinary.sensor.taps);
    EXPECT_EQ(sensor.readNoise, ordinary.sensor.readNoise);
    EXPECT_EQ(sensor.darkCurrent, ordinary.sensor.darkCurrent);
    EXPECT_NE(fingerprint(flawless), fingerprint(ordinary));
    EXPECT_EQ(problemOf(R"(, "flaws": 0)"), "interfaces[0].devices[0]: \"flaws\" is neither true nor false");
}

TEST(CameraModel, mistakeInAKeyIsReported)
{
    const std::string place = "interfaces[0].devices[0]: ";
    EXPECT_EQ(
        problemOf(R"(, "sensorWidth": 15)"), place + "\"sensorWidth\" is not an integer from 64 to 32768");
    EXPECT_EQ(
        problemOf(R"(, "sensorHeight": -1)"), place + "\"sensorHeight\" is not an integer from 64 to 32768");
    EXPECT_EQ(problemOf(R"(, "taps": 1.5)"), place + "\"taps\" is not an integer from 1 to 8");
    EXPECT_EQ(problemOf(R"(, "taps": "2")"), place + "\"taps\" is not an integer from 1 to 8");
    EXPECT_EQ(problemOf(R"(, "color": 1)"), place + "\"color\" is neither true nor false");
    EXPECT_EQ(problemOf(R"(, "sensorWidth": 32768, "taps": 8, "color": false)"), "none");
}

TEST(CameraModel, camerasOfOneModelHaveTheirFlawsAtDifferentPlaces)
{
    DeviceRecord first = deviceOf("Kx200", "GEV");
    first.serial = "1";
    DeviceRecord second = first;
    second.serial = "2";
    EXPECT_NE(cameraModel(first, {}).sensor.seed, cameraModel(second, {}).sensor.seed);
    EXPECT_EQ(cameraModel(first, {}).sensor.hotPixels, cameraModel(second, {}).sensor.hotPixels);
    EXPECT_NE(fingerprint(cameraModel(first, {})), fingerprint(cameraModel(second, {})));
    EXPECT_EQ(fingerprint(cameraModel(first, {})), fingerprint(cameraModel(first, {})));
}
