#include "tests/app/ControllerTest.h"
#include "tests/support/MessageLog.h"

#include <future>
#include <stdexcept>

using namespace ControllerTest;

namespace {

QVector<int> selectedRows()
{
    QVector<int> selected;
    for (const QModelIndex &index : cameraTable()->selectionModel()->selectedRows())
        selected.append(index.row());
    return selected;
}

int enabledTiles()
{
    int enabled = 0;
    for (const ApplicationLauncher *tile : tiles())
        enabled += tile->isEnabled();
    return enabled;
}

void reportInterface()
{
    CvxScripted::announceInterface(
        std::make_shared<CvxScripted::InterfaceRecord>(), CvxCPP::UpdateTriggerPluggedIn);
}

} // namespace

/// Tests the scans in the background and the events that start a scan. Every test starts with an idle
/// controller.
class TestRefresh : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::installTranslator(&m_translator); }
    void init();
    void cleanup() { m_controller.reset(); }

    void windowShowsThatAScanIsRunning();
    void finishedScanShowsTheCamerasInOrder();
    void exceptionDuringAScanIsLoggedAsAWarning_data();
    void exceptionDuringAScanIsLoggedAsAWarning();
    void requestDuringAScanIsDropped();
    void selectionIsClearedByEveryScan();

    void cameraNotificationStartsAScan();
    void notificationDuringAScanIsDropped();
    void interfaceChangeStartsNoScan();
    void observersShareOneMutex();

private:
    MarkingTranslator m_translator;
    std::unique_ptr<ApplicationController> m_controller;
};

void TestRefresh::init()
{
    CvxScripted::reset();
    m_controller = std::make_unique<ApplicationController>();
    QVERIFY(m_controller->init());
    mainWindow()->show();
}

void TestRefresh::windowShowsThatAScanIsRunning()
{
    CvxScripted::Gate gate;
    holdScansAt(gate);
    QVERIFY(refreshButton()->isEnabled());
    refreshButton()->click();
    QVERIFY(gate.waitForArrival());
    processQueuedEvents();
    QCOMPARE(rows(), scanningRows);
    // Intended: the placeholder is selected, because its ID and the ID of the empty selection are both empty.
    QCOMPARE(selectedRows(), QVector<int>{0});
    QVERIFY(!refreshButton()->isEnabled());
    gate.open();
    QTRY_VERIFY(refreshButton()->isEnabled());
    QCOMPARE(rows(), QStringList()); // The scan found no camera.
}

void TestRefresh::finishedScanShowsTheCamerasInOrder()
{
    script().cameras = {cameraRecord("b"), cameraRecord("a")};
    refreshButton()->click();
    QTRY_VERIFY(refreshButton()->isEnabled());
    QCOMPARE(rows(), (QStringList{"|model|b"_s, "|model|a"_s}));
    QCOMPARE(selectedRows(), QVector<int>());
    for (const CvxScripted::Call &call : CvxScripted::calls()) {
        const bool isPartOfScan = call.function >= Function::CountCameras;
        // Only the scan uses another thread.
        QCOMPARE(call.thread != std::this_thread::get_id(), isPartOfScan);
    }
}

void TestRefresh::exceptionDuringAScanIsLoggedAsAWarning_data()
{
    QTest::addColumn<bool>("isStandard");
    QTest::addColumn<QString>("warning");
    QTest::newRow("standard exception") << true << "The camera scan failed: producer lost"_s;
    QTest::newRow("other exception") << false << "The camera scan failed: unknown exception"_s;
}

void TestRefresh::exceptionDuringAScanIsLoggedAsAWarning()
{
    QFETCH(bool, isStandard);
    QFETCH(QString, warning);
    const MessageLog log;
    script().cameras = {cameraRecord("a")};
    script().intercept = [=](const CvxScripted::Call &) -> CvxCPP::CvxError {
        if (isStandard)
            throw std::runtime_error("producer lost");
        throw 42;
    };
    refreshButton()->click();
    QTRY_VERIFY(refreshButton()->isEnabled());
    QCOMPARE(rows(), QStringList());
    QCOMPARE(log.texts(QtWarningMsg), QStringList{warning});

    script().intercept = nullptr;
    refreshButton()->click();
    QTRY_COMPARE(rows(), QStringList{"|model|a"_s});
}

