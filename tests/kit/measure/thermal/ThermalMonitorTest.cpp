#include "tests/kit/measure/thermal/TemperatureModel.h"
#include "tools/kit/measure/thermal/ThermalResult.h"

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <unistd.h>

namespace {

/// Returns a time as a log contains it; this test needs no real one.
std::string timeText(double seconds)
{
    return "T" + std::to_string(std::lround(seconds));
}

TEST(ThermalMonitorTest, analysesAndDescribesAllPlaces)
{
    ThermalMonitor monitor({"Main, board", "Sensor"}, "2026-01-31T12:00:00Z");
    const TemperatureModel model;
    for (int second = 0; second < 100; ++second) {
        if (second == 50)
            monitor.setDark({4.5, 2, 0.01, 0});
        monitor.add(second, timeText(second),
            {second == 0 ? std::optional(40.0) : std::nullopt, model.truth(second)});
    }
    EXPECT_EQ(monitor.sensorPlace(), 1U);
    EXPECT_FALSE(monitor.isSteady());
    const auto json = thermalDocument({}, monitor);
    EXPECT_EQ(json["format"], "corvix-x-temperatures");
    EXPECT_EQ(json["result"]["places"][1]["place"], "Sensor");
    EXPECT_EQ(json["result"]["places"][1]["state"], "warming up");
    EXPECT_NEAR(json["result"]["places"][1]["finalCelsius"].get<double>(), 51, 0.1);
    EXPECT_TRUE(json["result"]["places"][0]["kelvinPerMinute"].is_null());
    EXPECT_EQ(json["result"]["dark"]["level"], 4.5);
    EXPECT_EQ(json["history"]["places"][1].size(), 100U);
    EXPECT_EQ(json["history"]["columns"].size(), json["history"]["places"][1][0].size());

    const std::string csv = thermalCsv(monitor);
    EXPECT_NE(csv.find("\n\"Main, board\",0.0,0.0,40.0"), std::string::npos);
    EXPECT_NE(csv.find("\n\"Sensor\",0.0,0.0,32.0,32.0,32.0,1,false\n"), std::string::npos);
    EXPECT_NE(csv.find("\n\"dark level\",50.0,50.0,4.5"), std::string::npos);
}

TEST(ThermalMonitorTest, logsReadingsAlertsAndGaps)
{
    const std::string path = testing::TempDir() + "thermal-monitor-" + std::to_string(getpid()) + ".csv";
    ThermalMonitor monitor({"Sensor"}, "");
    monitor.setThresholds({50, 60, 1});
    ASSERT_EQ(monitor.log().open(path, monitor.placeNames()), "");
    const std::vector<std::optional<double>> readings{45, 51, {}, {}, {}, 61, 40};
    std::vector<AlertLevel> alerts;
    for (std::size_t index = 0; index < readings.size(); ++index) {
        for (const auto &change : monitor.add(double(index), timeText(double(index)), {readings[index]}))
            alerts.push_back(change.level);
    }
    EXPECT_EQ(alerts, (std::vector<AlertLevel>{AlertLevel::Warning, AlertLevel::Alarm, AlertLevel::Normal}));
    std::stringstream text;
    text << std::ifstream(path).rdbuf();
    std::remove(path.c_str());
    EXPECT_EQ(text.str(),
        "time,Sensor [degC],dark level,event\nT0,45.000,,\nT1,51.000,,Sensor: warning\nT2,,,no reading\n"
        "T5,61.000,,Sensor: alarm\nT6,40.000,,Sensor: normal\n");
}

TEST(ThermalMonitorTest, logsWhenTheDarkLevelFollows)
{
    const std::string path = testing::TempDir() + "thermal-dark-" + std::to_string(getpid()) + ".csv";
    ThermalMonitor monitor({"Sensor"}, "");
    ASSERT_EQ(monitor.log().open(path, monitor.placeNames()), "");
    for (int second = 0; second < 20; ++second) {
        const double celsius = second < 10 ? 40 : 45;
        monitor.setDark({second < 10 ? 64.0 : 66.0, 2, 0.01, 0});
        monitor.add(second, timeText(second), {celsius});
    }
    monitor.setDark({66, 2, 0.01, 0});
    monitor.add(20, timeText(20), {{}}); // A level without temperature is dropped.
    monitor.add(21, timeText(21), {45});
    std::stringstream text;
    text << std::ifstream(path).rdbuf();
    std::remove(path.c_str());
    const std::string log = text.str();
    EXPECT_NE(log.find("\nT9,40.000,64.0000,\nT10,45.000,66.0000,\n"), std::string::npos) << log;
    EXPECT_NE(log.find("\nT12,45.000,66.0000,dark level follows\nT13,45.000,66.0000,\n"), std::string::npos);
    EXPECT_NE(log.find("\nT20,,,no reading\nT21,45.000,,\n"), std::string::npos);
    EXPECT_EQ(log.find("follows"), log.rfind("follows"));
}

TEST(ThermalMonitorTest, isSteadyIfAllPlacesWithReadingsAre)
{
    ThermalMonitor monitor({"Sensor", "Housing"}, "");
    EXPECT_FALSE(monitor.isSteady());
    for (int second = 0; second < 60; ++second)
        monitor.add(second, timeText(second), {45 + 0.001 * (second % 3), std::nullopt});
    EXPECT_TRUE(monitor.isSteady());
    monitor.add(60, timeText(60), {45, 30}); // Now there is a place whose state is unknown.
    EXPECT_FALSE(monitor.isSteady());
}

TEST(ThermalMonitorTest, followsACameraForADay)
{
    // 24 hours at one reading per second: a cycle of work and rest every two hours.
    const std::string path = testing::TempDir() + "thermal-day-" + std::to_string(getpid()) + ".csv";
    BoundedHistory history;
    TemperatureLog log;
    ASSERT_EQ(log.open(path, {"Sensor"}), "");
    constexpr int day = 24 * 3600;
    constexpr int cycle = 3600;
    const auto truth = [](double second) {
        const double phase = std::fmod(second, 2 * cycle);
        return phase < cycle ? 51 - 19 * std::exp(-phase / 250) : 32 + 19 * std::exp(-(phase - cycle) / 250);
    };
    for (int second = 0; second <= day; ++second) {
        history.add(second, truth(second));
        log.append(timeText(second), {truth(second)}, {}, "");
    }
    std::ifstream file(path);
    int lines = 0;
    for (std::string line; std::getline(file, line);)
        ++lines;
    std::remove(path.c_str());
    EXPECT_EQ(lines, day + 2); // The file has every reading and a header.

    const std::vector<HistoryPoint> points = history.points();
    EXPECT_LT(points.size(), 5000U); // The memory does not.
    for (const HistoryPoint &point : points) {
        ASSERT_LE(point.minimum, point.mean);
        double sum = 0;
        for (double second = point.first; second <= point.last; ++second) {
            sum += truth(second);
            ASSERT_GE(truth(second), point.minimum - 1e-9);
            ASSERT_LE(truth(second), point.maximum + 1e-9);
        }
        ASSERT_NEAR(point.mean, sum / double(point.count), 1e-9);
    }
}

} // namespace
