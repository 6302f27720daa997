#include "config/LauncherConfig.h"
#include "tests/config/ConfigDocuments.h"
#include "tests/support/CameraBuilder.h"

#include <QtTest>

using namespace ConfigDocuments;

class TestToolRecommendation : public QObject
{
    Q_OBJECT

private slots:
    void toolsComeInGroupKeyOrderThenFileOrder();
    void sameExecutableUnderAnotherIdIsListedOnce();
    void toolWithoutExecutableIsKnownByItsId();
    void toolHiddenByItsPlatformHidesItsExecutableEverywhere();
    void platformOfAToolIsComparedWithLetterCase();
    void emptyPlatformStringShowsOnlyToolsForEveryPlatform();
    void emptyConfigurationHasNoTools();
    void transport_data();
    void transport();
    void platform_data();
    void platform();
    void letterCaseOfThePlatformMattersOnlyForTheList();
    void idsCollapse();
    void recommendationNeedsNoTile();
    void compatibility_data();
    void compatibility();
    void compatibilityCountsOnlyInTheHighResolutionGroup_data();
    void compatibilityCountsOnlyInTheHighResolutionGroup();
    void emptyCompatibilityTableFitsEverything();
    void entryWithoutToolsOffersNothing();
    void camerasAsAnArrayGiveNoEntries();
};

namespace {

const QString linux64 = QStringLiteral("linux_x86_64");

QStringList ids(const QVector<ToolConfig> &tools)
{
    QStringList result;
    for (const ToolConfig &one : tools)
        result.append(one.id);
    return result;
}

QStringList listedTools(const QJsonObject &document, const QString &platform)
{
    LauncherConfig config;
    config.parseConfig(document, {}, {});
    return ids(config.allTools(platform));
}

/// The recommendation of a group that holds this one tool, as "recommended or not".
bool recommends(const QJsonObject &only, const QString &interfaceType, const QString &platform)
{
    LauncherConfig config;
    config.parseConfig(groups({group("other", {only})}), {}, {});
    const CameraInfo one = camera({}, {}, {}, {}, interfaceType);
    return config.recommendedToolsIdsForCamera(config.findGroupForCamera(one), one, platform)
        == QSet<QString>{only.value(latin1("id")).toString()};
}

LauncherConfig withCompatibility(const QJsonObject &table)
{
    LauncherConfig config;
    config.parseConfig({}, {}, table);
    return config;
}

QJsonObject halvexTable()
{
    return ConfigDocuments::compatibility({{"HX-2040M", {latin1("image-viewer"), latin1("pixel-repair")}}});
}

} // namespace

void TestToolRecommendation::toolsComeInGroupKeyOrderThenFileOrder()
{
    const QJsonObject document = groups({group("simulator", {tool("s", "bin/S")}),
        group("Linescan", {tool("l2", "bin/L2"), tool("l1", "bin/L1")}),
        group("areascan", {tool("a", "bin/A")}), group("other", {tool("o", "bin/O")}),
        group("highres", {tool("h", "bin/H"), tool("a", "bin/A")})});
    QCOMPARE(listedTools(document, linux64),
        QStringList({latin1("a"), latin1("h"), latin1("l2"), latin1("l1"), latin1("o"), latin1("s")}));
}

void TestToolRecommendation::sameExecutableUnderAnotherIdIsListedOnce()
{
    const QJsonObject document = groups({group("linescan", {tool("later", "bin/Viewer")}),
        group("areascan", {tool("first", "bin/Viewer"), tool("again", "bin/Viewer")})});
    QCOMPARE(listedTools(document, linux64), QStringList{latin1("first")});
}

void TestToolRecommendation::toolWithoutExecutableIsKnownByItsId()
{
    const QJsonObject document
        = groups({group("areascan", {tool("x"), tool("y"), tool("x")}), group("other", {tool("y")}),
            // One tool's executable is another one's id: they share their key.
            group("simulator", {tool("z", "x")})});
    QCOMPARE(listedTools(document, linux64), QStringList({latin1("x"), latin1("y")}));
}

// Intended: the first occurrence claims the executable even though its platform list hides it.
void TestToolRecommendation::toolHiddenByItsPlatformHidesItsExecutableEverywhere()
{
    const QJsonObject document = groups({group("areascan", {tool("update", "bin/Update", {latin1("win32")})}),
        group("linescan", {tool("update", "bin/Update"), tool("tuner", "bin/Tuner")})});
    QCOMPARE(listedTools(document, linux64), QStringList{latin1("tuner")});
    QCOMPARE(listedTools(document, latin1("win32")), QStringList({latin1("update"), latin1("tuner")}));
}

