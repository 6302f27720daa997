#include "tests/support/ChildNamed.h"
#include "tests/ui/ConfiguredWindow.h"
#include "ui/ApplicationLauncher.h"

#include <QDesktopServices>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QtTest>

Q_DECLARE_METATYPE(Qt::MouseButton)

class TestHeaderAndDrag : public QObject
{
    Q_OBJECT

public slots:
    void openNothing(const QUrl &) { }

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void leftPressOnTheHeaderDrags_data();
    void leftPressOnTheHeaderDrags();
    void pressElsewhereDoesNotDrag_data();
    void pressElsewhereDoesNotDrag();
    void pressOnATileDoesNotDrag_data();
    void pressOnATileDoesNotDrag();
    void rightOrMiddlePressDoesNotDrag_data();
    void rightOrMiddlePressDoesNotDrag();
    void rightReleaseDoesNotEndADrag();
    void leftReleaseEndsTheDrag();
    void leftReleaseOutsideTheHeaderEndsTheDrag();
    void moveIsFollowedWhateverButtonIsHeld();
    void moveWithoutAPressDoesNothing();
    void onlyThePressIsLeftUnaccepted_data();
    void onlyThePressIsLeftUnaccepted();
    void pressOnAHeaderButtonDoesNotDrag_data();
    void pressOnAHeaderButtonDoesNotDrag();

private:
    QPoint centerOf(const char *name) const;
    void press(const QPoint &at, Qt::MouseButton button = Qt::LeftButton);
    void release(const QPoint &at, Qt::MouseButton button = Qt::LeftButton);
    void move(const QPoint &at);
    bool send(
        QEvent::Type type, const QPoint &at, Qt::MouseButton button, Qt::MouseButtons held = Qt::NoButton);
    QPoint pressedAndMoved(const QPoint &at, Qt::MouseButton button);

    std::unique_ptr<ConfiguredWindow> m_window;
    const QPoint m_start{40, 30};
    const QPoint m_way{35, 12};
};

void TestHeaderAndDrag::initTestCase()
{
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "openNothing"); // The footer's link.
}

void TestHeaderAndDrag::init()
{
    m_window = std::make_unique<ConfiguredWindow>();
    m_window->loadConfig();
    m_window->show();
    m_window->list({camera(
        QStringLiteral("Orvelle"), QStringLiteral("Kx200"), QStringLiteral("1"), QStringLiteral("id"))});
    m_window->window.move(m_start);
    QTRY_COMPARE(m_window->window.pos(), m_start);
    QCoreApplication::processEvents(); // The tile area's height is set when the layout has settled.
}

void TestHeaderAndDrag::cleanup()
{
    m_window.reset();
}

QPoint TestHeaderAndDrag::centerOf(const char *name) const
{
    const auto *widget = childNamed<QWidget>(m_window->window, name);
    return widget->mapTo(&m_window->window, widget->rect().center());
}

void TestHeaderAndDrag::press(const QPoint &at, Qt::MouseButton button)
{
    QTest::mousePress(m_window->window.windowHandle(), button, Qt::NoModifier, at);
}

void TestHeaderAndDrag::release(const QPoint &at, Qt::MouseButton button)
{
    QTest::mouseRelease(m_window->window.windowHandle(), button, Qt::NoModifier, at);
}

void TestHeaderAndDrag::move(const QPoint &at)
{
    QTest::mouseMove(m_window->window.windowHandle(), at);
    QCoreApplication::processEvents();
}

/// Hands the event to the window itself, past what Qt withholds: it drops moves with no button held.
/// Returns whether the window accepted it.
bool TestHeaderAndDrag::send(
    QEvent::Type type, const QPoint &at, Qt::MouseButton button, Qt::MouseButtons held)
{
    QMouseEvent event(type, at, m_window->window.mapToGlobal(at), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&m_window->window, &event);
    return event.isAccepted();
}

/// How far the window went when the mouse went `m_way` with the button down.
QPoint TestHeaderAndDrag::pressedAndMoved(const QPoint &at, Qt::MouseButton button)
{
    press(at, button);
    move(at + m_way);
    const QPoint gone = m_window->window.pos() - m_start;
    release(at, button);
    return gone;
}

void TestHeaderAndDrag::leftPressOnTheHeaderDrags_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QPoint>("offset");
    QTest::newRow("logo") << QByteArray("label_3") << QPoint();
    QTest::newRow("title") << QByteArray("titleLabel") << QPoint();
    QTest::newRow("subtitle") << QByteArray("label_5") << QPoint();
    QTest::newRow("empty space") << QByteArray("widget") << QPoint();
    QTest::newRow("below the buttons") << QByteArray("widget_5") << QPoint(0, 30);
}

void TestHeaderAndDrag::leftPressOnTheHeaderDrags()
{
    QFETCH(QByteArray, name);
    QFETCH(QPoint, offset);
    QCOMPARE(pressedAndMoved(centerOf(name.constData()) + offset, Qt::LeftButton), m_way);
}

