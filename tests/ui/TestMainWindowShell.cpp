#include "tests/support/MessageLog.h"
#include "tests/support/ModalCatcher.h"
#include "tests/ui/ConfiguredWindow.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QUrl>
#include <QtTest>

using namespace ConfigDocuments;

/// Tests the window except for its tiles and its table.
class TestMainWindowShell : public QObject
{
    Q_OBJECT

public slots:
    void open(const QUrl &url) { m_opened.append(url); }

private slots:
    void initTestCase();
    void init();
    void metaObjectContainsOnlyTheTwoSignals();
    void windowIsFramelessAndTranslucent();
    void backgroundHasRoundCorners();
    void refreshButtonRequestsARefreshWhileEnabled();
    void minimiseButtonMinimisesTheWindow();
    void closeButtonClosesTheWindow();
    void menuContainsOnlyAboutQt();
    void aboutQtEntryShowsTheAboutQtBox();
    void constructorSetsTheParent();
    void documentationButtonOpensTheDocumentation();
    void missingDocumentationShowsAWarning();
    void documentationThatCannotBeOpenedShowsAWarning();
    void emptyInstallRootMeansTheCurrentDirectory();

private:
    MainWindow &window() { return m_configured->window; }
    QPushButton *button(const char *name) { return childNamed<QPushButton>(window(), name); }
    void click(const char *name) { QTest::mouseClick(button(name), Qt::LeftButton); }

    std::unique_ptr<ConfiguredWindow> m_configured;
    QList<QUrl> m_opened;
};

void TestMainWindowShell::initTestCase()
{
    ConfiguredWindow::useShippedStyle();
    QApplication::setQuitOnLastWindowClosed(false);
}

void TestMainWindowShell::init()
{
    m_opened.clear();
    QDesktopServices::setUrlHandler("file"_s, this, "open");
    m_configured = std::make_unique<ConfiguredWindow>();
    m_configured->open();
}

void TestMainWindowShell::metaObjectContainsOnlyTheTwoSignals()
{
    const QMetaObject &meta = MainWindow::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    QCOMPARE(meta.indexOfSignal("requestRefreshCameras()"), meta.methodOffset());
    QCOMPARE(meta.indexOfSignal("requestLaunchTool(QString)"), meta.methodOffset() + 1);
    QCOMPARE(meta.method(meta.methodOffset() + 1).parameterNames(), QList<QByteArray>{"toolPath"});
}

void TestMainWindowShell::windowIsFramelessAndTranslucent()
{
    QCOMPARE(window().windowFlags(), Qt::Window | Qt::FramelessWindowHint);
    QVERIFY(window().testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(window().windowHandle()->requestedFormat().hasAlpha());
}

void TestMainWindowShell::backgroundHasRoundCorners()
{
    const QColor background(0x0f, 0x14, 0x19);
    const QImage image = window().grab().toImage().convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(image.size(), QSize(600, 660));
    QImage expected(image.size(), QImage::Format_ARGB32);
    expected.fill(Qt::transparent);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(background);
    painter.drawRoundedRect(QRectF(0, 0, 600, 660), 12, 12);
    painter.end();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int difference = qAlpha(image.pixel(x, y)) - qAlpha(expected.pixel(x, y));
            QVERIFY2(qAbs(difference) <= 1, qPrintable("%1,%2"_s.arg(x).arg(y)));
        }
    }
    for (const QPoint &pixel : {QPoint(300, 0), QPoint(0, 330), QPoint(599, 330), QPoint(300, 659)})
        QCOMPARE(image.pixelColor(pixel), background);
}

void TestMainWindowShell::refreshButtonRequestsARefreshWhileEnabled()
{
    const QSignalSpy requests(&window(), &MainWindow::requestRefreshCameras);
    click("refreshBtn");
    QCOMPARE(requests.size(), 1);
    window().setRefreshEnabled(false);
    QVERIFY(!button("refreshBtn")->isEnabled());
    click("refreshBtn");
    QCOMPARE(requests.size(), 1);
    window().setRefreshEnabled(true);
    click("refreshBtn");
    QCOMPARE(requests.size(), 2);
}

