#include "tests/app/ControllerTest.h"
#include "tests/support/ModalCatcher.h"

#include <QSystemTrayIcon>

using namespace ControllerTest;
using Functions = QVector<Function>;
using Action = void (*)();

Q_DECLARE_METATYPE(QVector<CvxScripted::Function>)
Q_DECLARE_METATYPE(Action)

namespace {

Functions calledFunctions()
{
    Functions functions;
    for (const CvxScripted::Call &call : CvxScripted::calls())
        functions.append(call.function);
    return functions;
}

} // namespace

/// Tests the constructor, init(), run() and the window's states on a desktop without a tray.
class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::installTranslator(&m_translator); }
    void init() { CvxScripted::reset(); }

    void constructorOnlyCreatesAHiddenWindow();

    void initStartsTheSdkAndRegistersBothObservers();
    void initFailsIfTheSdkDoesNotStart();
    void failedObserverRegistrationOnlyShowsAMessageBox_data();
    void failedObserverRegistrationOnlyShowsAMessageBox();
    void firstScanFindsACameraReportedDuringInit();

    void firstScanStartsBeforeTheWindowIsShown();
    void runReturnsTheExitCodeOfTheEventLoop();

    void minimizeToTrayMinimisesIfThereIsNoTray();
    void showFromTrayActivatesTheWindow_data();
    void showFromTrayActivatesTheWindow();

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Show)
            m_rowsWhenShown = rows();
        return false;
    }

private:
    MarkingTranslator m_translator;
    QStringList m_rowsWhenShown;
};

void TestStartup::constructorOnlyCreatesAHiddenWindow()
{
    const ApplicationController controller;
    QVERIFY(!mainWindow()->parent());
    QVERIFY(!mainWindow()->isVisible());
    QCOMPARE(tiles().size(), 0);
    QCOMPARE(calledFunctions(), Functions());
    QVERIFY(!QSystemTrayIcon::isSystemTrayAvailable());
    QVERIFY(!controller.findChild<QSystemTrayIcon *>());
    QVERIFY(!mainWindow()->findChild<QMenu *>());
}

void TestStartup::initStartsTheSdkAndRegistersBothObservers()
{
    const ModalCatcher catcher;
    ApplicationController controller;
    QVERIFY(controller.init());
    QCOMPARE(calledFunctions(),
        (Functions{Function::Startup, Function::RegisterCameraListObserver,
            Function::RegisterInterfaceListObserver}));
    QVERIFY(tiles().size() > 0);
    QVERIFY(!mainWindow()->isVisible());
    QCOMPARE(catcher.boxes().size(), 0);
}

void TestStartup::initFailsIfTheSdkDoesNotStart()
{
    const ModalCatcher catcher;
    script().errors[Function::Startup] = CvxCPP::CvxErrorHostMissing;
    ApplicationController controller;
    QVERIFY(!controller.init());
    QCOMPARE(calledFunctions(), Functions{Function::Startup});
    QCOMPARE(tiles().size(), 0);
    QCOMPARE(catcher.boxes().size(), 0); // main() reports the failure.
}

void TestStartup::failedObserverRegistrationOnlyShowsAMessageBox_data()
{
    const auto cameraText = "Unable to register camera list observer"_s;
    const auto interfaceText = "Unable to register interface list observer"_s;
    const auto cameras = Function::RegisterCameraListObserver;
    const auto interfaces = Function::RegisterInterfaceListObserver;
    QTest::addColumn<Functions>("refused");
    QTest::addColumn<QStringList>("texts"); // Intended: these strings are not translated.
    QTest::newRow("cameras") << Functions{cameras} << QStringList{cameraText};
    QTest::newRow("interfaces") << Functions{interfaces} << QStringList{interfaceText};
    QTest::newRow("both") << Functions{cameras, interfaces} << QStringList{cameraText, interfaceText};
}

void TestStartup::failedObserverRegistrationOnlyShowsAMessageBox()
{
    QFETCH(Functions, refused);
    QFETCH(QStringList, texts);
    const ModalCatcher catcher;
    for (const Function function : refused)
        script().errors[function] = CvxErrorFailed;
    script().cameras = {cameraRecord("a")};
    ApplicationController controller;
    QVERIFY(controller.init());

    QStringList reported;
    for (const ModalCatcher::Box &box : catcher.boxes()) {
        reported.append(box.text);
        QCOMPARE(box.title, "Error"_s);
        QCOMPARE(box.icon, QMessageBox::Critical);
        QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        QVERIFY(!box.parent);
    }
    QCOMPARE(reported, texts);
    refreshButton()->click();
    QTRY_COMPARE(rows(), QStringList{"|model|a"_s});
}

void TestStartup::firstScanFindsACameraReportedDuringInit()
{
    ModalCatcher catcher;
    catcher.onBox = [](QMessageBox &) {
        reportCamera("a");
        processQueuedEvents();
    };
    script().errors[Function::RegisterInterfaceListObserver] = CvxErrorFailed;
    script().cameras = {cameraRecord("a")};
    ApplicationController controller;
    QVERIFY(controller.init());
    QVERIFY(callCount(Function::GetExtendedId) > 0); // The observer was notified.
    QCOMPARE(scans(), 0);
    controller.refreshCameras();
    QTRY_COMPARE(rows(), QStringList{"|model|a"_s});
    QCOMPARE(scans(), 1);
}

void TestStartup::firstScanStartsBeforeTheWindowIsShown()
{
    CvxScripted::Gate gate;
    holdScansAt(gate);
    ApplicationController controller;
    QVERIFY(controller.init());
    mainWindow()->installEventFilter(this);
    QTimer::singleShot(0, &controller, &ApplicationController::closeApp);
    controller.run();
    gate.open();
    QCOMPARE(m_rowsWhenShown, scanningRows);
}

void TestStartup::runReturnsTheExitCodeOfTheEventLoop()
{
    ApplicationController controller;
    QVERIFY(controller.init());
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(7); });
    QCOMPARE(controller.run(), 7);
    QTimer::singleShot(0, &controller, &ApplicationController::closeApp);
    QCOMPARE(controller.run(), 0);
}

void TestStartup::minimizeToTrayMinimisesIfThereIsNoTray()
{
    ApplicationController controller;
    mainWindow()->show();
    QVERIFY(QMetaObject::invokeMethod(&controller, "minimizeToTray"));
    QVERIFY(mainWindow()->isMinimized());
    QVERIFY(!mainWindow()->isHidden());
}

void TestStartup::showFromTrayActivatesTheWindow_data()
{
    QTest::addColumn<Action>("action");
    QTest::newRow("minimised") << Action([] { mainWindow()->showMinimized(); });
    QTest::newRow("hidden") << Action([] { mainWindow()->hide(); });
    QTest::newRow("covered") << Action([] {});
}

void TestStartup::showFromTrayActivatesTheWindow()
{
    QFETCH(Action, action);
    ApplicationController controller;
    mainWindow()->show();
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    action();
    QVERIFY(QMetaObject::invokeMethod(&controller, "showFromTray"));
    QVERIFY(mainWindow()->isVisible());
    QVERIFY(!mainWindow()->isMinimized());
    QTRY_VERIFY(mainWindow()->isActiveWindow());
}

QTEST_MAIN(TestStartup)
#include "TestStartup.moc"