void TestHeaderAndDrag::pressElsewhereDoesNotDrag_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"connectedCamerasLabel", "cameraHeader", "cameraTable", "recommendedToolsLabel",
             "toolsDescriptionLabel", "toolsScroll", "line", "widget_3", "footerLabel", "linkLabel"})
        QTest::newRow(name) << QByteArray(name);
}

void TestHeaderAndDrag::pressElsewhereDoesNotDrag()
{
    QFETCH(QByteArray, name);
    QCOMPARE(pressedAndMoved(centerOf(name.constData()), Qt::LeftButton), QPoint());
}

void TestHeaderAndDrag::pressOnATileDoesNotDrag_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<bool>("enabled");
    for (const bool enabled : {true, false}) {
        QTest::addRow("left, enabled %d", enabled) << Qt::LeftButton << enabled;
        QTest::addRow("right, enabled %d", enabled) << Qt::RightButton << enabled;
        QTest::addRow("middle, enabled %d", enabled) << Qt::MiddleButton << enabled;
    }
}

void TestHeaderAndDrag::pressOnATileDoesNotDrag()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(bool, enabled);
    ApplicationLauncher *tile = m_window->tiles().at(0);
    tile->setEnabled(enabled);
    QCOMPARE(pressedAndMoved(tile->mapTo(&m_window->window, tile->rect().center()), button), QPoint());
}

void TestHeaderAndDrag::rightOrMiddlePressDoesNotDrag_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void TestHeaderAndDrag::rightOrMiddlePressDoesNotDrag()
{
    QFETCH(Qt::MouseButton, button);
    QCOMPARE(pressedAndMoved(centerOf("titleLabel"), button), QPoint());
}

void TestHeaderAndDrag::rightReleaseDoesNotEndADrag()
{
    const QPoint at = centerOf("titleLabel");
    press(at);
    press(at, Qt::RightButton);
    release(at, Qt::RightButton);
    move(at + m_way);
    QCOMPARE(m_window->window.pos(), m_start + m_way);
    release(at);
}

void TestHeaderAndDrag::leftReleaseEndsTheDrag()
{
    const QPoint at = centerOf("titleLabel");
    press(at);
    move(at + m_way);
    release(at);
    send(QEvent::MouseMove, at + m_way, Qt::NoButton, Qt::RightButton);
    QCOMPARE(m_window->window.pos(), m_start + m_way);
    const QPoint elsewhere = centerOf("footerLabel");
    press(elsewhere);
    move(elsewhere - m_way);
    release(elsewhere - m_way);
    QCOMPARE(m_window->window.pos(), m_start + m_way);
}

void TestHeaderAndDrag::leftReleaseOutsideTheHeaderEndsTheDrag()
{
    const QPoint at = centerOf("titleLabel");
    press(at);
    send(QEvent::MouseButtonRelease, centerOf("footerLabel"), Qt::LeftButton);
    send(QEvent::MouseMove, at + m_way, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(m_window->window.pos(), m_start);
    release(at);
}

// Intended: only the left press and the left release count, never the buttons that a move reports.
void TestHeaderAndDrag::moveIsFollowedWhateverButtonIsHeld()
{
    const QPoint at = centerOf("titleLabel");
    press(at);
    send(QEvent::MouseMove, at + m_way, Qt::NoButton, Qt::RightButton);
    QCOMPARE(m_window->window.pos(), m_start + m_way);
    release(at);
}

void TestHeaderAndDrag::moveWithoutAPressDoesNothing()
{
    send(QEvent::MouseMove, centerOf("titleLabel"), Qt::NoButton, Qt::LeftButton);
    QCOMPARE(m_window->window.pos(), m_start);
}

void TestHeaderAndDrag::onlyThePressIsLeftUnaccepted_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("header, left") << QByteArray("titleLabel") << Qt::LeftButton;
    QTest::newRow("header, right") << QByteArray("titleLabel") << Qt::RightButton;
    QTest::newRow("footer, left") << QByteArray("footerLabel") << Qt::LeftButton;
}

// Intended: the press alone goes on to the base class, which leaves it unaccepted.
void TestHeaderAndDrag::onlyThePressIsLeftUnaccepted()
{
    QFETCH(QByteArray, name);
    QFETCH(Qt::MouseButton, button);
    const QPoint at = centerOf(name.constData());
    QVERIFY(!send(QEvent::MouseButtonPress, at, button, button));
    QVERIFY(send(QEvent::MouseMove, at, Qt::NoButton, button));
    QVERIFY(send(QEvent::MouseButtonRelease, at, button));
}

void TestHeaderAndDrag::pressOnAHeaderButtonDoesNotDrag_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"aboutQt_", "pushButton", "pushButton_2"})
        QTest::newRow(name) << QByteArray(name);
}

void TestHeaderAndDrag::pressOnAHeaderButtonDoesNotDrag()
{
    QFETCH(QByteArray, name);
    const QPoint at = centerOf(name.constData());
    press(at);
    const QPoint outside = at + QPoint(-m_way.x(), m_way.y());
    move(outside);
    QCOMPARE(m_window->window.pos(), m_start);
    release(outside); // Not clicked.
    QVERIFY(m_window->window.isVisible());
}

QTEST_MAIN(TestHeaderAndDrag)
#include "TestHeaderAndDrag.moc"
