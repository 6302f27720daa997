#include "tests/app/ControllerTest.h"
#include "tests/support/MessageLog.h"

#include "ui/ApplicationLauncher.h"

#include <future>
#include <stdexcept>

using namespace ControllerTest;
using CvxScripted::Function;
using CvxScripted::script;

namespace {

/// Holds every scan at its first call.
void holdScansAt(CvxScripted::Gate &gate)
{
    script().intercept = [&gate](const CvxScripted::Call &call) {
        if (call.function == Function::CountCameras)
            gate.pass();
        return CvxCPP::CvxErrorSuccess;
    };
}

void plugIn(const std::string &id)
{
    CvxScripted::announceCamera(cameraRecord(id), CvxCPP::UpdateTriggerPluggedIn);
}

int enabledTiles()
{
    int enabled = 0;
    for (const ApplicationLauncher *tile : mainWindow()->findChildren<ApplicationLauncher *>())
        enabled += tile->isEnabled();
    return enabled;
}

} // namespace

/// Scans in the background, and what starts them. Every test begins with an idle controller.
class TestRefresh : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_controller.reset(); }

    void runningScanShowsOnePlaceholderRow();
    void runningScanDisablesTheRefreshButton();
    void scanRunsOffTheGuiThread();
    void finishedScanShowsTheCamerasInOrder();
    void withoutCamerasTheTableEndsEmpty();
    void failedScanEndsEmpty_data();
    void failedScanEndsEmpty();
    void scanThatThrowsEndsEmptyWithAWarning_data();
    void scanThatThrowsEndsEmptyWithAWarning();
    void secondRequestDuringAScanIsDropped();
    void finishedScanAllowsTheNext();
    void selectionIsClearedByEveryScan();

    void announcedCameraStartsAScan_data();
    void announcedCameraStartsAScan();
    void announcementIsHandledOnTheGuiThread();
    void announcementDuringAScanIsDropped();
    void announcedCameraWithoutAReadableIdStartsNothing_data();
    void announcedCameraWithoutAReadableIdStartsNothing();
    void announcedInterfaceReachesNoOne();
    void announcementsTakeTurns();
    void manyScansInARowAllEnd();

private:
    std::unique_ptr<ApplicationController> m_controller;
};

void TestRefresh::init()
{
    CvxScripted::reset();
    m_controller = std::make_unique<ApplicationController>();
    QVERIFY(m_controller->init());
    mainWindow()->show();
}

void TestRefresh::runningScanShowsOnePlaceholderRow()
{
    CvxScripted::Gate gate;
    holdScansAt(gate);
    script().cameras = {cameraRecord("a"), cameraRecord("b")};
    refreshButton()->click();
    QCOMPARE(rows(), scanningRows());
    QCOMPARE(selectedRows(), QList<int>{0}); // Its empty fields are those of the empty selection.
    gate.open();
    QTRY_COMPARE(rows().size(), 2);
}

void TestRefresh::runningScanDisablesTheRefreshButton()
{
    CvxScripted::Gate gate;
    holdScansAt(gate);
    QVERIFY(refreshButton()->isEnabled());
    refreshButton()->click();
    QVERIFY(gate.waitForArrival());
    processQueuedEvents();
    QVERIFY(!refreshButton()->isEnabled());
    gate.open();
    QTRY_VERIFY(refreshButton()->isEnabled());
}

void TestRefresh::scanRunsOffTheGuiThread()
{
    script().cameras = {cameraRecord("a")};
    refreshButton()->click();
    QTRY_VERIFY(refreshButton()->isEnabled());
    int scanCalls = 0;
    for (const CvxScripted::Call &call : CvxScripted::calls()) {
        const bool ofScan = call.function >= Function::CountCameras;
        QCOMPARE(call.thread != std::this_thread::get_id(), ofScan);
        scanCalls += ofScan;
    }
    QVERIFY(scanCalls > 0);
}

void TestRefresh::finishedScanShowsTheCamerasInOrder()
{
    script().cameras = {cameraRecord("b"), cameraRecord("a")};
    refreshButton()->click();
    QTRY_COMPARE(rows(), (QList<QStringList>{rowOf(QStringLiteral("b")), rowOf(QStringLiteral("a"))}));
    QVERIFY(refreshButton()->isEnabled());
    QCOMPARE(selectedRows(), QList<int>());
}

