#include "tests/app/ControllerTest.h"
#include "tests/support/ModalCatcher.h"

#include "ui/ApplicationLauncher.h"

#include <QMenu>
#include <QMetaMethod>
#include <QSystemTrayIcon>

using namespace ControllerTest;
using CvxScripted::Function;
using CvxScripted::script;

Q_DECLARE_METATYPE(CvxScripted::Function)

namespace {

int tileCount()
{
    return mainWindow()->findChildren<ApplicationLauncher *>().size();
}

/// Notes what the first Show event of a window finds.
class ShowWatcher : public QObject
{
public:
    explicit ShowWatcher(QObject *watched) { watched->installEventFilter(this); }

    QList<QStringList> rowsWhenShown;
    int shown = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Show && ++shown == 1)
            rowsWhenShown = rows();
        return false;
    }
};

} // namespace

/// The constructor, init() and run(), on a desktop without a tray.
class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void init() { CvxScripted::reset(); }

    // Construction
    void slotsAreCallableByNameInTheirOrder();
    void constructionLeavesTheSdkAlone();
    void constructionMakesAHiddenWindow();
    void withoutATrayThereIsNoIconAndNoMenu();

    // init()
    void initStartsTheSdkAndThenRegistersBothObservers();
    void initBuildsTheTiles();
    void refusedStartupEndsInit();
    void refusedObserverIsReportedAndTheProgramRuns_data();
    void refusedObserverIsReportedAndTheProgramRuns();
    void bothObserversRefusedGiveTwoBoxesInOrder();
    void cameraAnnouncedWhileABoxIsOpenIsListedByTheFirstScan();
    void acceptedObserversGiveNoBox();

    // run()
    void firstScanStartsBeforeTheWindowIsShown();
    void runGivesTheExitCodeOfTheLoop();
    void closingTheWindowEndsTheLoop();
    void closeAppEndsTheLoop();
    void withoutATrayMinimizeToTrayMinimises();
    void showFromTrayRestoresTheWindow();
    void showFromTrayActivatesAWindowThatIsOnlyCovered();
};

void TestStartup::slotsAreCallableByNameInTheirOrder()
{
    const QMetaObject &meta = ApplicationController::staticMetaObject;
    QList<QByteArray> own;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        QCOMPARE(meta.method(index).methodType(), QMetaMethod::Slot);
        own.append(meta.method(index).methodSignature());
    }
    QCOMPARE(own,
        (QList<QByteArray>{"refreshCameras()", "onCameraListReady(QVector<CameraInfo>)",
            "launchTool(QString)", "minimizeToTray()", "closeApp()", "showFromTray()"}));
}

void TestStartup::constructionLeavesTheSdkAlone()
{
    const ApplicationController controller;
    QVERIFY(CvxScripted::calls().empty());
}

void TestStartup::constructionMakesAHiddenWindow()
{
    const ApplicationController controller;
    QVERIFY(mainWindow());
    QVERIFY(!mainWindow()->parent());
    QVERIFY(!mainWindow()->isVisible());
    QCOMPARE(tileCount(), 0);
}

void TestStartup::withoutATrayThereIsNoIconAndNoMenu()
{
    QVERIFY(!QSystemTrayIcon::isSystemTrayAvailable());
    const ApplicationController controller;
    QVERIFY(!controller.findChild<QSystemTrayIcon *>());
    QVERIFY(!mainWindow()->findChild<QMenu *>());
}

void TestStartup::initStartsTheSdkAndThenRegistersBothObservers()
{
    ApplicationController controller;
    QVERIFY(controller.init());
    QCOMPARE(calledFunctions(),
        (QVector<int>{int(Function::Startup), int(Function::RegisterCameraListObserver),
            int(Function::RegisterInterfaceListObserver)}));
    QCOMPARE(CvxScripted::observerCount(), std::size_t(2));
    QVERIFY(!mainWindow()->isVisible());
}

void TestStartup::initBuildsTheTiles()
{
    ApplicationController controller;
    QVERIFY(controller.init());
    QVERIFY(tileCount() > 0);
}

void TestStartup::refusedStartupEndsInit()
{
    ModalCatcher catcher;
    script().errors[Function::Startup] = CvxCPP::CvxErrorHostMissing;
    {
        ApplicationController controller;
        QVERIFY(!controller.init());
        QCOMPARE(calledFunctions(), QVector<int>{int(Function::Startup)});
        QCOMPARE(tileCount(), 0);
        QVERIFY(!mainWindow()->isVisible());
    }
    QVERIFY(catcher.boxes().isEmpty()); // The entry point reports it.
    QCOMPARE(calledFunctions(), (QVector<int>{int(Function::Startup), int(Function::Shutdown)}));
}

void TestStartup::refusedObserverIsReportedAndTheProgramRuns_data()
{
    QTest::addColumn<Function>("refused");
    QTest::addColumn<QString>("text");
    QTest::newRow("cameras") << Function::RegisterCameraListObserver
                             << QStringLiteral("Unable to register camera list observer");
    QTest::newRow("interfaces") << Function::RegisterInterfaceListObserver
                                << QStringLiteral("Unable to register interface list observer");
}

