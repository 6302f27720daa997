#include "tests/ui/ConfiguredWindow.h"
#include "ui/ApplicationLauncher.h"

#include <QtTest>

using namespace ConfigDocuments;

Q_DECLARE_METATYPE(Qt::MouseButton)

class TestWindowDrag : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void onlyALeftPressOnTheHeaderStartsADrag_data();
    void onlyALeftPressOnTheHeaderStartsADrag();
    void pressOnATileStartsNoDrag();
    void rightReleaseDoesNotEndADrag();
    void leftReleaseEndsADrag();
    void windowFollowsTheMouseWithAnyPressedButton();
    void onlyPressEventsAreNotAccepted();

private:
    QPoint centerOf(const char *name) const;
    QWindow *handle() const { return m_configured->window.windowHandle(); }
    bool send(QEvent::Type type, const QPoint &at, Qt::MouseButton button, Qt::MouseButtons pressed);
    QPoint moved() const { return m_configured->window.pos() - m_start; }
    QPoint movedByMouse(const QPoint &at, Qt::MouseButton button);

    std::unique_ptr<ConfiguredWindow> m_configured;
    const QPoint m_start{40, 30};
    const QPoint m_distance{35, 12};
};

void TestWindowDrag::init()
{
    m_configured = std::make_unique<ConfiguredWindow>();
    m_configured->open({camera("Orvelle"_s, "Kx200"_s, "1"_s, "id"_s)});
    m_configured->window.move(m_start);
    QTRY_COMPARE_WITH_TIMEOUT(m_configured->window.pos(), m_start, hangTimeout);
    QCoreApplication::processEvents(); // A pending event sets the height of the tile area.
}

QPoint TestWindowDrag::centerOf(const char *name) const
{
    const auto *widget = childNamed<QWidget>(m_configured->window, name);
    return widget->mapTo(&m_configured->window, widget->rect().center());
}

/// Sends the event directly to the window, because Qt would drop some moves. Returns true if the event was
/// accepted.
bool TestWindowDrag::send(
    QEvent::Type type, const QPoint &at, Qt::MouseButton button, Qt::MouseButtons pressed)
{
    MainWindow &window = m_configured->window;
    QMouseEvent event(type, at, window.mapToGlobal(at), button, pressed, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
    return event.isAccepted();
}

/// Presses the button, moves the mouse by `m_distance` and returns how far the window moved.
QPoint TestWindowDrag::movedByMouse(const QPoint &at, Qt::MouseButton button)
{
    QTest::mousePress(handle(), button, {}, at);
    QTest::mouseMove(handle(), at + m_distance);
    QCoreApplication::processEvents();
    const QPoint result = moved();
    // The release is outside the pressed widget, so a push button is not clicked.
    QTest::mouseRelease(handle(), button, {}, at + m_distance);
    return result;
}

void TestWindowDrag::onlyALeftPressOnTheHeaderStartsADrag_data()
{
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<bool>("drags");
    for (const char *name : {"label_3", "titleLabel", "label_5", "widget"})
        QTest::newRow(name) << QPoint() << Qt::LeftButton << true;
    // This position is below the buttons.
    QTest::newRow("widget_5") << QPoint(0, 30) << Qt::LeftButton << true;
    for (const char *name : {"aboutQt_", "pushButton", "pushButton_2", "connectedCamerasLabel",
             "cameraHeader", "cameraTable", "recommendedToolsLabel", "toolsDescriptionLabel", "toolsScroll",
             "line", "widget_3", "footerLabel", "linkLabel"})
        QTest::newRow(name) << QPoint() << Qt::LeftButton << false;
    QTest::newRow("widget") << QPoint() << Qt::RightButton << false;
    QTest::newRow("widget") << QPoint() << Qt::MiddleButton << false;
}

void TestWindowDrag::onlyALeftPressOnTheHeaderStartsADrag()
{
    QFETCH(QPoint, offset);
    QFETCH(Qt::MouseButton, button);
    QFETCH(bool, drags);
    const QPoint at = centerOf(QTest::currentDataTag()) + offset;
    QCOMPARE(movedByMouse(at, button), drags ? m_distance : QPoint());
    QVERIFY(m_configured->window.isVisible());
}

void TestWindowDrag::pressOnATileStartsNoDrag()
{
    ApplicationLauncher *tile = m_configured->tiles().at(0);
    const QPoint at = tile->mapTo(&m_configured->window, tile->rect().center());
    for (const bool enabled : {true, false}) {
        tile->setEnabled(enabled);
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
            QCOMPARE(movedByMouse(at, button), QPoint());
    }
}

void TestWindowDrag::rightReleaseDoesNotEndADrag()
{
    const QPoint at = centerOf("titleLabel");
    QTest::mousePress(handle(), Qt::LeftButton, {}, at);
    QTest::mousePress(handle(), Qt::RightButton, {}, at);
    QTest::mouseRelease(handle(), Qt::RightButton, {}, at);
    QTest::mouseMove(handle(), at + m_distance);
    QCoreApplication::processEvents();
    QCOMPARE(moved(), m_distance);
}

void TestWindowDrag::leftReleaseEndsADrag()
{
    const QPoint at = centerOf("titleLabel");
    for (const char *releasedOn : {"titleLabel", "footerLabel"}) {
        QTest::mousePress(handle(), Qt::LeftButton, {}, at);
        send(QEvent::MouseButtonRelease, centerOf(releasedOn), Qt::LeftButton, Qt::NoButton);
        send(QEvent::MouseMove, at + m_distance, Qt::NoButton, Qt::LeftButton);
        QCOMPARE(moved(), QPoint());
    }
}

// Intended: the window ignores the buttons of a move event.
void TestWindowDrag::windowFollowsTheMouseWithAnyPressedButton()
{
    const QPoint at = centerOf("titleLabel");
    QTest::mousePress(handle(), Qt::LeftButton, {}, at);
    send(QEvent::MouseMove, at + m_distance, Qt::NoButton, Qt::RightButton);
    QCOMPARE(moved(), m_distance);
}

// Intended: only presses are passed on to the base class, which ignores them.
void TestWindowDrag::onlyPressEventsAreNotAccepted()
{
    for (const char *name : {"titleLabel", "footerLabel"}) {
        const QPoint at = centerOf(name);
        QVERIFY(!send(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton));
        QVERIFY(send(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton));
        QVERIFY(send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton));
    }
}

QTEST_MAIN(TestWindowDrag)
#include "TestWindowDrag.moc"
