#include "tests/support/ChildNamed.h"
#include "tests/support/ModalCatcher.h"
#include "tests/support/ScriptFile.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableWidget>
#include <QUrl>
#include <QtTest>

class TestMainWindowShell : public QObject
{
    Q_OBJECT

public slots:
    void open(const QUrl &url) { m_opened.append(url); }

private slots:
    void initTestCase();
    void init();
    void methodsAreTheTwoSignals();
    void windowIsFramelessAndTranslucent();
    void cornersAreRoundAndTransparent();
    void backgroundIsPaintedByTheWindow();
    void tileAreaHasTheWindowsColour_data();
    void tileAreaHasTheWindowsColour();
    void scrollBarsAreNarrow();
    void refreshButtonAsksForARefresh();
    void refreshButtonCanBeDisabled();
    void minimiseButtonMinimises();
    void closeButtonCloses();
    void menuHoldsOnlyAboutQt();
    void dismissedMenuDoesNothing();
    void aboutQtShowsQtsOwnBox();
    void linkLeadsToTheMaker();
    void linkLabelHasItsTexts();
    void iconButtonsHaveAccessibleNames_data();
    void iconButtonsHaveAccessibleNames();
    void buttonsWorkFromTheKeyboard();
    void aParentMakesNoChildOfTheWindow();

private:
    QPushButton *button(const char *name) { return childNamed<QPushButton>(*m_window, name); }

    std::unique_ptr<MainWindow> m_window;
    QList<QUrl> m_opened;
};

namespace {

const QColor background(0x0f, 0x14, 0x19);

} // namespace

void TestMainWindowShell::initTestCase()
{
    QApplication::setStyle(QStringLiteral("fusion"));
    const QByteArray rules = ScriptFile::read(QStringLiteral(":/styles/style.qss"));
    QVERIFY(!rules.isEmpty());
    qApp->setStyleSheet(QString::fromUtf8(rules));
    QApplication::setQuitOnLastWindowClosed(false);
}

void TestMainWindowShell::init()
{
    m_window = std::make_unique<MainWindow>(nullptr);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestMainWindowShell::methodsAreTheTwoSignals()
{
    const QMetaObject &meta = MainWindow::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    const QMetaMethod first = meta.method(meta.methodOffset());
    const QMetaMethod second = meta.method(meta.methodOffset() + 1);
    QCOMPARE(first.methodSignature(), QByteArray("requestRefreshCameras()"));
    QCOMPARE(second.methodSignature(), QByteArray("requestLaunchTool(QString)"));
    QCOMPARE(second.parameterNames(), QList<QByteArray>{"toolPath"});
    QCOMPARE(first.methodType(), QMetaMethod::Signal);
    QCOMPARE(second.methodType(), QMetaMethod::Signal);
}

void TestMainWindowShell::windowIsFramelessAndTranslucent()
{
    QCOMPARE(m_window->windowFlags(), Qt::Window | Qt::FramelessWindowHint);
    QVERIFY(m_window->testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(m_window->windowHandle()->requestedFormat().hasAlpha());
}

void TestMainWindowShell::cornersAreRoundAndTransparent()
{
    const QImage image = m_window->grab().toImage().convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(image.size(), QSize(600, 660));
    QImage expected(image.size(), QImage::Format_ARGB32);
    expected.fill(Qt::transparent);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(background);
    painter.drawRoundedRect(QRectF(0, 0, 600, 660), 12, 12);
    painter.end();
    for (const QPoint &corner : {QPoint(0, 0), QPoint(588, 0), QPoint(0, 648), QPoint(588, 648)}) {
        for (int y = 0; y < 12; ++y) {
            for (int x = 0; x < 12; ++x) {
                const QPoint pixel = corner + QPoint(x, y);
                const int difference = qAlpha(image.pixel(pixel)) - qAlpha(expected.pixel(pixel));
                QVERIFY2(
                    qAbs(difference) <= 1, qPrintable(QStringLiteral("%1,%2").arg(pixel.x()).arg(pixel.y())));
            }
        }
    }
    QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
    QCOMPARE(qAlpha(image.pixel(599, 0)), 0);
    QCOMPARE(qAlpha(image.pixel(0, 659)), 0);
    QCOMPARE(qAlpha(image.pixel(599, 659)), 0);
    QCOMPARE(qAlpha(image.pixel(4, 4)), 255); // Well inside the rounding.
}

void TestMainWindowShell::backgroundIsPaintedByTheWindow()
{
    const QImage image = m_window->grab().toImage();
    for (const QPoint &pixel : {QPoint(300, 0), QPoint(0, 330), QPoint(599, 330), QPoint(300, 659)})
        QCOMPARE(image.pixelColor(pixel), background);
}

void TestMainWindowShell::tileAreaHasTheWindowsColour_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"toolsScroll", "qt_scrollarea_viewport", "toolsScrollContent", "toolsContainer"})
        QTest::newRow(name) << QByteArray(name);
}

void TestMainWindowShell::tileAreaHasTheWindowsColour()
{
    QFETCH(QByteArray, name);
    auto *scroll = childNamed<QScrollArea>(*m_window, "toolsScroll");
    const QWidget *widget = name == "toolsScroll" ? scroll
        : name == "qt_scrollarea_viewport"        ? scroll->viewport()
                                                  : childNamed<QWidget>(*m_window, name.constData());
    QVERIFY(widget->autoFillBackground());
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(widget->palette().brush(group, QPalette::Window), QBrush(background));
        QCOMPARE(widget->palette().brush(group, QPalette::Base), QBrush(background));
    }
}