void TestRefresh::withoutCamerasTheTableEndsEmpty()
{
    refreshButton()->click();
    QCOMPARE(rows(), scanningRows());
    QTRY_VERIFY(refreshButton()->isEnabled());
    QCOMPARE(rows(), QList<QStringList>());
}

void TestRefresh::failedScanEndsEmpty_data()
{
    QTest::addColumn<int>("function");
    QTest::newRow("count") << int(Function::CountCameras);
    QTest::newRow("fill") << int(Function::FillCameras);
}

void TestRefresh::failedScanEndsEmpty()
{
    QFETCH(int, function);
    const MessageLog log;
    script().cameras = {cameraRecord("a")};
    script().errors[Function(function)] = CvxCPP::CvxErrorFailed;
    refreshButton()->click();
    QTRY_VERIFY(refreshButton()->isEnabled());
    QCOMPARE(rows(), QList<QStringList>());
    QCOMPARE(log.texts(QtWarningMsg), QStringList());
}

void TestRefresh::scanThatThrowsEndsEmptyWithAWarning_data()
{
    QTest::addColumn<int>("function");
    QTest::addColumn<bool>("standard");
    QTest::newRow("while counting") << int(Function::CountCameras) << true;
    QTest::newRow("while filling") << int(Function::FillCameras) << true;
    QTest::newRow("while asking a camera") << int(Function::GetInterfaceType) << true;
    QTest::newRow("something unheard of") << int(Function::CountCameras) << false;
}

void TestRefresh::scanThatThrowsEndsEmptyWithAWarning()
{
    QFETCH(int, function);
    QFETCH(bool, standard);
    const MessageLog log;
    script().cameras = {cameraRecord("a")};
    script().intercept = [=](const CvxScripted::Call &call) {
        if (call.function == Function(function) && standard)
            throw std::runtime_error("driver lost");
        if (call.function == Function(function))
            throw 42;
        return CvxCPP::CvxErrorSuccess;
    };
    refreshButton()->click();
    QTRY_VERIFY(refreshButton()->isEnabled());
    QCOMPARE(rows(), QList<QStringList>());
    QCOMPARE(log.texts(QtWarningMsg).size(), 1);
    QVERIFY(!standard || log.texts(QtWarningMsg).first().contains(QStringLiteral("driver lost")));

    script().intercept = nullptr;
    refreshButton()->click();
    QTRY_COMPARE(rows(), QList<QStringList>{rowOf(QStringLiteral("a"))});
}

void TestRefresh::secondRequestDuringAScanIsDropped()
{
    CvxScripted::Gate gate;
    holdScansAt(gate);
    refreshButton()->click();
    refreshButton()->click(); // Disabled by now;
    emit mainWindow()->requestRefreshCameras(); // but even the request itself is dropped,
    QVERIFY(call(*m_controller, "refreshCameras")); // and so is a call of the slot.
    gate.open();
    QTRY_VERIFY(refreshButton()->isEnabled());
    processQueuedEvents();
    QVERIFY(refreshButton()->isEnabled());
    QCOMPARE(scans(), 1);
}

void TestRefresh::finishedScanAllowsTheNext()
{
    refreshButton()->click();
    QTRY_VERIFY(refreshButton()->isEnabled());
    script().cameras = {cameraRecord("a")};
    refreshButton()->click();
    QTRY_COMPARE(rows(), QList<QStringList>{rowOf(QStringLiteral("a"))});
    QCOMPARE(scans(), 2);
}

void TestRefresh::selectionIsClearedByEveryScan()
{
    script().cameras = {cameraRecord("a")};
    refreshButton()->click();
    QTRY_COMPARE(rows().size(), 1);
    QTRY_VERIFY(refreshButton()->isEnabled());
    QCOMPARE(enabledTiles(), 0);
    cameraTable()->selectRow(0);
    QCOMPARE(selectedRows(), QList<int>{0});
    QVERIFY(enabledTiles() > 0);

    refreshButton()->click();
    QTRY_VERIFY(refreshButton()->isEnabled());
    QCOMPARE(rows(), QList<QStringList>{rowOf(QStringLiteral("a"))});
    QCOMPARE(selectedRows(), QList<int>());
    QCOMPARE(enabledTiles(), 0);
}

void TestRefresh::announcedCameraStartsAScan_data()
{
    QTest::addColumn<unsigned>("reason");
    QTest::newRow("plugged in") << 0u;
    QTest::newRow("plugged out") << 1u;
    QTest::newRow("a reason of a later SDK") << 9u;
}

