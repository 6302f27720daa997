#include "tests/app/ControllerTest.h"
#include "tests/app/Descriptors.h"
#include "tests/support/MarkingTranslator.h"
#include "tests/support/ScriptFile.h"

#include <QMenu>
#include <QProcess>
#include <QSignalSpy>
#include <QSystemTrayIcon>
#include <QTemporaryDir>

using namespace ControllerTest;

Q_DECLARE_METATYPE(QSystemTrayIcon::ActivationReason)

namespace {

/// Pointer input that goes in at the X server, as a person's does.
void xdotool(const QStringList &arguments)
{
    QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), arguments), 0);
}

void click(const QPoint &position, int button, int times = 1)
{
    // Without --sync, which waits for a movement even if the pointer is there already.
    xdotool({QStringLiteral("mousemove"), QString::number(position.x()), QString::number(position.y()),
        QStringLiteral("click"), QStringLiteral("--repeat"), QString::number(times),
        QStringLiteral("--delay"), QStringLiteral("50"), QString::number(button)});
}

} // namespace

/// The tray icon, on a desktop that has a tray: a real X server with a window manager.
class TestTray : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void iconShowsTheWindowsIconAndTheName();
    void menuOffersShowAndExit();
    void textsAreTranslated();
    void everythingBelongsToTheControllerAndItsWindow();
    void minimizeToTrayHidesTheWindowAndTheProgramGoesOn();
    void withAHiddenIconMinimizeToTrayMinimises();
    void doubleClickBringsTheHiddenWindowBack();
    void doubleClickRestoresTheMinimisedWindow();
    void otherClicksDoNothing_data();
    void otherClicksDoNothing();
    void showOfTheMenuBringsTheWindowBack();
    void exitOfTheMenuEndsTheProgram();
    void closingTheWindowEndsTheProgramInSpiteOfTheIcon();
    void iconGoesWithTheController();
    void startedToolInheritsNoDescriptor();

private:
    void showWindow();
    void hideWindow();
    void clickMenuEntry(const QString &text);
    void doubleClickIcon();
    QPoint iconPosition() const { return m_icon->geometry().center(); }

    std::unique_ptr<ApplicationController> m_controller;
    QSystemTrayIcon *m_icon = nullptr;
};

void TestTray::initTestCase()
{
    qRegisterMetaType<QSystemTrayIcon::ActivationReason>();
    QTRY_VERIFY_WITH_TIMEOUT(QSystemTrayIcon::isSystemTrayAvailable(), 20000);
}

void TestTray::init()
{
    CvxScripted::reset();
    QApplication::setDoubleClickInterval(
        0); // Or the click of one test and that of the next make a double one.
    m_controller = std::make_unique<ApplicationController>();
    QVERIFY(m_controller->init());
    m_icon = m_controller->findChild<QSystemTrayIcon *>();
    QVERIFY(m_icon);
    QTRY_VERIFY(m_icon->geometry().x() > 0); // The tray has taken it in.
}

void TestTray::cleanup()
{
    m_controller.reset();
}

void TestTray::showWindow()
{
    mainWindow()->show();
    QVERIFY(QTest::qWaitForWindowActive(mainWindow()));
}

void TestTray::hideWindow()
{
    showWindow();
    QVERIFY(call(*m_controller, "minimizeToTray"));
    QVERIFY(mainWindow()->isHidden());
    QTRY_VERIFY(!QGuiApplication::focusWindow()); // Or the next activation comes together with this loss.
}

void TestTray::clickMenuEntry(const QString &text)
{
    click(iconPosition(), 3);
    QMenu *menu = m_icon->contextMenu();
    QTRY_VERIFY(menu->isVisible());
    for (QAction *action : menu->actions()) {
        if (action->text() == text)
            click(menu->mapToGlobal(menu->actionGeometry(action).center()), 1);
    }
}

void TestTray::doubleClickIcon()
{
    QApplication::setDoubleClickInterval(400); // ms
    click(iconPosition(), 1, 2);
}

void TestTray::iconShowsTheWindowsIconAndTheName()
{
    QVERIFY(m_icon->isVisible());
    QCOMPARE(m_icon->toolTip(), QStringLiteral("Corvix X - Application Launcher"));
    QVERIFY(!m_icon->icon().isNull());
    QCOMPARE(m_icon->icon().cacheKey(), mainWindow()->windowIcon().cacheKey());
}

void TestTray::menuOffersShowAndExit()
{
    const QList<QAction *> actions = m_icon->contextMenu()->actions();
    QCOMPARE(actions.size(), 3);
    QCOMPARE(actions.at(0)->text(), QStringLiteral("Show"));
    QVERIFY(actions.at(0)->shortcut().isEmpty());
    QVERIFY(actions.at(1)->isSeparator());
    QCOMPARE(actions.at(2)->text(), QStringLiteral("Exit"));
    QVERIFY(actions.at(2)->shortcut().isEmpty());
}