void TestMainWindowShell::scrollBarsAreNarrow()
{
    for (const char *name : {"toolsScroll", "cameraTable"}) {
        const QScrollBar *bar = childNamed<QAbstractScrollArea>(*m_window, name)->verticalScrollBar();
        QCOMPARE(bar->minimumWidth(), 8);
        QCOMPARE(bar->maximumWidth(), 8);
    }
}

void TestMainWindowShell::refreshButtonAsksForARefresh()
{
    const QSignalSpy requests(m_window.get(), &MainWindow::requestRefreshCameras);
    QTest::mouseClick(button("refreshBtn"), Qt::LeftButton);
    QCOMPARE(requests.size(), 1);
}

void TestMainWindowShell::refreshButtonCanBeDisabled()
{
    const QSignalSpy requests(m_window.get(), &MainWindow::requestRefreshCameras);
    m_window->setRefreshEnabled(false);
    QVERIFY(!button("refreshBtn")->isEnabled());
    QTest::mouseClick(button("refreshBtn"), Qt::LeftButton);
    QCOMPARE(requests.size(), 0);
    m_window->setRefreshEnabled(true);
    QTest::mouseClick(button("refreshBtn"), Qt::LeftButton);
    QCOMPARE(requests.size(), 1);
}

void TestMainWindowShell::minimiseButtonMinimises()
{
    QTest::mouseClick(button("pushButton"), Qt::LeftButton);
    QTRY_VERIFY(m_window->isMinimized());
    QVERIFY(m_window->isVisible());
}

void TestMainWindowShell::closeButtonCloses()
{
    QTest::mouseClick(button("pushButton_2"), Qt::LeftButton);
    QVERIFY(!m_window->isVisible());
}

void TestMainWindowShell::menuHoldsOnlyAboutQt()
{
    ModalCatcher catcher;
    const QPoint cursor = m_window->mapToGlobal({30, 200});
    QCursor::setPos(cursor);
    QTRY_COMPARE(QCursor::pos(), cursor);
    button("aboutQt_")->click(); // Leaves the cursor where it is.
    QCOMPARE(catcher.menus().size(), 1);
    QCOMPARE(catcher.menus().at(0).actions, QStringList{QStringLiteral("About Qt")});
    QCOMPARE(catcher.menus().at(0).parent.data(), m_window.get());
    QCOMPARE(catcher.menus().at(0).position, cursor);
    QCOMPARE(m_window->findChildren<QMenu *>().size(), 0); // Made anew by each click.
}

void TestMainWindowShell::dismissedMenuDoesNothing()
{
    ModalCatcher catcher; // Closes menus with Escape.
    QTest::mouseClick(button("aboutQt_"), Qt::LeftButton);
    QCOMPARE(catcher.menus().size(), 1);
    QCOMPARE(catcher.boxes().size(), 0);
    QVERIFY(m_window->isVisible());
}

void TestMainWindowShell::aboutQtShowsQtsOwnBox()
{
    ModalCatcher catcher;
    catcher.choose = QStringLiteral("About Qt");
    QTest::mouseClick(button("aboutQt_"), Qt::LeftButton);
    QCOMPARE(catcher.boxes().size(), 1);
    QCOMPARE(catcher.boxes().at(0).title, QStringLiteral("About Qt"));
}

void TestMainWindowShell::linkLeadsToTheMaker()
{
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open");
    auto *label = childNamed<QLabel>(*m_window, "linkLabel");
    QTest::mouseClick(label, Qt::LeftButton, Qt::NoModifier, label->rect().center());
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    QCOMPARE(m_opened, QList<QUrl>{QUrl(QStringLiteral("https://www.orvelle.example"))});
}

void TestMainWindowShell::linkLabelHasItsTexts()
{
    const auto *label = childNamed<QLabel>(*m_window, "linkLabel");
    QCOMPARE(label->text(),
        QStringLiteral("<style>a:link { color: #00A3FF; }a:visited { color: #0077CC; }</style>"
                       "<a href=\"https://www.orvelle.example\">orvelle.example</a>"));
    QCOMPARE(label->textFormat(), Qt::RichText);
    QCOMPARE(label->textInteractionFlags(), Qt::TextInteractionFlags(Qt::TextBrowserInteraction));
    QVERIFY(label->openExternalLinks());
}

void TestMainWindowShell::iconButtonsHaveAccessibleNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("aboutQt_") << QStringLiteral("Menu");
    QTest::newRow("pushButton") << QStringLiteral("Minimize");
    QTest::newRow("pushButton_2") << QStringLiteral("Close");
    QTest::newRow("refreshBtn") << QStringLiteral("Refresh");
}

void TestMainWindowShell::iconButtonsHaveAccessibleNames()
{
    QTEST(button(QTest::currentDataTag())->accessibleName(), "name");
}

void TestMainWindowShell::buttonsWorkFromTheKeyboard()
{
    const QSignalSpy requests(m_window.get(), &MainWindow::requestRefreshCameras);
    QApplication::setActiveWindow(m_window.get());
    button("refreshBtn")->setFocus();
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Space);
    QCOMPARE(requests.size(), 1);
}

void TestMainWindowShell::aParentMakesNoChildOfTheWindow()
{
    QWidget parent;
    auto *child = new MainWindow(&parent);
    QCOMPARE(child->parentWidget(), &parent);
    QVERIFY(child->isWindow());
}

QTEST_MAIN(TestMainWindowShell)
#include "TestMainWindowShell.moc"
