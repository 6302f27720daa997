#include "config/LauncherConfig.h"
#include "tests/config/ConfigDocuments.h"
#include "tests/support/CameraBuilder.h"

#include <QtTest>

using namespace ConfigDocuments;

class TestToolRecommendation : public QObject
{
    Q_OBJECT

private slots:
    void allToolsReturnsTheToolsOfThePlatform_data();
    void allToolsReturnsTheToolsOfThePlatform();
    void toolFitDependsOnTransportAndPlatform_data();
    void toolFitDependsOnTransportAndPlatform();
    void toolIsRecommendedEvenIfItHasNoTile();
    void toolFitDependsOnTheCompatibilityTable_data();
    void toolFitDependsOnTheCompatibilityTable();
    void everyToolFitsWithoutACompatibilityTable();
};

namespace {

const QString linux64 = "linux_x86_64"_s;

} // namespace

void TestToolRecommendation::allToolsReturnsTheToolsOfThePlatform_data()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::addColumn<QString>("platform");
    QTest::addColumn<QString>("ids");
    const auto add = [](const char *name, const QJsonObject &document, const QString &platform,
                         const char *ids) { QTest::newRow(name) << document << platform << latin1(ids); };
    add("group keys in order, then file order",
        groups({group("simulator", {tool("s", "bin/S")}),
            group("Linescan", {tool("l2", "bin/L2"), tool("l1", "bin/L1")}),
            group("areascan", {tool("a", "bin/A")}), group("other", {tool("o", "bin/O")}),
            group("highres", {tool("h", "bin/H"), tool("a", "bin/A")})}),
        linux64, "a h l2 l1 o s");
    add("same executable, other id",
        groups({group("linescan", {tool("later", "bin/Viewer")}),
            group("areascan", {tool("first", "bin/Viewer"), tool("again", "bin/Viewer")})}),
        linux64, "first");
    add("id replaces an empty executable", // The last tool's executable equals the first tool's id.
        groups({group("areascan", {tool("x"), tool("y"), tool("x")}), group("other", {tool("y")}),
            group("simulator", {tool("z", "x")})}),
        linux64, "x y");
    const QJsonObject hiding = groups({group("areascan", {tool("update", "bin/Update", {"win32"_s})}),
        group("linescan", {tool("update", "bin/Update"), tool("tuner", "bin/Tuner")})});
    add("tool of another platform hides its executable in later groups", hiding, linux64,
        "tuner"); // Intended: duplicates are removed before hidden tools.
    add("same tools on that platform", hiding, "win32"_s, "update tuner");
    const QJsonObject limited
        = groups({group("other", {tool("a", "bin/A", {"win32"_s, linux64}), tool("b", "bin/B")})});
    add("platform in the list", limited, linux64, "a b");
    add("platform in another letter case", limited, "Linux_x86_64"_s,
        "b"); // Intended: the letter case matters.
    add("part of the platform", limited, "linux_x86"_s, "b");
    add("empty platform", limited, {}, "b");
    add("empty configuration", {}, linux64, "");
}

void TestToolRecommendation::allToolsReturnsTheToolsOfThePlatform()
{
    QFETCH(QJsonObject, document);
    QFETCH(QString, platform);
    LauncherConfig config;
    config.parseConfig(document, {}, {});
    QStringList ids;
    for (const ToolConfig &tool : config.allTools(platform))
        ids.append(tool.id);
    QTEST(ids.join(QLatin1Char(' ')), "ids");
}

void TestToolRecommendation::toolFitDependsOnTransportAndPlatform_data()
{
    QTest::addColumn<QStringList>("transports");
    QTest::addColumn<QString>("interfaceType");
    QTest::addColumn<QStringList>("platforms");
    QTest::addColumn<QString>("platform");
    QTest::addColumn<bool>("recommended");
    const auto transport = [](const char *name, const QStringList &list, const QString &value, bool fits) {
        QTest::addRow("transport %s", name) << list << value << QStringList() << linux64 << fits;
    };
    const auto platform = [](const char *name, const QStringList &list, const QString &value, bool fits) {
        QTest::addRow("platform %s", name) << QStringList() << "USB"_s << list << value << fits;
    };
    const QStringList usbAndGigE{"USB"_s, "GigE"_s};
    transport("with an empty list", {}, "PCI"_s, true);
    transport("empty, with an empty list", {}, {}, true);
    transport("in the list", usbAndGigE, "GigE"_s, true);
    transport("in another letter case", usbAndGigE, "usb"_s, true);
    transport("not in the list", usbAndGigE, "CoaXPress"_s, false);
    transport("that is a part of a listed one", usbAndGigE, "Gig"_s, false);
    transport("empty", usbAndGigE, {}, false);
    transport("empty, in the list", {QString()}, {}, false);
    const QStringList both{"win32"_s, linux64};
    platform("empty, with an empty list", {}, {}, true);
    platform("in the list", both, linux64, true);
    platform("in another letter case", both, "LINUX_X86_64"_s, true); // Intended: the letter case is ignored.
    platform("not in the list", both, "linux_arm64"_s, false);
    platform("empty", both, {}, false);
    platform("empty, in the list", {QString()}, {}, false);
}

