#include "tests/support/ChildNamed.h"
#include "tests/support/MessageLog.h"
#include "tests/support/ModalCatcher.h"
#include "tests/support/ScriptFile.h"
#include "tests/ui/ConfiguredWindow.h"

#include <QDesktopServices>
#include <QDir>
#include <QPushButton>
#include <QUrl>
#include <QtTest>

class TestDocumentation : public QObject
{
    Q_OBJECT

public slots:
    void open(const QUrl &url) { m_opened.append(url); }

private slots:
    void init();
    void cleanup();
    void presentFileIsOpened();
    void missingFileShowsAWarningAndOpensNothing();
    void addressIsShownInItsDisplayForm();
    void failingDesktopShowsTheSameWarning();
    void directoryInPlaceOfTheFileIsLeftToTheDesktop();
    void emptyInstallRootMeansTheCurrentDirectory();

private:
    static void clickDocumentation(const MainWindow &window);

    QList<QUrl> m_opened;
};

void TestDocumentation::init()
{
    m_opened.clear();
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open");
}

void TestDocumentation::cleanup()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

void TestDocumentation::clickDocumentation(const MainWindow &window)
{
    QTest::mouseClick(childNamed<QPushButton>(window, "documentationBtn"), Qt::LeftButton);
}

void TestDocumentation::presentFileIsOpened()
{
    ConfiguredWindow installed;
    installed.touch(QStringLiteral("doc/index.html"));
    installed.loadConfig();
    ModalCatcher catcher;
    clickDocumentation(installed.window);
    QCOMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(installed.path("doc/index.html"))});
    QCOMPARE(catcher.boxes().size(), 0);
}

void TestDocumentation::missingFileShowsAWarningAndOpensNothing()
{
    ConfiguredWindow installed;
    installed.loadConfig();
    ModalCatcher catcher;
    clickDocumentation(installed.window);
    QCOMPARE(m_opened, QList<QUrl>());
    QCOMPARE(catcher.boxes().size(), 1);
    const ModalCatcher::Box box = catcher.boxes().at(0);
    QCOMPARE(box.title, QStringLiteral("Documentation"));
    QCOMPARE(box.text,
        QStringLiteral("Unable to open documentation at:\nfile://%1").arg(installed.path("doc/index.html")));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent.data(), &installed.window);
}

void TestDocumentation::addressIsShownInItsDisplayForm()
{
    ConfiguredWindow installed;
    const QString root = installed.root() + QStringLiteral("/with blank & 100%1");
    installed.window.loadConfig(root);
    ModalCatcher catcher;
    clickDocumentation(installed.window);
    const QUrl url = QUrl::fromLocalFile(root + QStringLiteral("/doc/index.html"));
    QCOMPARE(catcher.boxes().size(), 1);
    QCOMPARE(catcher.boxes().at(0).text,
        QStringLiteral("Unable to open documentation at:\n") + url.toDisplayString());
    QVERIFY(catcher.boxes().at(0).text.contains(QStringLiteral("with blank & 100%251/doc")));
}

void TestDocumentation::failingDesktopShowsTheSameWarning()
{
    // Without a handler the offscreen platform is asked, which opens nothing.
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    ConfiguredWindow installed;
    installed.touch(QStringLiteral("doc/index.html"));
    installed.loadConfig();
    MessageLog log; // The platform says that it cannot.
    ModalCatcher catcher;
    clickDocumentation(installed.window);
    QCOMPARE(catcher.boxes().size(), 1);
    QCOMPARE(catcher.boxes().at(0).text,
        QStringLiteral("Unable to open documentation at:\nfile://%1").arg(installed.path("doc/index.html")));
}

void TestDocumentation::directoryInPlaceOfTheFileIsLeftToTheDesktop()
{
    ConfiguredWindow installed;
    QVERIFY(QDir().mkpath(installed.path("doc/index.html")));
    installed.loadConfig();
    ModalCatcher catcher;
    clickDocumentation(installed.window);
    QCOMPARE(m_opened.size(), 1);
    QCOMPARE(catcher.boxes().size(), 0);
}

void TestDocumentation::emptyInstallRootMeansTheCurrentDirectory()
{
    const QString before = QDir::currentPath();
    ConfiguredWindow installed;
    installed.touch(QStringLiteral("doc/index.html"));
    installed.window.loadConfig({});
    ModalCatcher catcher;
    clickDocumentation(installed.window); // Nothing there: the tests' directory has no documentation.
    QCOMPARE(catcher.boxes().size(), 1);
    QVERIFY(QDir::setCurrent(installed.root()));
    clickDocumentation(installed.window);
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(catcher.boxes().size(), 1);
    QCOMPARE(m_opened.size(), 1);
    QCOMPARE(QDir::cleanPath(m_opened.at(0).toLocalFile()), QStringLiteral("doc/index.html"));
}

QTEST_MAIN(TestDocumentation)
#include "TestDocumentation.moc"