void TestMainWindowShell::minimiseButtonMinimisesTheWindow()
{
    click("pushButton");
    QTRY_VERIFY_WITH_TIMEOUT(window().isMinimized(), hangTimeout);
    QVERIFY(window().isVisible());
}

void TestMainWindowShell::closeButtonClosesTheWindow()
{
    click("pushButton_2");
    QVERIFY(!window().isVisible());
}

void TestMainWindowShell::menuContainsOnlyAboutQt()
{
    ModalCatcher catcher;
    const QPoint cursor = window().mapToGlobal({30, 200});
    QCursor::setPos(cursor);
    QTRY_COMPARE_WITH_TIMEOUT(QCursor::pos(), cursor, hangTimeout);
    button("aboutQt_")->click(); // This click does not move the cursor.
    QCOMPARE(catcher.menus().size(), 1);
    QCOMPARE(catcher.menus().at(0).actions, QStringList{"About Qt"_s});
    QCOMPARE(catcher.menus().at(0).parent.data(), &window());
    QCOMPARE(catcher.menus().at(0).position, cursor);
    QCOMPARE(window().findChildren<QMenu *>().size(), 0); // The click has destroyed its menu again.
    QCOMPARE(catcher.boxes().size(), 0); // The catcher has closed the menu with Escape.
}

void TestMainWindowShell::aboutQtEntryShowsTheAboutQtBox()
{
    ModalCatcher catcher;
    catcher.choose = "About Qt"_s;
    click("aboutQt_");
    QCOMPARE(catcher.boxes().size(), 1);
    QCOMPARE(catcher.boxes().at(0).title, "About Qt"_s);
}

void TestMainWindowShell::constructorSetsTheParent()
{
    QWidget parent;
    const auto *child = new MainWindow(&parent);
    QCOMPARE(child->parentWidget(), &parent);
    QVERIFY(child->isWindow());
}

void TestMainWindowShell::documentationButtonOpensTheDocumentation()
{
    m_configured->createFile("doc/index.html"_s);
    ModalCatcher catcher;
    click("documentationBtn");
    QCOMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(m_configured->path("doc/index.html"_s))});
    QCOMPARE(catcher.boxes().size(), 0);
}

void TestMainWindowShell::missingDocumentationShowsAWarning()
{
    MainWindow other(nullptr);
    other.loadConfig(m_configured->path("with blank & 100%1"_s));
    ModalCatcher catcher;
    QTest::mouseClick(childNamed<QPushButton>(other, "documentationBtn"), Qt::LeftButton);
    QCOMPARE(m_opened, QList<QUrl>());
    QCOMPARE(catcher.boxes().size(), 1);
    const ModalCatcher::Box box = catcher.boxes().at(0);
    QCOMPARE(box.title, "Documentation"_s);
    QCOMPARE(box.text, // The message contains the display form of the URL.
        "Unable to open documentation at:\nfile://"_s + m_configured->path({})
            + "/with blank & 100%251/doc/index.html"_s);
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent.data(), &other);
}

void TestMainWindowShell::documentationThatCannotBeOpenedShowsAWarning()
{
    QDesktopServices::unsetUrlHandler("file"_s); // The offscreen platform cannot open files.
    m_configured->createFile("doc/index.html"_s);
    const MessageLog log; // Catches the platform's log message about the failure.
    ModalCatcher catcher;
    click("documentationBtn");
    QCOMPARE(catcher.boxes().size(), 1);
    QCOMPARE(catcher.boxes().at(0).title, "Documentation"_s);
}

void TestMainWindowShell::emptyInstallRootMeansTheCurrentDirectory()
{
    const QString before = QDir::currentPath();
    m_configured->createFile("doc/index.html"_s);
    MainWindow other(nullptr);
    other.loadConfig({});
    QVERIFY(QDir::setCurrent(m_configured->path({})));
    QTest::mouseClick(childNamed<QPushButton>(other, "documentationBtn"), Qt::LeftButton);
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(m_opened.size(), 1);
    QCOMPARE(QDir::cleanPath(m_opened.at(0).toLocalFile()), "doc/index.html"_s);
}

QTEST_MAIN(TestMainWindowShell)
#include "TestMainWindowShell.moc"
