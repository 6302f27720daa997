#include "tests/app/ControllerTest.h"

using namespace ControllerTest;

/// Tests the controller's destructor: the scan ends first, the SDK is shut down next, and the window is
/// deleted last.
class TestShutdown : public QObject
{
    Q_OBJECT

private slots:
    void init() { CvxScripted::reset(); }

    void sdkIsShutDownOnceBeforeTheWindowIsDeleted_data();
    void sdkIsShutDownOnceBeforeTheWindowIsDeleted();
    void shutdownWaitsForTheScan();
    void cameraReportedDuringShutdownStartsNoScan();
};

void TestShutdown::sdkIsShutDownOnceBeforeTheWindowIsDeleted_data()
{
    QTest::addColumn<bool>("initialised");
    QTest::newRow("after init()") << true;
    QTest::newRow("without init()") << false; // This row also covers a failed start of the SDK.
}

void TestShutdown::sdkIsShutDownOnceBeforeTheWindowIsDeleted()
{
    QFETCH(bool, initialised);
    bool hasWindow = false;
    script().intercept = [&hasWindow](const CvxScripted::Call &) {
        hasWindow = mainWindow() != nullptr;
        return CvxErrorSuccess;
    };
    {
        ApplicationController controller;
        QVERIFY(!initialised || controller.init());
        QCOMPARE(callCount(Function::Shutdown), std::size_t(0));
    }
    QCOMPARE(callCount(Function::Shutdown), std::size_t(1));
    QVERIFY(hasWindow);
    QVERIFY(!mainWindow());
}

void TestShutdown::shutdownWaitsForTheScan()
{
    // With so many cameras, the scan would still be running if the destructor did not wait.
    const std::size_t count = 2000;
    script().cameras.assign(count, cameraRecord("a"));
    CvxScripted::Gate gate;
    holdScansAt(gate);
    {
        ApplicationController controller;
        QVERIFY(controller.init());
        controller.refreshCameras();
        QVERIFY(gate.waitForArrival());
        gate.open();
    }
    processQueuedEvents(); // The result of the scan must not reach the deleted window.
    QCOMPARE(callCount(Function::GetInterfaceType), count);
    QCOMPARE(CvxScripted::calls().back().function, Function::Shutdown);
}

void TestShutdown::cameraReportedDuringShutdownStartsNoScan()
{
    script().intercept = [](const CvxScripted::Call &call) {
        if (call.function == Function::Shutdown)
            reportCamera("a");
        return CvxErrorSuccess;
    };
    {
        ApplicationController controller;
        QVERIFY(controller.init());
    }
    QVERIFY(callCount(Function::GetExtendedId) > 0); // The observer read the ID of the reported camera.
    processQueuedEvents();
    QCOMPARE(scans(), 0);
}

QTEST_MAIN(TestShutdown)
#include "TestShutdown.moc"
