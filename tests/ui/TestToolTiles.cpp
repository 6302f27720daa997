#include "tests/config/ConfigDocuments.h"
#include "tests/support/ChildNamed.h"
#include "tests/ui/ConfiguredWindow.h"
#include "ui/ApplicationLauncher.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSysInfo>
#include <QtTest>

using namespace ConfigDocuments;

Q_DECLARE_METATYPE(CameraInfo)

class TestToolTiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void sevenToolsFillThreeRows();
    void tilesCarryNameAndDescription();
    void containerHasTheWidthOfThreeTiles();
    void threeTilesFitSideBySideInTheMiddle();
    void platformIsTheRunningOne();
    void noToolsGiveAnEmptyGrid();
    void beforeTheConfigurationThereAreNoTiles();
    void withoutASelectionEverythingIsDisabled();
    void recommendedTiles_data();
    void recommendedTiles();
    void hintOfANamelessGroupIsThatOfNoSelection();
    void percentSignInTheGroupNameIsNoPlace();
    void tilesKeepTheirPlaces();
    void toolsWithTheSameIdGoTogether();
    void idsAreComparedWithLetterCase();
    void recommendedToolWithoutATileIsIgnored();
    void pressAsksForTheExecutableAsConfigured();
    void rightPressAsksForNothing();
    void disabledTileAsksForNothing();
    void scrollAreaGrowsToAllRows();
    void eightToolsNeedNoScrollBar();
};

namespace {

const CameraInfo areaCamera = camera(QStringLiteral("Orvelle"), QStringLiteral("Kx200"), QStringLiteral("1"),
    QStringLiteral("a"), QStringLiteral("GigE"));

QString hint(const MainWindow &window)
{
    return childNamed<QLabel>(window, "toolsDescriptionLabel")->text();
}

QStringList names(const ConfiguredWindow &configured, bool enabledOnly)
{
    QStringList result;
    for (const ApplicationLauncher *tile : configured.tiles()) {
        if (tile->isEnabled() || !enabledOnly)
            result.append(tile->GetName());
    }
    return result;
}

QStringList enabledNames(const ConfiguredWindow &configured)
{
    return names(configured, true);
}

/// Standard files with other groups.
QMap<QString, QByteArray> filesWith(const QJsonObject &document)
{
    QMap<QString, QByteArray> files = ConfiguredWindow::standardFiles();
    files.insert(latin1("config/launcher_config.json"), json(document));
    return files;
}

QStringList upper(std::initializer_list<const char *> ids)
{
    QStringList result;
    for (const char *id : ids)
        result.append(latin1(id).toUpper());
    return result;
}

const QString noSelectionHint = QStringLiteral("Select a camera to enable its recommended tools.");

} // namespace

void TestToolTiles::initTestCase()
{
    ConfiguredWindow::useShippedStyle();
}

void TestToolTiles::sevenToolsFillThreeRows()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    auto *grid
        = qobject_cast<QGridLayout *>(childNamed<QWidget>(configured.window, "toolsContainer")->layout());
    QVERIFY(grid);
    QCOMPARE(grid->spacing(), 6);
    QCOMPARE(grid->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(grid->count(), 7);
    for (int index = 0; index < 7; ++index) {
        int row = -1, column = -1, rowSpan = 0, columnSpan = 0;
        grid->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
        QCOMPARE(QPoint(column, row), QPoint(index % 3, index / 3));
        QCOMPARE(QSize(columnSpan, rowSpan), QSize(1, 1));
        QCOMPARE(grid->itemAt(index)->alignment(), Qt::Alignment());
    }
}

void TestToolTiles::tilesCarryNameAndDescription()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    QCOMPARE(
        names(configured, false), upper({"viewer", "setup", "repair", "flat", "tuner", "extra", "scene"}));
    ApplicationLauncher *tuner = configured.tiles().at(4);
    QCOMPARE(childNamed<QLabel>(*tuner, "applicationName")->text(), QStringLiteral("TUNER"));
    QCOMPARE(childNamed<QLabel>(*tuner, "applicationDescription")->text(), QStringLiteral("About tuner"));
}

void TestToolTiles::containerHasTheWidthOfThreeTiles()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    auto *container = childNamed<QWidget>(configured.window, "toolsContainer");
    QCOMPARE(container->minimumWidth(), 567);
    QCOMPARE(container->maximumWidth(), 567);
}

void TestToolTiles::threeTilesFitSideBySideInTheMiddle()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.show();
    const QList<ApplicationLauncher *> tiles = configured.tiles();
    for (int index = 0; index < 7; ++index)
        QCOMPARE(tiles.at(index)->geometry(), QRect(index % 3 * 191, index / 3 * 76, 185, 70));
    auto *container = childNamed<QWidget>(configured.window, "toolsContainer");
    auto *content = childNamed<QWidget>(configured.window, "toolsScrollContent");
    const int left = container->x();
    const int right = content->width() - container->geometry().right() - 1;
    QVERIFY2(left > 0 && qAbs(left - right) <= 1, qPrintable(QString::number(left)));
}