void TestToolRecommendation::platformOfAToolIsComparedWithLetterCase()
{
    const QJsonObject document
        = groups({group("areascan", {tool("a", "bin/A", {latin1("win32"), latin1("linux_x86_64")})})});
    QCOMPARE(listedTools(document, linux64), QStringList{latin1("a")});
    QCOMPARE(listedTools(document, latin1("Linux_x86_64")), QStringList());
    QCOMPARE(listedTools(document, latin1("linux_x86")), QStringList());
}

void TestToolRecommendation::emptyPlatformStringShowsOnlyToolsForEveryPlatform()
{
    const QJsonObject document
        = groups({group("areascan", {tool("a", "bin/A", {latin1("win32")}), tool("b", "bin/B")})});
    QCOMPARE(listedTools(document, QString()), QStringList{latin1("b")});
}

void TestToolRecommendation::emptyConfigurationHasNoTools()
{
    const LauncherConfig config;
    QCOMPARE(config.allTools(linux64).size(), 0);
    QCOMPARE(config.recommendedToolsIdsForCamera({}, {}, linux64), QSet<QString>());
}

void TestToolRecommendation::transport_data()
{
    QTest::addColumn<QStringList>("transports");
    QTest::addColumn<QString>("interfaceType");
    QTest::addColumn<bool>("recommended");
    const QStringList usbAndGigE{latin1("USB"), latin1("GigE")};
    QTest::newRow("no list") << QStringList() << latin1("PCI") << true;
    QTest::newRow("no list, no interface") << QStringList() << QString() << true;
    QTest::newRow("in the list") << usbAndGigE << latin1("GigE") << true;
    QTest::newRow("in another letter case") << usbAndGigE << latin1("usb") << true;
    QTest::newRow("not in the list") << usbAndGigE << latin1("CoaXPress") << false;
    QTest::newRow("part of a name in the list") << usbAndGigE << latin1("Gig") << false;
    QTest::newRow("no interface") << usbAndGigE << QString() << false;
    QTest::newRow("no interface, empty name in the list") << QStringList{QString()} << QString() << false;
}

void TestToolRecommendation::transport()
{
    QFETCH(QStringList, transports);
    QFETCH(QString, interfaceType);
    QTEST(recommends(tool("t", "bin/T", {}, transports), interfaceType, linux64), "recommended");
}

void TestToolRecommendation::platform_data()
{
    QTest::addColumn<QStringList>("platforms");
    QTest::addColumn<QString>("platform");
    QTest::addColumn<bool>("recommended");
    const QStringList both{latin1("win32"), linux64};
    QTest::newRow("no list") << QStringList() << linux64 << true;
    QTest::newRow("no list, no platform") << QStringList() << QString() << true;
    QTest::newRow("in the list") << both << linux64 << true;
    QTest::newRow("in another letter case") << both << latin1("LINUX_X86_64") << true;
    QTest::newRow("not in the list") << both << latin1("linux_arm64") << false;
    QTest::newRow("no platform") << both << QString() << false;
    QTest::newRow("no platform, empty name in the list") << QStringList{QString()} << QString() << false;
}

void TestToolRecommendation::platform()
{
    QFETCH(QStringList, platforms);
    QFETCH(QString, platform);
    QTEST(recommends(tool("t", "bin/T", platforms), latin1("USB"), platform), "recommended");
}

// Intended: the list of tiles asks for the exact platform, the recommendation does not.
void TestToolRecommendation::letterCaseOfThePlatformMattersOnlyForTheList()
{
    const QJsonObject only = tool("t", "bin/T", {linux64});
    QCOMPARE(listedTools(groups({group("other", {only})}), latin1("Linux_x86_64")), QStringList());
    QVERIFY(recommends(only, {}, latin1("Linux_x86_64")));
}

void TestToolRecommendation::idsCollapse()
{
    LauncherConfig config;
    config.parseConfig(
        groups({group("other", {tool("t", "bin/T"), tool("t", "bin/U"), tool("v", "bin/V")})}), {}, {});
    QCOMPARE(config.recommendedToolsIdsForCamera(config.findGroupForCamera({}), {}, linux64),
        QSet<QString>({latin1("t"), latin1("v")}));
}

