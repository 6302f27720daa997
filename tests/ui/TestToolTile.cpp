#include "tests/ui/ConfiguredWindow.h"
#include "ui/ApplicationLauncher.h"

#include <QCursor>
#include <QGraphicsOpacityEffect>
#include <QSignalSpy>
#include <QtTest>

using namespace ConfigDocuments;

class TestToolTile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void clickedIsTheOnlyMetaMethod();
    void clickedIsEmittedBeforeTheRelease();
    void onlyALeftPressEmitsClicked();
    void disabledTileDoesNotEmitClicked();
    void disabledTileIsFaded();
    void tileHasAHandCursorAndTheHoverAttribute();
    void tileHasTheFrameOfTheStyleSheet();

private:
    qreal opacity() const;
    QImage painted() { return m_page->grab(m_tile->geometry()).toImage(); }
    void click(Qt::MouseButton button);

    std::unique_ptr<QWidget> m_page; // The parent of the tile, with a black background.
    ApplicationLauncher *m_tile = nullptr;
};

void TestToolTile::initTestCase()
{
    ConfiguredWindow::useShippedStyle();
}

void TestToolTile::init()
{
    m_page = std::make_unique<QWidget>();
    m_page->resize(205, 90);
    m_page->setPalette(QPalette(Qt::black));
    m_tile = new ApplicationLauncher("Viewer"_s, "Shows pictures"_s, m_page.get());
    m_tile->move(10, 10);
    m_page->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_page.get(), hangTimeout));
    QCursor::setPos(m_page->mapToGlobal(QPoint(2, 2))); // This position is outside the tile.
}

qreal TestToolTile::opacity() const
{
    return qobject_cast<QGraphicsOpacityEffect *>(m_tile->graphicsEffect())->opacity();
}

void TestToolTile::click(Qt::MouseButton button)
{
    QTest::mouseClick(m_page->windowHandle(), button, Qt::NoModifier, m_tile->geometry().center());
}

void TestToolTile::clickedIsTheOnlyMetaMethod()
{
    const QMetaObject &meta = ApplicationLauncher::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("clicked()"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
}

void TestToolTile::clickedIsEmittedBeforeTheRelease()
{
    const QSignalSpy clicks(m_tile, &ApplicationLauncher::clicked);
    QTest::mousePress(m_tile, Qt::LeftButton);
    QCOMPARE(clicks.size(), 1);
    QTest::mouseRelease(m_tile, Qt::LeftButton);
    QCOMPARE(clicks.size(), 1);
}

void TestToolTile::onlyALeftPressEmitsClicked()
{
    class PressCounter : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *event) override
        {
            presses += event->type() == QEvent::MouseButtonPress ? 1 : 0;
            return false;
        }
        int presses = 0;
    };
    PressCounter counter;
    m_page->installEventFilter(&counter);
    const QSignalSpy clicks(m_tile, &ApplicationLauncher::clicked);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton, Qt::BackButton})
        click(button);
    QCOMPARE(clicks.size(), 1);
    QCOMPARE(counter.presses, 0); // No press is passed on to the parent.
}

void TestToolTile::disabledTileDoesNotEmitClicked()
{
    const QSignalSpy clicks(m_tile, &ApplicationLauncher::clicked);
    m_tile->setEnabled(false);
    click(Qt::LeftButton);
    QCOMPARE(clicks.size(), 0);
    m_tile->setEnabled(true);
    click(Qt::LeftButton);
    QCOMPARE(clicks.size(), 1);
}

void TestToolTile::disabledTileIsFaded()
{
    QCOMPARE(opacity(), 1.0);
    QCOMPARE(m_tile->graphicsEffect()->parent(), m_tile);
    // A disabled parent disables the tile.
    for (QWidget *disabled : {static_cast<QWidget *>(m_tile), m_page.get()}) {
        disabled->setEnabled(false);
        QCOMPARE(opacity(), 0.45);
        disabled->setEnabled(true);
        QCOMPARE(opacity(), 1.0);
    }
}

void TestToolTile::tileHasAHandCursorAndTheHoverAttribute()
{
    // The tile is never shown, so no style sheet has set the hover attribute.
    const ApplicationLauncher tile({}, {}, nullptr);
    QCOMPARE(tile.cursor().shape(), Qt::PointingHandCursor);
    QVERIFY(tile.testAttribute(Qt::WA_Hover));
}

void TestToolTile::tileHasTheFrameOfTheStyleSheet()
{
    const QImage image = painted();
    for (const QPoint &edge : {QPoint(92, 0), QPoint(0, 35), QPoint(184, 35), QPoint(92, 69)})
        QCOMPARE(image.pixelColor(edge).name(), "#2d3a4d"_s);
    QCOMPARE(image.pixelColor(180, 60).name(), "#1e2a3a"_s);
    QCOMPARE(image.pixelColor(0, 0).name(), "#000000"_s); // The page is visible at the rounded corner.
}

QTEST_MAIN(TestToolTile)
#include "TestToolTile.moc"