void TestStartup::refusedObserverIsReportedAndTheProgramRuns()
{
    QFETCH(Function, refused);
    ModalCatcher catcher;
    script().errors[refused] = CvxCPP::CvxErrorFailed;
    script().cameras = {cameraRecord("a")};
    ApplicationController controller;
    QVERIFY(controller.init());

    QCOMPARE(catcher.boxes().size(), 1);
    const ModalCatcher::Box &box = catcher.boxes().first();
    QCOMPARE(box.title, QStringLiteral("Error"));
    QTEST(box.text, "text");
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY(!box.parent);

    QCOMPARE(CvxScripted::observerCount(), std::size_t(1));
    QVERIFY(tileCount() > 0);
    refreshButton()->click();
    QTRY_COMPARE(rows(), QList<QStringList>{rowOf(QStringLiteral("a"))});
}

void TestStartup::cameraAnnouncedWhileABoxIsOpenIsListedByTheFirstScan()
{
    ModalCatcher catcher;
    catcher.onBox = [](QMessageBox &) {
        CvxScripted::announceCamera(cameraRecord("a"), CvxCPP::UpdateTriggerPluggedIn);
        processQueuedEvents();
    };
    script().errors[Function::RegisterInterfaceListObserver] = CvxCPP::CvxErrorFailed;
    script().cameras = {cameraRecord("a")};
    ApplicationController controller;
    QVERIFY(controller.init());
    QCOMPARE(catcher.boxes().size(), 1);
    QVERIFY(CvxScripted::callCount(Function::GetExtendedId) > 0); // The camera was announced.
    QCOMPARE(scans(), 0);

    QTimer::singleShot(0, qApp, [] {
        QTRY_COMPARE(rows(), QList<QStringList>{rowOf(QStringLiteral("a"))});
        QCoreApplication::quit();
    });
    QCOMPARE(controller.run(), 0);
    QCOMPARE(scans(), 1);
}

void TestStartup::bothObserversRefusedGiveTwoBoxesInOrder()
{
    ModalCatcher catcher;
    script().errors[Function::RegisterCameraListObserver] = CvxCPP::CvxErrorFailed;
    script().errors[Function::RegisterInterfaceListObserver] = CvxCPP::CvxErrorFailed;
    ApplicationController controller;
    QVERIFY(controller.init());
    QCOMPARE(catcher.boxes().size(), 2);
    QCOMPARE(catcher.boxes().at(0).text, QStringLiteral("Unable to register camera list observer"));
    QCOMPARE(catcher.boxes().at(1).text, QStringLiteral("Unable to register interface list observer"));
}

void TestStartup::acceptedObserversGiveNoBox()
{
    ModalCatcher catcher;
    ApplicationController controller;
    QVERIFY(controller.init());
    QVERIFY(catcher.boxes().isEmpty());
}

void TestStartup::firstScanStartsBeforeTheWindowIsShown()
{
    CvxScripted::Gate gate;
    script().intercept = [&gate](const CvxScripted::Call &seen) {
        if (seen.function == Function::CountCameras)
            gate.pass();
        return CvxCPP::CvxErrorSuccess;
    };
    ApplicationController controller;
    QVERIFY(controller.init());
    QCOMPARE(scans(), 0);
    ShowWatcher watcher(mainWindow());
    QTimer::singleShot(0, &controller, [&gate] {
        gate.open();
        mainWindow()->close();
    });
    QCOMPARE(controller.run(), 0);
    QCOMPARE(watcher.shown, 1);
    QCOMPARE(watcher.rowsWhenShown, scanningRows());
    QVERIFY(CvxScripted::waitForCalls(Function::CountCameras, 1));
}

void TestStartup::runGivesTheExitCodeOfTheLoop()
{
    ApplicationController controller;
    QVERIFY(controller.init());
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(7); });
    QCOMPARE(controller.run(), 7);
}

void TestStartup::closingTheWindowEndsTheLoop()
{
    ApplicationController controller;
    QVERIFY(controller.init());
    QTimer::singleShot(
        0, mainWindow(), [] { childNamed<QPushButton>(*mainWindow(), "pushButton_2")->click(); });
    QCOMPARE(controller.run(), 0);
    QVERIFY(!mainWindow()->isVisible());
}

void TestStartup::closeAppEndsTheLoop()
{
    ApplicationController controller;
    QVERIFY(controller.init());
    QTimer::singleShot(0, &controller, &ApplicationController::closeApp);
    QCOMPARE(controller.run(), 0);
}

void TestStartup::withoutATrayMinimizeToTrayMinimises()
{
    ApplicationController controller;
    mainWindow()->show();
    QVERIFY(call(controller, "minimizeToTray"));
    QVERIFY(mainWindow()->isMinimized());
    QVERIFY(!mainWindow()->isHidden());
}

void TestStartup::showFromTrayRestoresTheWindow()
{
    ApplicationController controller;
    mainWindow()->showMinimized();
    QVERIFY(call(controller, "showFromTray"));
    QVERIFY(mainWindow()->isVisible());
    QVERIFY(!mainWindow()->isMinimized());
    QTRY_VERIFY(mainWindow()->isActiveWindow());

    mainWindow()->hide();
    QVERIFY(call(controller, "showFromTray"));
    QVERIFY(mainWindow()->isVisible());
}

void TestStartup::showFromTrayActivatesAWindowThatIsOnlyCovered()
{
    ApplicationController controller;
    mainWindow()->show();
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(call(controller, "showFromTray"));
    QTRY_VERIFY(mainWindow()->isActiveWindow());
}

QTEST_MAIN(TestStartup)
#include "TestStartup.moc"