void TestToolRecommendation::recommendationNeedsNoTile()
{
    LauncherConfig config;
    config.parseConfig(groups({group("areascan", {tool("first", "bin/Same")}),
                           group("other", {tool("second", "bin/Same")})}),
        {}, {});
    QCOMPARE(ids(config.allTools(linux64)), QStringList{latin1("first")});
    QCOMPARE(config.recommendedToolsIdsForCamera(config.findGroupForCamera({}), {}, linux64),
        QSet<QString>{latin1("second")});
}

void TestToolRecommendation::compatibility_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("toolId");
    QTest::addColumn<bool>("compatible");
    QTest::newRow("listed") << latin1("HX-2040M") << latin1("pixel-repair") << true;
    QTest::newRow("listed, model in small letters") << latin1("hx-2040m") << latin1("pixel-repair") << true;
    QTest::newRow("not listed") << latin1("HX-2040M") << latin1("flat-field") << false;
    QTest::newRow("not listed, small letters") << latin1("hx-2040m") << latin1("flat-field") << false;
    QTest::newRow("tool id in another letter case") << latin1("HX-2040M") << latin1("Pixel-Repair") << false;
    QTest::newRow("model is longer than the code") << latin1("HX-2040M-X") << latin1("flat-field") << true;
    QTest::newRow("model is part of the code") << latin1("HX-2040") << latin1("flat-field") << true;
    QTest::newRow("no model") << QString() << latin1("flat-field") << true;
}

void TestToolRecommendation::compatibility()
{
    QFETCH(QString, model);
    QFETCH(QString, toolId);
    QTEST(withCompatibility(halvexTable()).isHalvexToolCompatibleWithCamera(model, toolId), "compatible");
}

void TestToolRecommendation::compatibilityCountsOnlyInTheHighResolutionGroup_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QStringList>("expected");
    const QStringList all{latin1("flat-field"), latin1("image-viewer"), latin1("pixel-repair")};
    const QStringList some{latin1("image-viewer"), latin1("pixel-repair")};
    QTest::newRow("high resolution, known model") << latin1("highres") << latin1("hx-2040m") << some;
    QTest::newRow("high resolution, unknown model") << latin1("highres") << latin1("HX-2040M-X") << all;
    QTest::newRow("area scan, known model") << latin1("areascan") << latin1("HX-2040M") << all;
    QTest::newRow("type in another letter case") << latin1("HighRes") << latin1("HX-2040M") << all;
}

void TestToolRecommendation::compatibilityCountsOnlyInTheHighResolutionGroup()
{
    QFETCH(QString, type);
    QFETCH(QString, model);
    HardwareGroupConfig chosen;
    chosen.type = type;
    for (const char *id : {"image-viewer", "pixel-repair", "flat-field"}) {
        ToolConfig one;
        one.id = latin1(id);
        chosen.tools.append(one);
    }
    QStringList recommended = withCompatibility(halvexTable())
                                  .recommendedToolsIdsForCamera(chosen, camera({}, model), linux64)
                                  .values();
    recommended.sort();
    QTEST(recommended, "expected");
}

void TestToolRecommendation::emptyCompatibilityTableFitsEverything()
{
    QVERIFY(LauncherConfig().isHalvexToolCompatibleWithCamera(latin1("HX-2040M"), latin1("flat-field")));
}

void TestToolRecommendation::entryWithoutToolsOffersNothing()
{
    const QJsonObject cameras{{latin1("HX-1"), QJsonObject{{latin1("tools"), QJsonArray()}}},
        {latin1("HX-2"), QJsonObject{{latin1("notes"), latin1("Nothing else.")}}},
        {latin1("HX-3"), latin1("no object")}};
    const LauncherConfig config = withCompatibility({{latin1("cameras"), cameras}});
    for (const char *model : {"HX-1", "HX-2", "HX-3"})
        QVERIFY2(!config.isHalvexToolCompatibleWithCamera(latin1(model), latin1("image-viewer")), model);
}

void TestToolRecommendation::camerasAsAnArrayGiveNoEntries()
{
    const LauncherConfig config
        = withCompatibility({{latin1("cameras"), QJsonArray{QJsonObject{{latin1("HX-1"), QJsonObject()}}}}});
    QVERIFY(config.isHalvexToolCompatibleWithCamera(latin1("HX-1"), latin1("image-viewer")));
}

QTEST_GUILESS_MAIN(TestToolRecommendation)
#include "TestToolRecommendation.moc"
