#include "tests/app/ControllerTest.h"

#include <QMenu>
#include <QProcess>
#include <QSignalSpy>
#include <QSystemTrayIcon>

using namespace ControllerTest;
using Reason = QSystemTrayIcon::ActivationReason;

Q_DECLARE_METATYPE(QSystemTrayIcon::ActivationReason)

namespace {

/// Simulates the clicks of a user through the X server.
void click(const QPoint &position, int button, int times = 1)
{
    // The option "--sync" is not used: it waits for a movement even if the pointer is already at the
    // position.
    const QString command = "mousemove %1 %2 click --repeat %3 --delay 50 %4"_s;
    QCOMPARE(QProcess::execute("xdotool"_s,
                 command.arg(position.x()).arg(position.y()).arg(times).arg(button).split(QLatin1Char(' '))),
        0);
}

} // namespace

/// Tests the tray icon on a real X server with a window manager and a tray.
class TestTray : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { m_controller.reset(); }

    void iconAndMenuAreComplete();
    void minimizeToTrayMinimisesIfTheIconIsHidden();
    void doubleClickRestoresTheHiddenWindow();
    void otherClicksDoNothing_data();
    void otherClicksDoNothing();
    void menuEntryShowRestoresTheWindow();
    void menuEntryExitEndsTheProgram();
    void closingTheWindowEndsTheProgramDespiteTheIcon();

private:
    void showWindow();
    void hideWindow();
    void clickMenuEntry(const QString &text);
    QPoint iconPosition() const { return m_icon->geometry().center(); }

    MarkingTranslator m_translator;
    std::unique_ptr<ApplicationController> m_controller;
    QSystemTrayIcon *m_icon = nullptr;
};

void TestTray::initTestCase()
{
    QCoreApplication::installTranslator(&m_translator);
    qRegisterMetaType<Reason>();
    QTRY_VERIFY_WITH_TIMEOUT(QSystemTrayIcon::isSystemTrayAvailable(), 30000);
}

void TestTray::init()
{
    CvxScripted::reset();
    QApplication::setDoubleClickInterval(0); // The clicks of two tests must not count as a double click.
    m_controller = std::make_unique<ApplicationController>();
    QVERIFY(m_controller->init());
    m_icon = m_controller->findChild<QSystemTrayIcon *>();
    QVERIFY(m_icon);
    QTRY_VERIFY(m_icon->geometry().x() > 0); // The tray has now embedded the icon.
}

void TestTray::showWindow()
{
    mainWindow()->show();
    QVERIFY(QTest::qWaitForWindowActive(mainWindow()));
}

void TestTray::hideWindow()
{
    showWindow();
    QVERIFY(QMetaObject::invokeMethod(m_controller.get(), "minimizeToTray"));
    QVERIFY(mainWindow()->isHidden());
    QTRY_VERIFY(!QGuiApplication::focusWindow()); // Otherwise the window would miss its next activation.
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

void TestTray::iconAndMenuAreComplete()
{
    QVERIFY(m_icon->isVisible());
    QCOMPARE(m_icon->toolTip(), "[ApplicationController] Corvix X - Application Launcher"_s);
    QCOMPARE(m_icon->icon().cacheKey(), mainWindow()->windowIcon().cacheKey());
    QCOMPARE(m_icon->parent(), m_controller.get());
    QCOMPARE(m_icon->contextMenu()->parent(), mainWindow());
    const QList<QAction *> actions = m_icon->contextMenu()->actions();
    QCOMPARE(actions.size(), 3);
    QCOMPARE(actions.at(0)->text(), "[ApplicationController] Show"_s);
    QVERIFY(actions.at(1)->isSeparator());
    QCOMPARE(actions.at(2)->text(), "[ApplicationController] Exit"_s);
    for (const QAction *action : actions)
        QVERIFY(action->shortcut().isEmpty());
}

void TestTray::minimizeToTrayMinimisesIfTheIconIsHidden()
{
    showWindow();
    m_icon->hide();
    QVERIFY(QMetaObject::invokeMethod(m_controller.get(), "minimizeToTray"));
    QVERIFY(!mainWindow()->isHidden());
    QTRY_VERIFY(mainWindow()->isMinimized());
}

void TestTray::doubleClickRestoresTheHiddenWindow()
{
    // If Qt emitted this signal, the program would end.
    const QSignalSpy lastWindowClosed(qApp, &QApplication::lastWindowClosed);
    // Qt emits lastWindowClosed() only while run() executes.
    QTimer::singleShot(0, m_controller.get(), [this] {
        const auto end = qScopeGuard([] { QCoreApplication::quit(); });
        hideWindow();
        QVERIFY(m_icon->isVisible());
        QApplication::setDoubleClickInterval(10000); // ms
        click(iconPosition(), 1, 2);
        QTRY_VERIFY(mainWindow()->isActiveWindow());
    });
    QCOMPARE(m_controller->run(), 0);
    QCOMPARE(lastWindowClosed.count(), 0);
}

void TestTray::otherClicksDoNothing_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<Reason>("reason");
    QTest::newRow("single click") << 1 << QSystemTrayIcon::Trigger;
    QTest::newRow("middle click") << 2 << QSystemTrayIcon::MiddleClick;
    QTest::newRow("right click") << 3 << QSystemTrayIcon::Context;
}

void TestTray::otherClicksDoNothing()
{
    QFETCH(int, button);
    QFETCH(Reason, reason);
    hideWindow();
    const QSignalSpy activated(m_icon, &QSystemTrayIcon::activated);
    click(iconPosition(), button);
    QTRY_COMPARE(activated.count(), 1);
    QCOMPARE(activated.first().first().value<Reason>(), reason);
    processQueuedEvents();
    QVERIFY(mainWindow()->isHidden());
    m_icon->contextMenu()->close();
}

void TestTray::menuEntryShowRestoresTheWindow()
{
    hideWindow();
    clickMenuEntry("[ApplicationController] Show"_s);
    QTRY_VERIFY(mainWindow()->isActiveWindow());
}

void TestTray::menuEntryExitEndsTheProgram()
{
    QTimer::singleShot(0, m_controller.get(), [this] { clickMenuEntry("[ApplicationController] Exit"_s); });
    QCOMPARE(m_controller->run(), 0);
}

void TestTray::closingTheWindowEndsTheProgramDespiteTheIcon()
{
    QTimer::singleShot(0, mainWindow(), [this] {
        showWindow();
        mainWindow()->close();
    });
    QCOMPARE(m_controller->run(), 0);
}

QTEST_MAIN(TestTray)
#include "TestTray.moc"
