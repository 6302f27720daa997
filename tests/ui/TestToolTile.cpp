#include "tests/support/ChildNamed.h"
#include "tests/ui/ConfiguredWindow.h"
#include "ui/ApplicationLauncher.h"

#include <QCursor>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

Q_DECLARE_METATYPE(Qt::MouseButton)

class TestToolTile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void tileHasItsFormsSizeAndPolicy();
    void labelsStandAboveASpacer();
    void textsAreShownAsPlainText_data();
    void textsAreShownAsPlainText();
    void emptyTextsGiveEmptyLabels();
    void nameIsKept();
    void screenReadersGetNameAndDescription();
    void clickedIsTheOnlyMethod();
    void leftPressClicksBeforeTheRelease();
    void otherPressesDoNothing_data();
    void otherPressesDoNothing();
    void pressIsAcceptedAndStaysOnTheTile();
    void disabledTileDoesNotClick();
    void opacityIsFullUntilTheFirstChange();
    void opacityFollowsTheEnabledState();
    void opacityFollowsTheParentsState();
    void handCursorAndHover();
    void noToolTip();
    void frameComesFromTheStyleSheet();
    void borderLightsUpUnderTheMouse();
    void disabledTileIsPaintedFaded();

private:
    static qreal opacity(const ApplicationLauncher &tile);
    QImage painted();

    std::unique_ptr<QWidget> m_page; // The ground that the tile lies on.
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
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0, 0, 0));
    m_page->setPalette(palette);
    m_tile
        = new ApplicationLauncher(QStringLiteral("Viewer"), QStringLiteral("Shows pictures"), m_page.get());
    m_tile->move(10, 10);
    m_page->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
    QCursor::setPos(m_page->mapToGlobal(QPoint(2, 2)));
}

qreal TestToolTile::opacity(const ApplicationLauncher &tile)
{
    return qobject_cast<QGraphicsOpacityEffect *>(tile.graphicsEffect())->opacity();
}

QImage TestToolTile::painted()
{
    return m_page->grab(m_tile->geometry()).toImage().convertToFormat(QImage::Format_RGB32);
}

void TestToolTile::tileHasItsFormsSizeAndPolicy()
{
    QCOMPARE(m_tile->objectName(), QStringLiteral("ApplicationLauncher"));
    QCOMPARE(m_tile->size(), QSize(185, 70));
    QCOMPARE(m_tile->minimumSize(), QSize(185, 70));
    QCOMPARE(m_tile->maximumSize(), QSize(185, 70));
    QCOMPARE(m_tile->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
}

void TestToolTile::labelsStandAboveASpacer()
{
    auto *layout = qobject_cast<QVBoxLayout *>(m_tile->layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(layout->spacing(), 2);
    QCOMPARE(layout->contentsMargins(), QMargins(6, 6, 6, 6));
    QCOMPARE(layout->count(), 3);
    const char *const names[] = {"applicationName", "applicationDescription"};
    for (int index = 0; index < 2; ++index) {
        auto *label = qobject_cast<QLabel *>(layout->itemAt(index)->widget());
        QVERIFY(label);
        QCOMPARE(label->objectName(), QString::fromLatin1(names[index]));
        QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignTop);
        QVERIFY(label->wordWrap());
    }
    QSpacerItem *spacer = layout->itemAt(2)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(0, 0));
    QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding));
}

void TestToolTile::textsAreShownAsPlainText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("words") << QStringLiteral("Image Viewer");
    QTest::newRow("place") << QStringLiteral("100 %1");
    QTest::newRow("ampersand") << QStringLiteral("Tune & Test");
}

void TestToolTile::textsAreShownAsPlainText()
{
    QFETCH(QString, text);
    const ApplicationLauncher tile(text, text + QLatin1Char('.'), nullptr);
    QCOMPARE(childNamed<QLabel>(tile, "applicationName")->text(), text);
    QCOMPARE(childNamed<QLabel>(tile, "applicationDescription")->text(), text + QLatin1Char('.'));
}

void TestToolTile::emptyTextsGiveEmptyLabels()
{
    const ApplicationLauncher tile({}, {}, nullptr);
    QCOMPARE(childNamed<QLabel>(tile, "applicationName")->text(), QString());
    QCOMPARE(childNamed<QLabel>(tile, "applicationDescription")->text(), QString());
}

void TestToolTile::nameIsKept()
{
    QCOMPARE(m_tile->GetName(), QStringLiteral("Viewer"));
}

void TestToolTile::screenReadersGetNameAndDescription()
{
    QCOMPARE(m_tile->accessibleName(), QStringLiteral("Viewer"));
    QCOMPARE(m_tile->accessibleDescription(), QStringLiteral("Shows pictures"));
}

