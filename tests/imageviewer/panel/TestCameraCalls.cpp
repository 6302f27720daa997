#include "tests/kit/editors/EditorBench.h"
#include "tools/imageviewer/panel/RegionCall.h"
#include "tools/imageviewer/panel/WhiteBalanceCall.h"

#include <QtTest>

using namespace CvxCPP;

namespace {

std::int64_t integer(ScriptedDevice &device, const std::string &name)
{
    return std::get<std::int64_t>(device.value(name));
}

/// Adds one axis whose size and offset limit each other.
void addAxis(TestDevice &device, const std::string &size, const std::string &offset, std::int64_t extent)
{
    ScriptedDevice &script = device;
    addNumber(script, size, extent, std::int64_t(16), extent).rule
        = [&script, offset, extent](NodeState &state) { state.maximum = extent - integer(script, offset); };
    addNumber(script, offset, std::int64_t(0), std::int64_t(0), extent).rule
        = [&script, size, extent](NodeState &state) { state.maximum = extent - integer(script, size); };
    script.feature(size).state.increment = std::int64_t(4);
    script.feature(offset).state.increment = std::int64_t(2);
}

void addSensor(TestDevice &device)
{
    addAxis(device, "Width", "OffsetX", 2448);
    addAxis(device, "Height", "OffsetY", 2048);
}

void addColors(TestDevice &device)
{
    addChoice(device, "BalanceWhiteAuto", {"Off", "Continuous"});
    addChoice(device, "BalanceRatioSelector", {"Red", "Green", "Blue"});
    addNumber(device, "BalanceRatio", 2.0, 0.25, 8.0);
    device.select("BalanceRatioSelector", {"BalanceRatio"});
    device.set("BalanceWhiteAuto", std::string("Continuous"));
    device.set("BalanceRatioSelector", std::string("Blue"));
}

CvxResult run(TestDevice &device, const CameraConnection::Call &call)
{
    return call(device);
}

QRect region(TestDevice &device)
{
    const auto number = [&device](const char *name) { return static_cast<int>(integer(device, name)); };
    return {number("OffsetX"), number("OffsetY"), number("Width"), number("Height")};
}

} // namespace

class TestCameraCalls : public QObject
{
    Q_OBJECT

private slots:
    void drawnRegionsFollowEachOther();
    void regionOfAnOlderPictureIsRefused();
    void failureNamesItsReason();
    void whiteBalanceIsWritten();
    void oldIntegerFactorsAreBalanced();
    void cameraWithoutFactorsRefuses();
};

void TestCameraCalls::drawnRegionsFollowEachOther()
{
    TestDevice device;
    addSensor(device);
    QVERIFY(run(device, regionCall(QRect(1001, 501, 640, 480), QSize(2448, 2048))));
    QCOMPARE(region(device), QRect(1000, 500, 644, 484));
    // The next region is drawn on the picture that the first one has left.
    QVERIFY(run(device, regionCall(QRect(40, 20, 100, 100), QSize(644, 484))));
    QCOMPARE(region(device), QRect(1040, 520, 100, 100));
    QVERIFY(run(device, wholeSensorCall()));
    QCOMPARE(region(device), QRect(0, 0, 2448, 2048));
}

void TestCameraCalls::regionOfAnOlderPictureIsRefused()
{
    TestDevice device;
    addSensor(device);
    const CvxResult result = run(device, regionCall(QRect(0, 0, 100, 100), QSize(1224, 1024)));
    QVERIFY(!result);
    QVERIFY(!result.text.empty());
    QCOMPARE(region(device), QRect(0, 0, 2448, 2048));
}

void TestCameraCalls::failureNamesItsReason()
{
    TestDevice device;
    addSensor(device);
    device.feature("Width").state.lockReason = LockReason::StreamRunning;
    const CvxResult result = run(device, regionCall(QRect(0, 0, 100, 100), QSize(2448, 2048)));
    QCOMPARE(result.text, std::string("\"Width\" cannot be written."));
    TestDevice other;
    QVERIFY(!run(other, wholeSensorCall()));
}

void TestCameraCalls::whiteBalanceIsWritten()
{
    TestDevice device;
    addColors(device);
    QVERIFY(run(device, whiteBalanceCall({1.5, 1, 0.5})));
    const std::map<std::string, NodeValue> expected{{"BalanceRatio/BalanceRatioSelector=Blue", 1.0},
        {"BalanceRatio/BalanceRatioSelector=Red", 3.0}, {"BalanceRatioSelector", std::string("Blue")}};
    QVERIFY(device.changedValues() == expected); // The automatic function has its first value again: "Off".
}

void TestCameraCalls::oldIntegerFactorsAreBalanced()
{
    TestDevice device;
    addChoice(device, "BalanceRatioSelector", {"Red", "Blue"});
    addNumber(device, "BalanceRatioRaw", std::int64_t(64), std::int64_t(1), std::int64_t(255));
    device.select("BalanceRatioSelector", {"BalanceRatioRaw"});
    QVERIFY(run(device, whiteBalanceCall({1.51, 1, 0.5})));
    const std::map<std::string, NodeValue> expected{
        {"BalanceRatioRaw/BalanceRatioSelector=Blue", std::int64_t(32)},
        {"BalanceRatioRaw/BalanceRatioSelector=Red", std::int64_t(97)}};
    QVERIFY(device.changedValues() == expected);
}

void TestCameraCalls::cameraWithoutFactorsRefuses()
{
    TestDevice device;
    QVERIFY(!run(device, whiteBalanceCall({1, 1, 1})));

    TestDevice other; // Has ratios, but not for the colours of the display.
    addChoice(other, "BalanceRatioSelector", {"Y", "U"});
    addNumber(other, "BalanceRatio", 2.0, 0.25, 8.0);
    const CvxResult result = run(other, whiteBalanceCall({1.5, 1, 0.5}));
    QCOMPARE(result.text, std::string("The camera has no white balance ratios."));
    QVERIFY(other.value("BalanceRatioSelector") == NodeValue(std::string("Y")));
}

QTEST_APPLESS_MAIN(TestCameraCalls)
#include "TestCameraCalls.moc"