void TestToolTiles::platformIsTheRunningOne()
{
    const QString running = QStringLiteral("linux_") + QSysInfo::currentCpuArchitecture();
    ConfiguredWindow configured(filesWith(groups({group("other",
        {tool("here", "bin/Here", {latin1("win32"), running}), tool("there", "bin/There", {latin1("win32")}),
            tool("capital", "bin/Capital", {running.toUpper()})})})));
    configured.loadConfig();
    QCOMPARE(names(configured, false), upper({"here"}));
}

void TestToolTiles::noToolsGiveAnEmptyGrid()
{
    ConfiguredWindow configured(QMap<QString, QByteArray>{{latin1("config/launcher_config.json"), "{}"}});
    configured.loadConfig();
    auto *container = childNamed<QWidget>(configured.window, "toolsContainer");
    QVERIFY(container->layout());
    QCOMPARE(container->layout()->count(), 0);
    QCOMPARE(container->minimumWidth(), 567);
    QCOMPARE(hint(configured.window), noSelectionHint);
}

void TestToolTiles::beforeTheConfigurationThereAreNoTiles()
{
    const MainWindow window(nullptr);
    QVERIFY(!childNamed<QWidget>(window, "toolsContainer")->layout());
    QCOMPARE(hint(window), noSelectionHint);
}

void TestToolTiles::withoutASelectionEverythingIsDisabled()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    QCOMPARE(enabledNames(configured), QStringList());
    QCOMPARE(hint(configured.window), noSelectionHint);
}

void TestToolTiles::recommendedTiles_data()
{
    QTest::addColumn<CameraInfo>("selected");
    QTest::addColumn<QStringList>("enabled");
    QTest::addColumn<QString>("groupName");
    const auto other = [](const char *vendor, const char *model, const char *interface = "") {
        return camera(latin1(vendor), latin1(model), latin1("1"), latin1("id"), latin1(interface));
    };
    QTest::newRow("area scan, GigE") << areaCamera << upper({"viewer", "setup"}) << latin1("AREASCAN");
    QTest::newRow("area scan, USB") << other("Orvelle", "Kx200", "USB") << upper({"viewer"})
                                    << latin1("AREASCAN");
    QTest::newRow("line scan") << other("Lintaro", "") << upper({"viewer", "tuner"}) << latin1("LINESCAN");
    QTest::newRow("high resolution, known model")
        << other("Kordane", "hx-1") << upper({"viewer", "repair"}) << latin1("HIGHRES");
    QTest::newRow("high resolution, unknown model")
        << other("Kordane", "HX-2") << upper({"viewer", "repair", "flat"}) << latin1("HIGHRES");
    QTest::newRow("simulator") << other("Orvelle", "Simulator") << upper({"viewer", "scene"})
                               << latin1("SIMULATOR");
    QTest::newRow("none") << CameraInfo() << QStringList() << QString();
    QTest::newRow("camera without an ID")
        << camera(latin1("Orvelle"), latin1("Kx200"), latin1("1")) << QStringList() << QString();
}

void TestToolTiles::recommendedTiles()
{
    QFETCH(CameraInfo, selected);
    QFETCH(QString, groupName);
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.window.setSelectedCamera(selected);
    QTEST(enabledNames(configured), "enabled");
    QCOMPARE(hint(configured.window),
        groupName.isEmpty()
            ? noSelectionHint
            : QStringLiteral("Recommended for %1. Non-recommended tools are disabled.").arg(groupName));
    configured.window.setSelectedCamera({});
    QCOMPARE(enabledNames(configured), QStringList());
}

// Intended: the hint looks at the group's name, the tiles at its tools.
void TestToolTiles::hintOfANamelessGroupIsThatOfNoSelection()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.window.setSelectedCamera(camera(latin1("Some Maker"), {}, {}, latin1("id")));
    QCOMPARE(enabledNames(configured), upper({"viewer", "extra"}));
    QCOMPARE(hint(configured.window), noSelectionHint);
}

void TestToolTiles::percentSignInTheGroupNameIsNoPlace()
{
    QJsonObject other = group("other");
    other.insert(latin1("name"), latin1("100 %1 & %2"));
    ConfiguredWindow configured(filesWith(groups({other})));
    configured.loadConfig();
    configured.window.setSelectedCamera(camera({}, {}, {}, latin1("id")));
    QCOMPARE(
        hint(configured.window), latin1("Recommended for 100 %1 & %2. Non-recommended tools are disabled."));
}

void TestToolTiles::tilesKeepTheirPlaces()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    const QList<ApplicationLauncher *> before = configured.tiles();
    configured.window.setSelectedCamera(camera(latin1("Lintaro"), {}, {}, latin1("id")));
    QCOMPARE(configured.tiles(), before);
}