void TestTray::textsAreTranslated()
{
    MarkingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    m_controller = std::make_unique<ApplicationController>();
    const auto *icon = m_controller->findChild<QSystemTrayIcon *>();
    QVERIFY(icon);
    QCOMPARE(icon->toolTip(), QStringLiteral("[ApplicationController] Corvix X - Application Launcher"));
    const QList<QAction *> actions = icon->contextMenu()->actions();
    QCOMPARE(actions.first()->text(), QStringLiteral("[ApplicationController] Show"));
    QCOMPARE(actions.last()->text(), QStringLiteral("[ApplicationController] Exit"));
}

void TestTray::everythingBelongsToTheControllerAndItsWindow()
{
    QCOMPARE(m_icon->parent(), m_controller.get());
    QCOMPARE(m_icon->contextMenu()->parent(), mainWindow());
}

void TestTray::minimizeToTrayHidesTheWindowAndTheProgramGoesOn()
{
    const QSignalSpy lastWindowClosed(qApp, &QApplication::lastWindowClosed);
    hideWindow();
    processQueuedEvents();
    QCOMPARE(lastWindowClosed.count(), 0);
    QVERIFY(m_icon->isVisible());
}

void TestTray::withAHiddenIconMinimizeToTrayMinimises()
{
    showWindow();
    m_icon->hide();
    QVERIFY(call(*m_controller, "minimizeToTray"));
    QVERIFY(!mainWindow()->isHidden());
    QTRY_VERIFY(mainWindow()->isMinimized());
}

void TestTray::doubleClickBringsTheHiddenWindowBack()
{
    hideWindow();
    doubleClickIcon();
    QTRY_VERIFY(mainWindow()->isVisible());
    QTRY_VERIFY(mainWindow()->isActiveWindow());
}

void TestTray::doubleClickRestoresTheMinimisedWindow()
{
    showWindow();
    mainWindow()->showMinimized();
    QTRY_VERIFY(!mainWindow()->isActiveWindow());
    doubleClickIcon();
    QTRY_VERIFY(!mainWindow()->isMinimized());
    QTRY_VERIFY(mainWindow()->isActiveWindow());
}

void TestTray::otherClicksDoNothing_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("reason");
    QTest::newRow("single click") << 1 << int(QSystemTrayIcon::Trigger);
    QTest::newRow("middle click") << 2 << int(QSystemTrayIcon::MiddleClick);
    QTest::newRow("right click") << 3 << int(QSystemTrayIcon::Context);
}

void TestTray::otherClicksDoNothing()
{
    QFETCH(int, button);
    QFETCH(int, reason);
    hideWindow();
    const QSignalSpy activated(m_icon, &QSystemTrayIcon::activated);
    click(iconPosition(), button);
    QTRY_COMPARE(activated.count(), 1);
    QCOMPARE(int(activated.first().first().value<QSystemTrayIcon::ActivationReason>()), reason);
    processQueuedEvents();
    QVERIFY(mainWindow()->isHidden());
    m_icon->contextMenu()->close();
}

void TestTray::showOfTheMenuBringsTheWindowBack()
{
    hideWindow();
    clickMenuEntry(QStringLiteral("Show"));
    QTRY_VERIFY(mainWindow()->isVisible());
    QTRY_VERIFY(mainWindow()->isActiveWindow());
}

void TestTray::exitOfTheMenuEndsTheProgram()
{
    bool timedOut = false;
    QTimer::singleShot(0, m_controller.get(), [this] { clickMenuEntry(QStringLiteral("Exit")); });
    QTimer::singleShot(20000, m_controller.get(), [&timedOut] {
        timedOut = true;
        QCoreApplication::quit();
    });
    QCOMPARE(m_controller->run(), 0);
    QVERIFY(!timedOut);
}

void TestTray::closingTheWindowEndsTheProgramInSpiteOfTheIcon()
{
    bool timedOut = false;
    QTimer::singleShot(0, mainWindow(), [this] {
        showWindow();
        mainWindow()->close();
    });
    QTimer::singleShot(20000, m_controller.get(), [&timedOut] {
        timedOut = true;
        QCoreApplication::quit();
    });
    QCOMPARE(m_controller->run(), 0);
    QVERIFY(!timedOut);
}

void TestTray::iconGoesWithTheController()
{
    const QPointer<QSystemTrayIcon> icon(m_icon);
    const QPointer<QMenu> menu(m_icon->contextMenu());
    m_controller.reset();
    QVERIFY(!icon);
    QVERIFY(!menu);
}

void TestTray::startedToolInheritsNoDescriptor()
{
    const QTemporaryDir directory;
    const QString tool = directory.filePath(QStringLiteral("tool"));
    ScriptFile::writeExecutable(
        tool, "(ls -l /proc/$$/fd) > descriptors.part\nmv descriptors.part descriptors\n");
    m_controller->launchTool(tool);
    const QString listing = directory.filePath(QStringLiteral("descriptors"));
    QTRY_VERIFY(QFileInfo::exists(listing));
    QStringList open = Descriptors::targets(ScriptFile::read(listing));
    QVERIFY(open.removeOne(tool)); // The shell reads the script through it.
    for (const QString &target : open) // Not the connection to the X server, for example.
        QVERIFY2(Descriptors::inheritedAtStart().contains(target), qPrintable(target));
}

QTEST_MAIN(TestTray)
#include "TestTray.moc"
