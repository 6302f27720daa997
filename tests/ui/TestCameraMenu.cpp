#include "tests/config/ConfigDocuments.h"
#include "tests/support/ModalCatcher.h"
#include "tests/support/ScriptFile.h"
#include "tests/ui/ConfiguredWindow.h"
#include "tests/ui/OpenedDirectories.h"

#include <QDir>
#include <QHeaderView>
#include <QMenu>
#include <QtTest>

using ConfigDocuments::latin1;

class TestCameraMenu : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void rightClickOffersTheLocation();
    void choosingItOpensTheDirectory();
    void directoryIsOneArgumentWhateverItsName();
    void dismissingItOpensNothing();
    void menuFollowsTheCamerasInterface();
    void cameraWithoutAFileHasNoMenu();
    void menuNeverSearchesByItself();
    void emptySpaceHasNoMenu();
    void rowThatTheListLostHasNoMenu();
    void missingOpenerIsIgnored();
};

namespace {

CameraInfo gigE(const char *id = "a")
{
    return camera(latin1("Orvelle"), latin1("Kx200"), latin1(id), latin1(id), latin1("GigE"));
}

void rightClick(ConfiguredWindow &configured, int row)
{
    configured.click(configured.cellCenter(row, 1), Qt::RightButton);
}

/// A shown window with one camera, whose transport-layer file is in "cti".
void prepare(ConfiguredWindow &configured)
{
    configured.touch(latin1("cti/a_gige.cti"));
    configured.loadConfig();
    configured.list({gigE()});
    configured.show();
}

/// A shown window with two cameras, whose transport-layer files are in "one" and "two".
void prepareTwo(ConfiguredWindow &configured)
{
    configured.touch(latin1("one/a_gige.cti"));
    configured.touch(latin1("two/a_usb.cti"));
    ScriptFile::write(
        configured.path("bin/CvxC.xml"), "<c><CtiPaths><Path>one</Path><Path>two</Path></CtiPaths></c>");
    configured.loadConfig();
    CameraInfo usb = gigE("b");
    usb.interfaceType = latin1("USB");
    configured.list({gigE(), usb});
    configured.show();
}

} // namespace

void TestCameraMenu::initTestCase()
{
    ConfiguredWindow::useShippedStyle();
}

void TestCameraMenu::rightClickOffersTheLocation()
{
    ConfiguredWindow configured;
    prepare(configured);
    ModalCatcher catcher;
    const QPoint at = configured.cellCenter(0, 1);
    rightClick(configured, 0);
    QCOMPARE(catcher.menus().size(), 1);
    QCOMPARE(catcher.menus().at(0).actions, QStringList{latin1("CTI location")});
    QCOMPARE(catcher.menus().at(0).parent.data(), &configured.window);
    QCOMPARE(catcher.menus().at(0).position, configured.window.mapToGlobal(at));
    QCOMPARE(configured.window.findChildren<QMenu *>().size(), 0); // Gone again.
}

void TestCameraMenu::choosingItOpensTheDirectory()
{
    ConfiguredWindow configured;
    prepare(configured);
    const OpenedDirectories opened;
    ModalCatcher catcher;
    catcher.choose = latin1("CTI location");
    rightClick(configured, 0);
    QTRY_COMPARE(opened.arguments(), configured.path("cti\n"));
    QCOMPARE(catcher.boxes().size(), 0);
}

void TestCameraMenu::directoryIsOneArgumentWhateverItsName()
{
    ConfiguredWindow configured;
    const QString odd = latin1("odd & \"quoted\" $HOME; *");
    configured.touch(odd + latin1("/a_gige.cti"));
    ScriptFile::write(configured.path("bin/CvxC.xml"),
        (latin1("<c><CtiPaths><Path>") + configured.root() + QLatin1Char('/') + odd.toHtmlEscaped()
            + latin1("</Path></CtiPaths></c>"))
            .toUtf8());
    prepare(configured);
    const OpenedDirectories opened;
    ModalCatcher catcher;
    catcher.choose = latin1("CTI location");
    rightClick(configured, 0);
    QTRY_COMPARE(opened.arguments(), configured.root() + QLatin1Char('/') + odd + QLatin1Char('\n'));
}

void TestCameraMenu::dismissingItOpensNothing()
{
    ConfiguredWindow configured;
    prepareTwo(configured);
    const OpenedDirectories opened;
    ModalCatcher catcher;
    rightClick(configured, 0); // Closed with Escape.
    QCOMPARE(catcher.menus().size(), 1);
    catcher.choose = latin1("CTI location");
    rightClick(configured, 1);
    // Had the first menu started the opener, too, its call would stand before this one: it would have had
    // the whole second menu's time to write.
    QTRY_COMPARE(opened.arguments(), configured.path("two\n"));
    QCOMPARE(catcher.menus().size(), 2);
}

void TestCameraMenu::menuFollowsTheCamerasInterface()
{
    ConfiguredWindow configured;
    prepareTwo(configured);
    const OpenedDirectories opened;
    ModalCatcher catcher;
    catcher.choose = latin1("CTI location");
    rightClick(configured, 1);
    QTRY_COMPARE(opened.arguments(), configured.path("two\n"));
}

void TestCameraMenu::cameraWithoutAFileHasNoMenu()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list({gigE()});
    configured.show();
    ModalCatcher catcher;
    rightClick(configured, 0);
    QCOMPARE(catcher.menus().size(), 0);
}

void TestCameraMenu::menuNeverSearchesByItself()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list({gigE()});
    configured.show();
    configured.touch(latin1("cti/a_gige.cti")); // After the rebuild that would have found it.
    ModalCatcher catcher;
    rightClick(configured, 0);
    QCOMPARE(catcher.menus().size(), 0);
}

void TestCameraMenu::emptySpaceHasNoMenu()
{
    ConfiguredWindow configured;
    prepare(configured);
    ModalCatcher catcher;
    const QWidget *viewport = configured.table()->viewport();
    const QPoint below(viewport->width() / 2, viewport->height() - 2);
    QVERIFY(!configured.table()->itemAt(below));
    configured.click(viewport->mapTo(&configured.window, below), Qt::RightButton);
    const QWidget *header = configured.table()->horizontalHeader();
    configured.click(header->mapTo(&configured.window, header->rect().center()), Qt::RightButton);
    QCOMPARE(catcher.menus().size(), 0);
}

void TestCameraMenu::rowThatTheListLostHasNoMenu()
{
    ConfiguredWindow configured;
    configured.touch(latin1("cti/a_gige.cti"));
    configured.loadConfig();
    configured.list({gigE("a"), gigE("b")});
    configured.show();
    configured.window.setCameras({gigE("a")}); // Not drawn yet.
    ModalCatcher catcher;
    rightClick(configured, 1);
    QCOMPARE(catcher.menus().size(), 0);
    rightClick(configured, 0);
    QCOMPARE(catcher.menus().size(), 1);
}

void TestCameraMenu::missingOpenerIsIgnored()
{
    ConfiguredWindow configured;
    prepare(configured);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", configured.root().toLocal8Bit());
    ModalCatcher catcher;
    catcher.choose = latin1("CTI location");
    rightClick(configured, 0);
    qputenv("PATH", path);
    QCOMPARE(catcher.menus().size(), 1);
    QCOMPARE(catcher.boxes().size(), 0);
    QVERIFY(configured.window.isVisible());
}

QTEST_MAIN(TestCameraMenu)
#include "TestCameraMenu.moc"