void TestRefresh::requestDuringAScanIsDropped()
{
    CvxScripted::Gate gate;
    holdScansAt(gate);
    refreshButton()->click();
    emit mainWindow()->requestRefreshCameras();
    QVERIFY(QMetaObject::invokeMethod(m_controller.get(), "refreshCameras"));
    gate.open();
    QTRY_VERIFY(refreshButton()->isEnabled());
    processQueuedEvents();
    QVERIFY(refreshButton()->isEnabled());
    QCOMPARE(scans(), 1); // Intended: requests during a scan are not queued.
}

void TestRefresh::selectionIsClearedByEveryScan()
{
    script().cameras = {cameraRecord("a")};
    refreshButton()->click();
    QTRY_VERIFY(refreshButton()->isEnabled());
    cameraTable()->selectRow(0);
    QCOMPARE(selectedRows(), QVector<int>{0});
    QVERIFY(enabledTiles() > 0);

    refreshButton()->click();
    QTRY_VERIFY(refreshButton()->isEnabled());
    QCOMPARE(rows(), QStringList{"|model|a"_s});
    QCOMPARE(selectedRows(), QVector<int>());
    QCOMPARE(enabledTiles(), 0);
}

void TestRefresh::cameraNotificationStartsAScan()
{
    script().cameras = {cameraRecord("a")};
    reportCamera("a"); // The observer has returned, but the GUI thread has not processed its signal yet.
    QVERIFY(refreshButton()->isEnabled());
    QCOMPARE(scans(), 0);
    QTRY_COMPARE(rows(), QStringList{"|model|a"_s});
}

void TestRefresh::notificationDuringAScanIsDropped()
{
    CvxScripted::Gate gate;
    script().intercept = [&gate](const CvxScripted::Call &call) {
        if (call.function == Function::GetModel)
            gate.pass(); // The scan has already read the camera list.
        return CvxErrorSuccess;
    };
    script().cameras = {cameraRecord("a")};
    refreshButton()->click();
    QVERIFY(gate.waitForArrival());
    script().cameras = {cameraRecord("a"), cameraRecord("b")};
    reportCamera("b");
    processQueuedEvents();
    gate.open();
    QTRY_VERIFY(refreshButton()->isEnabled());
    processQueuedEvents();
    QCOMPARE(scans(), 1); // Intended: the new camera appears only after the next refresh or notification.
    QCOMPARE(rows(), QStringList{"|model|a"_s});

    reportCamera("b");
    QTRY_COMPARE(rows().size(), 2);
}

void TestRefresh::interfaceChangeStartsNoScan()
{
    reportInterface();
    processQueuedEvents();
    QVERIFY(refreshButton()->isEnabled());
    QCOMPARE(scans(), 0); // Intended: only camera-list changes start scans.
}

void TestRefresh::observersShareOneMutex()
{
    CvxScripted::Gate gate;
    script().intercept = [&gate](const CvxScripted::Call &call) {
        if (call.function == Function::GetExtendedId)
            gate.pass();
        return CvxErrorSuccess;
    };
    const auto camera = std::async(std::launch::async, [] { reportCamera("a"); });
    QVERIFY(gate.waitForArrival());
    const auto iface = std::async(std::launch::async, reportInterface);
    QVERIFY(iface.wait_for(std::chrono::milliseconds(100)) == std::future_status::timeout);
    gate.open();
    QVERIFY(iface.wait_for(std::chrono::seconds(30)) == std::future_status::ready);
}

QTEST_MAIN(TestRefresh)
#include "TestRefresh.moc"