void TestToolRecommendation::toolFitDependsOnTransportAndPlatform()
{
    QFETCH(QStringList, transports);
    QFETCH(QString, interfaceType);
    QFETCH(QStringList, platforms);
    QFETCH(QString, platform);
    LauncherConfig config;
    config.parseConfig(groups({group("other", {tool("t", "bin/T", platforms, transports)})}), {}, {});
    const CameraInfo info = camera({}, {}, {}, {}, interfaceType);
    const HardwareGroupConfig group = config.findGroupForCamera(info);
    QTEST(config.recommendedToolsIdsForCamera(group, info, platform).contains("t"_s), "recommended");
}

void TestToolRecommendation::toolIsRecommendedEvenIfItHasNoTile()
{
    LauncherConfig config;
    config.parseConfig(groups({group("areascan", {tool("hiding", "bin/Same")}),
                           group("other", {tool("t", "bin/Same"), tool("t", "bin/U"), tool("v", "bin/V")})}),
        {}, {});
    QCOMPARE(config.recommendedToolsIdsForCamera(config.findGroupForCamera({}), {}, linux64),
        QSet<QString>({"t"_s, "v"_s}));
}

void TestToolRecommendation::toolFitDependsOnTheCompatibilityTable_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("toolId");
    QTest::addColumn<bool>("compatible");
    QTest::addColumn<QString>("groupType");
    const auto add = [](const char *name, const char *model, const char *toolId, bool compatible,
                         const char *groupType = "highres") {
        QTest::newRow(name) << latin1(model) << latin1(toolId) << compatible << latin1(groupType);
    };
    add("listed", "HX-2040M", "pixel-repair", true);
    add("listed, model in small letters", "hx-2040m", "pixel-repair", true);
    add("not listed", "HX-2040M", "flat-field", false);
    add("not listed, model in small letters", "hx-2040m", "flat-field", false);
    add("tool id in another letter case", "HX-2040M", "Pixel-Repair", false);
    add("model is longer than the code", "HX-2040M-X", "flat-field", true);
    add("model is a part of the code", "HX-2040", "flat-field", true);
    add("no model", "", "flat-field", true);
    add("model with an empty list", "HX-1", "pixel-repair", false);
    add("model without a list", "HX-2", "pixel-repair", false);
    add("model without an object", "HX-3", "pixel-repair", false);
    add("not listed, other group", "HX-2040M", "flat-field", true, "areascan");
    add("not listed, group type in another letter case", "HX-2040M", "flat-field", true, "HighRes");
}

void TestToolRecommendation::toolFitDependsOnTheCompatibilityTable()
{
    QFETCH(QString, model);
    QFETCH(QString, toolId);
    QFETCH(bool, compatible);
    QFETCH(QString, groupType);
    QJsonObject table = compatibility("HX-2040M", {"image-viewer"_s, "pixel-repair"_s});
    QJsonObject cameras = table.value("cameras"_s).toObject();
    cameras.insert("HX-1"_s, QJsonObject{{"tools"_s, QJsonArray()}});
    cameras.insert("HX-2"_s, QJsonObject{{"notes"_s, "No tools."_s}});
    cameras.insert("HX-3"_s, "no object"_s);
    table.insert("cameras"_s, cameras);
    LauncherConfig config;
    config.parseConfig({}, {}, table);
    HardwareGroupConfig group;
    group.type = groupType;
    ToolConfig tool;
    tool.id = toolId;
    group.tools.append(tool);
    const QSet<QString> ids = config.recommendedToolsIdsForCamera(group, camera({}, model), linux64);
    QCOMPARE(ids.contains(toolId), compatible);
    if (groupType == "highres"_s)
        QCOMPARE(config.isHalvexToolCompatibleWithCamera(model, toolId), compatible);
}

void TestToolRecommendation::everyToolFitsWithoutACompatibilityTable()
{
    const QJsonArray array{compatibility("HX-1", {}).value("cameras"_s)};
    LauncherConfig withArray;
    withArray.parseConfig({}, {}, {{"cameras"_s, array}});
    QVERIFY(withArray.isHalvexToolCompatibleWithCamera("HX-1"_s, "flat-field"_s));
    QVERIFY(LauncherConfig().isHalvexToolCompatibleWithCamera("HX-1"_s, "flat-field"_s));
}

QTEST_GUILESS_MAIN(TestToolRecommendation)
#include "TestToolRecommendation.moc"
