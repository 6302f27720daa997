#include "tests/app/ControllerTest.h"

using namespace ControllerTest;
using CvxScripted::callCount;
using CvxScripted::Function;
using CvxScripted::script;

/// The controller's destructor: the scan, the SDK and the window end in this order.
class TestShutdown : public QObject
{
    Q_OBJECT

private slots:
    void init() { CvxScripted::reset(); }

    void shutdownIsCalledOnce_data();
    void shutdownIsCalledOnce();
    void windowOutlivesTheSdk();
    void shutdownWaitsForTheScan();
    void resultThatNobodyTookIsDropped();
    void cameraAnnouncedDuringShutdownStartsNothing();
};

void TestShutdown::shutdownIsCalledOnce_data()
{
    QTest::addColumn<bool>("initialised");
    QTest::newRow("after init()") << true;
    QTest::newRow("without init()") << false;
}

void TestShutdown::shutdownIsCalledOnce()
{
    QFETCH(bool, initialised);
    {
        ApplicationController controller;
        if (initialised)
            QVERIFY(controller.init());
        QCOMPARE(callCount(Function::Shutdown), std::size_t(0));
    }
    QCOMPARE(callCount(Function::Shutdown), std::size_t(1));
    QCOMPARE(CvxScripted::observerCount(), std::size_t(0));
    QVERIFY(!mainWindow());
}

void TestShutdown::windowOutlivesTheSdk()
{
    bool windowLives = false;
    script().intercept = [&windowLives](const CvxScripted::Call &seen) {
        if (seen.function == Function::Shutdown)
            windowLives = mainWindow() != nullptr;
        return CvxCPP::CvxErrorSuccess;
    };
    {
        ApplicationController controller;
        QVERIFY(controller.init());
    }
    QVERIFY(windowLives);
}

void TestShutdown::shutdownWaitsForTheScan()
{
    CvxScripted::Gate gate;
    script().cameras = {cameraRecord("a")};
    script().intercept = [&gate](const CvxScripted::Call &seen) {
        if (seen.function == Function::CountCameras)
            gate.pass();
        return CvxCPP::CvxErrorSuccess;
    };
    bool shutDownTooEarly = true;
    std::thread opener;
    {
        ApplicationController controller;
        QVERIFY(controller.init());
        controller.refreshCameras();
        QVERIFY(gate.waitForArrival());
        opener = std::thread([&] {
            const auto bound = std::chrono::milliseconds(200);
            shutDownTooEarly = CvxScripted::waitForCalls(Function::Shutdown, 1, bound);
            gate.open();
        });
    }
    opener.join();
    QVERIFY(!shutDownTooEarly);
    QVERIFY(callCount(Function::GetModel) > 0); // The scan went on to its end,
    QCOMPARE(calledFunctions().last(), int(Function::Shutdown)); // and then came the end of the SDK.
}

void TestShutdown::resultThatNobodyTookIsDropped()
{
    script().cameras = {cameraRecord("a")};
    {
        ApplicationController controller;
        QVERIFY(controller.init());
        controller.refreshCameras();
        QVERIFY(CvxScripted::waitForCalls(Function::GetInterfaceType, 1)); // The last call of the scan.
    }
    processQueuedEvents();
    QCOMPARE(calledFunctions().last(), int(Function::Shutdown));
}

void TestShutdown::cameraAnnouncedDuringShutdownStartsNothing()
{
    script().intercept = [](const CvxScripted::Call &seen) {
        if (seen.function == Function::Shutdown)
            CvxScripted::announceCamera(cameraRecord("a"), CvxCPP::UpdateTriggerPluggedIn);
        return CvxCPP::CvxErrorSuccess;
    };
    {
        ApplicationController controller;
        QVERIFY(controller.init());
    }
    QCOMPARE(
        callCount(Function::GetExtendedId), std::size_t(2)); // The observer was still there and heard it.
    processQueuedEvents();
    QCOMPARE(scans(), 0);
}

QTEST_MAIN(TestShutdown)
#include "TestShutdown.moc"
