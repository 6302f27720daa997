#include "tests/ui/ConfiguredWindow.h"
#include "ui/ApplicationLauncher.h"

#include <QLabel>
#include <QLayout>
#include <QScrollArea>
#include <QSignalSpy>
#include <QSysInfo>
#include <QtTest>

using namespace ConfigDocuments;

class TestToolTiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void sevenToolsFillThreeRows();
    void tilesShowTheToolsInTheirOrder();
    void onlyToolsOfTheRunningPlatformHaveATile();
    void onlyRecommendedTilesAreEnabled_data();
    void onlyRecommendedTilesAreEnabled();
    void recommendedTilesAreFoundByToolIdOnly();
    void leftPressRequestsTheConfiguredExecutable();
    void scrollAreaIsHighEnoughForAllTiles();
};

namespace {

const CameraInfo areaCamera = camera("Orvelle"_s, "Kx200"_s, "1"_s, "a"_s, "GigE"_s);
const CameraInfo lineCamera = camera("Lintaro"_s, {}, "1"_s, "a"_s);
const QString noSelectionHint = "Select a camera to enable its recommended tools."_s;

QString hint(const MainWindow &window)
{
    return childNamed<QLabel>(window, "toolsDescriptionLabel")->text();
}

/// Returns the names of the tiles; a disabled tile's name is in parentheses.
QString tileNames(const ConfiguredWindow &configured)
{
    QStringList names;
    for (const ApplicationLauncher *tile : configured.tiles())
        names.append(tile->isEnabled() ? tile->GetName() : "("_s + tile->GetName() + ")"_s);
    return names.join(QLatin1Char(' '));
}

QString tileNamesFor(const QJsonObject &launcherConfig, const CameraInfo &selected)
{
    ConfiguredWindow configured(ConfiguredWindow::filesWith(launcherConfig));
    configured.loadConfig();
    configured.window.setSelectedCamera(selected);
    return tileNames(configured);
}

} // namespace

void TestToolTiles::initTestCase()
{
    ConfiguredWindow::useShippedStyle();
}

void TestToolTiles::sevenToolsFillThreeRows()
{
    ConfiguredWindow configured;
    configured.open();
    auto *container = childNamed<QWidget>(configured.window, "toolsContainer");
    QCOMPARE(container->minimumWidth(), 567);
    QCOMPARE(container->maximumWidth(), 567);
    QCOMPARE(container->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    const QList<ApplicationLauncher *> tiles = configured.tiles();
    QCOMPARE(tiles.size(), 7);
    for (int index = 0; index < 7; ++index)
        QCOMPARE(tiles.at(index)->geometry(), QRect(index % 3 * 191, index / 3 * 76, 185, 70));
    const int right = childNamed<QWidget>(configured.window, "toolsScrollContent")->width()
        - container->geometry().right() - 1;
    QVERIFY2(container->x() > 0 && qAbs(container->x() - right) <= 1, qPrintable(QString::number(right)));
}

void TestToolTiles::tilesShowTheToolsInTheirOrder()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    QCOMPARE(tileNames(configured), "(VIEWER) (SETUP) (REPAIR) (FLAT) (TUNER) (EXTRA) (CONFIGURATOR)"_s);
    const ApplicationLauncher *tuner = configured.tiles().at(4);
    QCOMPARE(childNamed<QLabel>(*tuner, "applicationName")->text(), "TUNER"_s);
    QCOMPARE(childNamed<QLabel>(*tuner, "applicationDescription")->text(), "About tuner"_s);
}

void TestToolTiles::onlyToolsOfTheRunningPlatformHaveATile()
{
    const QString running = "linux_"_s + QSysInfo::currentCpuArchitecture();
    const QJsonObject document = groups({group("other",
        {tool("here", "bin/Here", {"win32"_s, running}), tool("there", "bin/There", {"win32"_s}),
            tool("capital", "bin/Capital", {running.toUpper()})})});
    QCOMPARE(tileNamesFor(document, camera({}, {}, {}, "id"_s)), "HERE"_s);
}