void TestToolTiles::toolsWithTheSameIdGoTogether()
{
    ConfiguredWindow configured(filesWith(groups(
        {group("areascan", {tool("twin", "bin/One")}), group("linescan", {tool("twin", "bin/Two")})})));
    configured.loadConfig();
    QCOMPARE(configured.tiles().size(), 2);
    configured.window.setSelectedCamera(areaCamera);
    QCOMPARE(enabledNames(configured), upper({"twin", "twin"}));
    configured.window.setSelectedCamera({});
    QCOMPARE(enabledNames(configured), QStringList());
}

void TestToolTiles::idsAreComparedWithLetterCase()
{
    ConfiguredWindow configured(filesWith(groups({group("areascan", {tool("a", "bin/Same")}),
        group("linescan", {tool("A", "bin/Same")}), group("other", {tool("A", "bin/Own")})})));
    configured.loadConfig();
    // "A" is recommended, and only the tile of "A" is enabled; the tile of "a" hides the one in "linescan".
    configured.window.setSelectedCamera(camera(latin1("Lintaro"), {}, {}, latin1("id")));
    QCOMPARE(configured.tiles().size(), 2);
    QVERIFY(!configured.tiles().at(0)->isEnabled());
    QVERIFY(configured.tiles().at(1)->isEnabled());
}

void TestToolTiles::recommendedToolWithoutATileIsIgnored()
{
    ConfiguredWindow configured(filesWith(
        groups({group("areascan", {tool("a", "bin/Same")}), group("linescan", {tool("b", "bin/Same")})})));
    configured.loadConfig();
    // "b" is recommended, but the executable has its tile already, that of "a".
    configured.window.setSelectedCamera(camera(latin1("Lintaro"), {}, {}, latin1("id")));
    QCOMPARE(names(configured, false), upper({"a"}));
    QCOMPARE(enabledNames(configured), QStringList());
    QCOMPARE(
        hint(configured.window), latin1("Recommended for LINESCAN. Non-recommended tools are disabled."));
}

void TestToolTiles::pressAsksForTheExecutableAsConfigured()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.show();
    configured.window.setSelectedCamera(areaCamera);
    const QSignalSpy launches(&configured.window, &MainWindow::requestLaunchTool);
    ApplicationLauncher *setup = configured.tiles().at(1);
    const QPoint center = setup->mapTo(&configured.window, setup->rect().center());
    QTest::mousePress(configured.window.windowHandle(), Qt::LeftButton, Qt::NoModifier, center);
    QCOMPARE(launches, (QList<QList<QVariant>>{{latin1("bin/Setup")}})); // The button is still down.
    QTest::mouseRelease(configured.window.windowHandle(), Qt::LeftButton, Qt::NoModifier, center);
    QCOMPARE(launches.size(), 1);
}

void TestToolTiles::rightPressAsksForNothing()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.show();
    configured.window.setSelectedCamera(areaCamera);
    const QSignalSpy launches(&configured.window, &MainWindow::requestLaunchTool);
    ApplicationLauncher *viewer = configured.tiles().at(0);
    configured.click(viewer->mapTo(&configured.window, viewer->rect().center()), Qt::RightButton);
    QCOMPARE(launches.size(), 0);
}

void TestToolTiles::disabledTileAsksForNothing()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.show();
    configured.window.setSelectedCamera(areaCamera);
    const QSignalSpy launches(&configured.window, &MainWindow::requestLaunchTool);
    for (ApplicationLauncher *tile : configured.tiles()) {
        if (!tile->isEnabled())
            configured.click(tile->mapTo(&configured.window, tile->rect().center()));
    }
    QCOMPARE(launches.size(), 0);
}

void TestToolTiles::scrollAreaGrowsToAllRows()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    auto *scroll = childNamed<QScrollArea>(configured.window, "toolsScroll");
    QTRY_COMPARE(scroll->minimumHeight(), 3 * 70 + 2 * 6);
    scroll->setMinimumHeight(0);
    configured.window.setSelectedCamera(areaCamera); // Every redraw sets it anew, when the layout is settled.
    QCOMPARE(scroll->minimumHeight(), 0);
    QTRY_COMPARE(scroll->minimumHeight(), 222);
}

void TestToolTiles::eightToolsNeedNoScrollBar()
{
    QJsonArray tools;
    for (const char *id : {"a", "b", "c", "d", "e", "f", "g", "h"})
        tools.append(tool(id, id));
    QJsonObject other = group("other");
    other.insert(latin1("tools"), tools);
    ConfiguredWindow configured(filesWith(groups({other})));
    configured.loadConfig();
    configured.show();
    configured.list({areaCamera});
    auto *scroll = childNamed<QScrollArea>(configured.window, "toolsScroll");
    QTRY_COMPARE(scroll->minimumHeight(), 222);
    QCoreApplication::processEvents();
    QVERIFY(!scroll->verticalScrollBar()->isVisible());
    QVERIFY(!scroll->horizontalScrollBar()->isVisible());
}

QTEST_MAIN(TestToolTiles)
#include "TestToolTiles.moc"