void TestToolTile::clickedIsTheOnlyMethod()
{
    const QMetaObject &meta = ApplicationLauncher::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodSignature(), QByteArray("clicked()"));
    QCOMPARE(method.methodType(), QMetaMethod::Signal);
}

void TestToolTile::leftPressClicksBeforeTheRelease()
{
    const QSignalSpy clicks(m_tile, &ApplicationLauncher::clicked);
    QTest::mousePress(m_tile, Qt::LeftButton);
    QCOMPARE(clicks.size(), 1);
    QTest::mouseRelease(m_tile, Qt::LeftButton);
    QCOMPARE(clicks.size(), 1);
}

void TestToolTile::otherPressesDoNothing_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("back") << Qt::BackButton;
}

void TestToolTile::otherPressesDoNothing()
{
    QFETCH(Qt::MouseButton, button);
    const QSignalSpy clicks(m_tile, &ApplicationLauncher::clicked);
    QTest::mouseClick(m_tile, button);
    QCOMPARE(clicks.size(), 0);
}

void TestToolTile::pressIsAcceptedAndStaysOnTheTile()
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
    PressCounter onThePage;
    m_page->installEventFilter(&onThePage);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        QTest::mouseClick(m_page->windowHandle(), button, Qt::NoModifier, m_tile->geometry().center());
    QCOMPARE(onThePage.presses, 0);
}

void TestToolTile::disabledTileDoesNotClick()
{
    const QSignalSpy clicks(m_tile, &ApplicationLauncher::clicked);
    m_tile->setEnabled(false);
    QTest::mouseClick(m_page->windowHandle(), Qt::LeftButton, Qt::NoModifier, m_tile->geometry().center());
    QCOMPARE(clicks.size(), 0);
    m_tile->setEnabled(true);
    QTest::mouseClick(m_page->windowHandle(), Qt::LeftButton, Qt::NoModifier, m_tile->geometry().center());
    QCOMPARE(clicks.size(), 1);
}

void TestToolTile::opacityIsFullUntilTheFirstChange()
{
    QVERIFY(m_tile->isEnabled());
    QCOMPARE(opacity(*m_tile), 1.0);
    QCOMPARE(m_tile->graphicsEffect()->parent(), m_tile);
}

void TestToolTile::opacityFollowsTheEnabledState()
{
    m_tile->setEnabled(false);
    QCOMPARE(opacity(*m_tile), 0.45);
    m_tile->setEnabled(true);
    QCOMPARE(opacity(*m_tile), 1.0);
}

void TestToolTile::opacityFollowsTheParentsState()
{
    m_page->setEnabled(false);
    QCOMPARE(opacity(*m_tile), 0.45);
    m_page->setEnabled(true);
    QCOMPARE(opacity(*m_tile), 1.0);
}

void TestToolTile::handCursorAndHover()
{
    const ApplicationLauncher tile(
        {}, {}, nullptr); // Never shown: a style sheet would set the attribute, too.
    QCOMPARE(tile.cursor().shape(), Qt::PointingHandCursor);
    QVERIFY(tile.testAttribute(Qt::WA_Hover));
}

void TestToolTile::noToolTip()
{
    QCOMPARE(m_tile->toolTip(), QString());
}

void TestToolTile::frameComesFromTheStyleSheet()
{
    const QImage image = painted();
    QCOMPARE(image.pixelColor(92, 0).name(), QStringLiteral("#2d3a4d"));
    QCOMPARE(image.pixelColor(0, 35).name(), QStringLiteral("#2d3a4d"));
    QCOMPARE(image.pixelColor(184, 35).name(), QStringLiteral("#2d3a4d"));
    QCOMPARE(image.pixelColor(92, 69).name(), QStringLiteral("#2d3a4d"));
    QCOMPARE(image.pixelColor(180, 60).name(), QStringLiteral("#1e2a3a"));
    QCOMPARE(image.pixelColor(0, 0).name(), QStringLiteral("#000000")); // Rounded: the page shows.
}

void TestToolTile::borderLightsUpUnderTheMouse()
{
    QCursor::setPos(m_tile->mapToGlobal(m_tile->rect().center()));
    QTRY_COMPARE(painted().pixelColor(92, 0).name(), QStringLiteral("#2196f3"));
    QCursor::setPos(m_page->mapToGlobal(QPoint(2, 2)));
    QTRY_COMPARE(painted().pixelColor(92, 0).name(), QStringLiteral("#2d3a4d"));
}

void TestToolTile::disabledTileIsPaintedFaded()
{
    m_tile->setEnabled(false);
    const QColor color = painted().pixelColor(180, 60); // "#1e2a3a" at 0.45 on black.
    QVERIFY2(qAbs(color.red() - 13) <= 1 && qAbs(color.green() - 19) <= 1 && qAbs(color.blue() - 26) <= 1,
        qPrintable(color.name()));
}

QTEST_MAIN(TestToolTile)
#include "TestToolTile.moc"