void TestRefresh::announcedCameraStartsAScan()
{
    QFETCH(unsigned, reason);
    script().cameras = {cameraRecord("a")};
    CvxScripted::announceCamera(cameraRecord("a"), CvxCPP::UpdateTriggerType(reason));
    QTRY_COMPARE(rows(), QList<QStringList>{rowOf(QStringLiteral("a"))});
}

void TestRefresh::announcementIsHandledOnTheGuiThread()
{
    plugIn("a"); // Returns after the observer has returned, on its own thread.
    QCOMPARE(rows(), QList<QStringList>());
    QVERIFY(refreshButton()->isEnabled());
    QCOMPARE(scans(), 0);
    QTRY_COMPARE(scans(), 1);
    QTRY_VERIFY(refreshButton()->isEnabled());
}

void TestRefresh::announcementDuringAScanIsDropped()
{
    CvxScripted::Gate gate;
    script().intercept = [&gate](const CvxScripted::Call &call) {
        if (call.function == Function::GetModel)
            gate.pass(); // The list has been taken by then.
        return CvxCPP::CvxErrorSuccess;
    };
    script().cameras = {cameraRecord("a")};
    refreshButton()->click();
    QVERIFY(gate.waitForArrival());
    script().cameras = {cameraRecord("a"), cameraRecord("b")};
    plugIn("b");
    processQueuedEvents();
    gate.open();
    QTRY_VERIFY(refreshButton()->isEnabled());
    processQueuedEvents();
    QCOMPARE(scans(), 1);
    QCOMPARE(rows(), QList<QStringList>{rowOf(QStringLiteral("a"))});

    refreshButton()->click();
    QTRY_COMPARE(rows().size(), 2);
}

void TestRefresh::announcedCameraWithoutAReadableIdStartsNothing_data()
{
    QTest::addColumn<bool>("failsAtLength");
    QTest::newRow("length") << true;
    QTest::newRow("text") << false;
}

void TestRefresh::announcedCameraWithoutAReadableIdStartsNothing()
{
    QFETCH(bool, failsAtLength);
    CvxScripted::CameraRecord record = cameraRecord("a");
    (failsAtLength ? record.extendedId.lengthError : record.extendedId.textError) = CvxCPP::CvxErrorFailed;
    CvxScripted::announceCamera(record, CvxCPP::UpdateTriggerPluggedIn);
    processQueuedEvents();
    QVERIFY(refreshButton()->isEnabled());
    QCOMPARE(scans(), 0);
}

void TestRefresh::announcedInterfaceReachesNoOne()
{
    CvxScripted::announceInterface(
        std::make_shared<CvxScripted::InterfaceRecord>(), CvxCPP::UpdateTriggerPluggedIn);
    processQueuedEvents();
    QVERIFY(refreshButton()->isEnabled());
    QCOMPARE(scans(), 0);
}

void TestRefresh::announcementsTakeTurns()
{
    CvxScripted::Gate gate;
    script().intercept = [&gate](const CvxScripted::Call &call) {
        if (call.function == Function::GetExtendedId)
            gate.pass();
        return CvxCPP::CvxErrorSuccess;
    };
    const auto camera = std::async(std::launch::async, [] { plugIn("a"); });
    QVERIFY(gate.waitForArrival());
    const auto iface = std::async(std::launch::async, [] {
        CvxScripted::announceInterface(
            std::make_shared<CvxScripted::InterfaceRecord>(), CvxCPP::UpdateTriggerPluggedIn);
    });
    QVERIFY(iface.wait_for(std::chrono::milliseconds(300)) == std::future_status::timeout);
    gate.open();
    QVERIFY(iface.wait_for(std::chrono::seconds(10)) == std::future_status::ready);
    QTRY_COMPARE(scans(), 1);
}

void TestRefresh::manyScansInARowAllEnd()
{
    script().cameras = {cameraRecord("a")};
    for (int round = 1; round <= 50; ++round) {
        plugIn("a");
        QTRY_COMPARE(scans(), round);
        QTRY_VERIFY(refreshButton()->isEnabled());
        QCOMPARE(rows(), QList<QStringList>{rowOf(QStringLiteral("a"))});
    }
}

QTEST_MAIN(TestRefresh)
#include "TestRefresh.moc"
