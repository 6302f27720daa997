#include "tests/camerasetup/details/TapsBench.h"

#include <QSemaphore>

#include <atomic>
#include <chrono>
#include <thread>

using namespace CvxCPP;

#define WAIT_FOR(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, hangTimeout)

class TestSelectorReading : public QObject
{
    Q_OBJECT

private slots:
    void changeOfTheCameraIsShown();
    void integerSelectorHasItsSteps();
    void lostCameraEmptiesTheTable();
    void undoIsShown();
    void quickChoicesAreReadOnce();
    void rowThatKeepsChangingIsRead();
    void slowCameraIsReadInSeveralJobs();
    void cancelledReadKeepsTheValues();
};

void TestSelectorReading::changeOfTheCameraIsShown()
{
    Taps taps;
    taps.show("Gain");
    WAIT_FOR(taps.bench.client.state(text("Gain")));
    taps.bench.device().setByCamera("Gain", 7.0);
    WAIT_FOR(taps.cell(0, 0) == text("7"));
    const std::size_t reads = taps.bench.device().calls("ReadStates").size();
    taps.table.hide();
    taps.bench.device().setByCamera("Gain", 8.0);
    taps.bench.waitForCalls();
    taps.bench.waitForCalls();
    QCOMPARE(taps.bench.device().calls("ReadStates").size(), reads); // A hidden table does not read.
    QCOMPARE(taps.cell(0, 0), text("7"));
}

void TestSelectorReading::integerSelectorHasItsSteps()
{
    Taps taps([](TestDevice &device) {
        addTaps(device);
        addNumber(device, "Index", std::int64_t(4), std::int64_t(2), std::int64_t(7)).state.increment
            = std::int64_t(2);
        device.add("Entry", std::int64_t(5));
        device.select("Index", {"Entry"});
    });
    taps.show("Entry");
    QCOMPARE(taps.headers(Qt::Horizontal), (QStringList{text("2"), text("4"), text("6")}));
    QVERIFY(taps.bench.value("Index") == NodeValue(std::int64_t(4)));
}

void TestSelectorReading::lostCameraEmptiesTheTable()
{
    Taps taps;
    taps.show("Gain");
    taps.bench.device().lose("The cable was unplugged.");
    WAIT_FOR(taps.view->model()->columnCount() == 0);
    taps.bench.device().reopen();
    WAIT_FOR(taps.view->model()->columnCount() == 3);
}

void TestSelectorReading::undoIsShown()
{
    Taps taps;
    taps.show("Gain");
    taps.change(0, 2, 4.5);
    WAIT_FOR(taps.cell(0, 2) == text("4.5"));
    WAIT_FOR(taps.history.canUndo());
    taps.history.undo(); // The tap is not the present one, so its gain has no state in the client.
    WAIT_FOR(taps.cell(0, 2) == text("1"));
}

void TestSelectorReading::quickChoicesAreReadOnce()
{
    Taps taps;
    QVERIFY(taps.waitForOpening());
    const std::size_t before = taps.tapsSince(0).size();
    for (const char *const feature : {"Gain", "HeadSelector", "Gain", "HeadSelector", "Gain"})
        taps.table.setFeature(text(feature));
    taps.show("Gain");
    taps.bench.waitForCalls();
    QCOMPARE(taps.tapsSince(before).size(), std::size_t(3)); // Tap1, Tap2, and All again.
}

void TestSelectorReading::rowThatKeepsChangingIsRead()
{
    Taps taps;
    taps.show("Gain");
    WAIT_FOR(taps.bench.client.state(text("Gain")));
    double value = 1.0; // Changes more often than the delay before a read.
    WAIT_FOR((taps.bench.device().setByCamera("Gain", value += 0.01), taps.cell(0, 0) != text("1")));
}

void TestSelectorReading::slowCameraIsReadInSeveralJobs()
{
    std::atomic<bool> isSlow{false};
    Taps taps([&isSlow](TestDevice &device) {
        addTaps(device);
        device.beforeCall = [&isSlow](const std::string &call) {
            if (isSlow && call == "ReadStates")
                std::this_thread::sleep_for(std::chrono::milliseconds(140));
        };
    });
    QVERIFY(taps.waitForOpening());
    const std::size_t before = taps.tapsSince(0).size();
    isSlow = true;
    taps.show("Gain");
    isSlow = false;
    QCOMPARE(taps.view->model()->columnCount(), 3);
    std::vector<NodeValue> expected; // The selector is restored after each job.
    for (const char *const tap : {"Tap1", "All", "Tap2", "All"})
        expected.emplace_back(std::string(tap));
    QCOMPARE(taps.tapsSince(before), expected);
}

void TestSelectorReading::cancelledReadKeepsTheValues()
{
    std::atomic<bool> isBlocked{false};
    QSemaphore gate;
    Taps taps([&](TestDevice &device) {
        addTaps(device);
        device.beforeCall = [&](const std::string &call) {
            if (isBlocked && call == "ReadStates")
                gate.acquire();
        };
    });
    QVERIFY(taps.waitForOpening());
    taps.show("Gain");
    WAIT_FOR(!taps.jobs.isBusy());
    isBlocked = true;
    taps.button(text("Read again"))->click();
    taps.jobs.cancel();
    isBlocked = false;
    gate.release(100);
    WAIT_FOR(taps.says(text("Reading was cancelled.")));
    QCOMPARE(taps.view->model()->columnCount(), 3);
    QCOMPARE(taps.cell(0, 2), text("1"));
    taps.button(text("Read again"))->click();
    WAIT_FOR(!taps.says(text("Reading was cancelled.")));
}

QTEST_MAIN(TestSelectorReading)
#include "TestSelectorReading.moc"