void TestToolTiles::onlyRecommendedTilesAreEnabled_data()
{
    QTest::addColumn<CameraInfo>("selected");
    QTest::addColumn<QString>("enabled");
    QTest::addColumn<QString>("hint");
    const auto add = [](const char *name, const CameraInfo &selected, const char *enabled,
                         const char *group) {
        QTest::newRow(name) << selected << latin1(enabled)
                            << "Recommended for %1. Non-recommended tools are disabled."_s.arg(latin1(group));
    };
    const auto addWithoutHint = [](const char *name, const CameraInfo &selected, const char *enabled) {
        QTest::newRow(name) << selected << latin1(enabled) << noSelectionHint;
    };
    const auto selected = [](const char *vendor, const char *model, const char *interface = "") {
        return camera(latin1(vendor), latin1(model), "1"_s, "id"_s, latin1(interface));
    };
    add("areascan, GigE", areaCamera, "VIEWER SETUP", "AREASCAN");
    add("areascan, USB", selected("Orvelle", "Kx200", "USB"), "VIEWER", "AREASCAN");
    add("linescan", lineCamera, "VIEWER TUNER", "LINESCAN");
    add("highres, known model", selected("Kordane", "hx-1"), "VIEWER REPAIR", "HIGHRES");
    add("highres, unknown model", selected("Kordane", "HX-2"), "VIEWER REPAIR FLAT", "HIGHRES");
    add("simulator", selected("Orvelle", "Simulator"), "VIEWER CONFIGURATOR", "SIMULATOR");
    // Intended: the hint depends on the group's name only.
    addWithoutHint("group without a name", selected("Some Vendor", ""), "VIEWER EXTRA");
    addWithoutHint("no camera", {}, "");
    addWithoutHint("camera without an ID", camera("Orvelle"_s, "Kx200"_s, "1"_s), "");
}

void TestToolTiles::onlyRecommendedTilesAreEnabled()
{
    QFETCH(CameraInfo, selected);
    ConfiguredWindow configured;
    configured.loadConfig();
    const QList<ApplicationLauncher *> tiles = configured.tiles();
    configured.window.setSelectedCamera(selected);
    QTEST(tileNames(configured).remove(QRegularExpression(" ?\\(\\w+\\)"_s)).trimmed(), "enabled");
    QTEST(hint(configured.window), "hint");
    QCOMPARE(configured.tiles(), tiles); // The tiles keep their places.
    configured.window.setSelectedCamera({});
    QCOMPARE(tileNames(configured).count(QLatin1Char('(')), 7);
}

void TestToolTiles::recommendedTilesAreFoundByToolIdOnly()
{
    const QJsonObject twins = groups(
        {group("areascan", {tool("twin", "bin/One")}), group("linescan", {tool("twin", "bin/Two")})});
    QCOMPARE(tileNamesFor(twins, areaCamera), "TWIN TWIN"_s);
    // The recommended tool "b" has no tile, because "a" has the same executable.
    const QJsonObject sameExecutable
        = groups({group("areascan", {tool("a", "bin/Same")}), group("linescan", {tool("b", "bin/Same")})});
    QCOMPARE(tileNamesFor(sameExecutable, lineCamera), "(A)"_s);
    const QJsonObject letterCase = groups({group("areascan", {tool("x", "bin/Same")}),
        group("linescan", {tool("X", "bin/Same")}), group("other", {tool("X", "bin/Own")})});
    QCOMPARE(tileNamesFor(letterCase, lineCamera), "(X) X"_s);
}

void TestToolTiles::leftPressRequestsTheConfiguredExecutable()
{
    ConfiguredWindow configured;
    configured.open();
    configured.window.setSelectedCamera(areaCamera);
    const QSignalSpy launches(&configured.window, &MainWindow::requestLaunchTool);
    for (const ApplicationLauncher *tile : configured.tiles()) {
        const QPoint center = tile->mapTo(&configured.window, tile->rect().center());
        configured.click(center, Qt::RightButton);
        configured.click(center); // Only "viewer" and "setup" are enabled.
    }
    QCOMPARE(launches, (QList<QList<QVariant>>{{"bin/Viewer"_s}, {"bin/Setup"_s}}));
}

void TestToolTiles::scrollAreaIsHighEnoughForAllTiles()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    auto *scroll = childNamed<QScrollArea>(configured.window, "toolsScroll");
    QTRY_COMPARE_WITH_TIMEOUT(scroll->minimumHeight(), 3 * 70 + 2 * 6, hangTimeout);
    scroll->setMinimumHeight(0);
    configured.window.setSelectedCamera(areaCamera);
    QCOMPARE(
        scroll->minimumHeight(), 0); // Not set yet: the window sets the height after the layout is activated.
    QTRY_COMPARE_WITH_TIMEOUT(scroll->minimumHeight(), 222, hangTimeout);
}

QTEST_MAIN(TestToolTiles)
#include "TestToolTiles.moc"
