#include "tests/support/ModalCatcher.h"
#include "tests/support/ScriptFile.h"
#include "tests/ui/ConfiguredWindow.h"

#include <QHeaderView>
#include <QMenu>
#include <QtTest>

using namespace ConfigDocuments;

class TestCameraMenu : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void rightClickOpensAMenuWithTheCtiLocation();
    void menuEntryOpensTheDirectoryOfTheProducerFile_data();
    void menuEntryOpensTheDirectoryOfTheProducerFile();
    void dismissedMenuOpensNothing();
    void menuNeverSearchesForFiles();
    void rightClickOutsideTheCamerasOpensNoMenu();

private:
    void rightClick(int row) { m_window->click(m_window->cellCenter(row, 1), Qt::RightButton); }
    QString opened() const { return QString::fromUtf8(ScriptFile::read(m_opener.filePath("calls"_s))); }

    // Contains the program "xdg-open", which appends its arguments to the file "calls".
    QTemporaryDir m_opener;
    std::unique_ptr<ConfiguredWindow> m_window;
    std::unique_ptr<ModalCatcher> m_catcher;
};

namespace {

const CameraInfo gigE = camera("Orvelle"_s, "Kx200"_s, "1"_s, "a"_s, "GigE"_s);
const CameraInfo usb = camera("Orvelle"_s, "Kx200"_s, "2"_s, "b"_s, "USB"_s);

} // namespace

void TestCameraMenu::initTestCase()
{
    ConfiguredWindow::useShippedStyle();
    ScriptFile::writeExecutable(m_opener.filePath("xdg-open"_s),
        "printf '%s\\n' \"$@\" >> \"$(dirname \"$0\")/calls\"\n"); // Each call writes once.
    qputenv("PATH", m_opener.path().toLocal8Bit() + ':' + qgetenv("PATH"));
}

void TestCameraMenu::init()
{
    QFile::remove(m_opener.filePath("calls"_s));
    m_window = std::make_unique<ConfiguredWindow>();
    m_catcher = std::make_unique<ModalCatcher>();
    m_catcher->choose = "CTI location"_s;
}

void TestCameraMenu::rightClickOpensAMenuWithTheCtiLocation()
{
    m_window->createFile("cti/a_gige.cti"_s);
    m_window->open({gigE});
    m_catcher->choose.clear();
    const QPoint position = m_window->cellCenter(0, 1);
    rightClick(0);
    QCOMPARE(m_catcher->menus().size(), 1);
    QCOMPARE(m_catcher->menus().at(0).actions, QStringList{"CTI location"_s});
    QCOMPARE(m_catcher->menus().at(0).parent.data(), &m_window->window);
    QCOMPARE(m_catcher->menus().at(0).position, m_window->window.mapToGlobal(position));
    QCOMPARE(m_window->window.findChildren<QMenu *>().size(), 0);
}

void TestCameraMenu::menuEntryOpensTheDirectoryOfTheProducerFile_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("directory");
    QTest::newRow("the camera's interface") << QStringList{"one/a_gige.cti"_s, "two/a_usb.cti"_s} << "two"_s;
    // If scores and names are equal, the earlier directory is chosen. In this row it is "one".
    QTest::newRow("equal names") << QStringList{"two/usb.cti"_s, "one/usb.cti"_s} << "one"_s;
    QTest::newRow("special characters in the directory")
        << QStringList{"odd \"$HOME\"; */usb.cti"_s} << "odd \"$HOME\"; *"_s;
}

void TestCameraMenu::menuEntryOpensTheDirectoryOfTheProducerFile()
{
    QFETCH(QStringList, files);
    QFETCH(QString, directory);
    for (const QString &file : files)
        m_window->createFile(file);
    m_window->writeCtiPaths({"one"_s, "two"_s, directory});
    m_window->open({gigE, usb});
    rightClick(1);
    QTRY_COMPARE_WITH_TIMEOUT(opened(), m_window->path(directory) + QLatin1Char('\n'), hangTimeout);
    QCOMPARE(m_catcher->boxes().size(), 0);
}

void TestCameraMenu::dismissedMenuOpensNothing()
{
    m_window->createFile("one/a_gige.cti"_s);
    m_window->createFile("two/a_usb.cti"_s);
    m_window->writeCtiPaths({"one"_s, "two"_s});
    m_window->open({gigE, usb});
    m_catcher->choose.clear();
    rightClick(0);
    m_catcher->choose = "CTI location"_s;
    rightClick(1);
    // If the first menu had started "xdg-open", the file "calls" would contain another line.
    QTRY_COMPARE_WITH_TIMEOUT(opened(), m_window->path("two\n"_s), hangTimeout);
    QCOMPARE(m_catcher->menus().size(), 2);
}

void TestCameraMenu::menuNeverSearchesForFiles()
{
    m_window->open({gigE});
    m_window->createFile("cti/a_gige.cti"_s); // The last rebuild of the table found no file.
    rightClick(0);
    QCOMPARE(m_catcher->menus().size(), 0);
}

void TestCameraMenu::rightClickOutsideTheCamerasOpensNoMenu()
{
    m_window->createFile("cti/a_gige.cti"_s);
    m_window->open({gigE, usb, gigE});
    for (const QWidget *place : {m_window->table()->viewport(), // This point is below the last row.
             static_cast<QWidget *>(m_window->table()->horizontalHeader())}) {
        const QPoint position = place->rect().bottomLeft() + QPoint(20, -2);
        m_window->click(place->mapTo(&m_window->window, position), Qt::RightButton);
    }
    m_window->window.setCameras({gigE, usb}); // The table still shows three rows.
    rightClick(2);
    QCOMPARE(m_catcher->menus().size(), 0);
    rightClick(1);
    QCOMPARE(m_catcher->menus().size(), 1);
}

QTEST_MAIN(TestCameraMenu)
#include "TestCameraMenu.moc"
