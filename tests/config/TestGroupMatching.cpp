#include "config/LauncherConfig.h"
#include "tests/config/ConfigDocuments.h"
#include "tests/support/CameraBuilder.h"
#include "tests/support/MessageLog.h"

#include <QtTest>

using namespace ConfigDocuments;

class TestGroupMatching : public QObject
{
    Q_OBJECT

private slots:
    void cascade_data();
    void cascade();
    void groupIsReturnedWhole();
    void nameAndSerialTakeNoPart();
    void longerReferenceModelWinsWhateverTheFileOrder();
    void rowTypeIsTakenAsItStands();
    void rowWithoutAModelTakesNoCamera();
    void missingGroupIsEmptyAndNotTheNextTest_data();
    void missingGroupIsEmptyAndNotTheNextTest();
    void emptyConfigurationGivesTheEmptyGroup();
};

namespace {

QJsonObject shippedStyleRows()
{
    return references({{"Kx200", "areascan"}, {"Kx200 Pro", "linescan"}, {"Qz10", "linescan"},
        {"HX-", "highres"}, {"Dev Simulator", "other"}});
}

QString groupType(const LauncherConfig &config, const QString &vendor, const QString &model)
{
    return config.findGroupForCamera(camera(vendor, model)).type;
}

} // namespace

void TestGroupMatching::cascade_data()
{
    QTest::addColumn<QString>("vendor");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("type");
    const auto add = [](const char *name, const char *vendor, const char *model, const char *type) {
        QTest::newRow(name) << latin1(vendor) << latin1(model) << latin1(type);
    };
    // Each step of the cascade, in its order, and what it outranks.
    add("maker and simulator", "Orvelle GmbH", "Camera Simulator", "simulator");
    add("maker in capitals", "ORVELLE", "Camera Simulator", "simulator");
    add("simulator in capitals", "orvelle", "CAMERA SIMULATOR 2", "simulator");
    add("maker inside a longer vendor text", "The Orvelle Group", "xsimulatorx", "simulator");
    add("simulator outranks the reference rows", "Orvelle", "Kx200 Simulator", "simulator");
    add("simulator outranks the high-resolution vendor", "Orvelle Kordane", "Simulator", "simulator");
    add("simulator of another maker", "Some Maker", "Simulator", "other");
    add("simulator of another maker in a row", "Some Maker", "Dev Simulator", "other");
    add("high-resolution vendor", "KORDANE", "anything", "highres");
    add("high-resolution vendor in small letters", "kordane optics", "", "highres");
    add("high-resolution vendor outranks its model's row", "KORDANE", "Kx200", "highres");
    add("high-resolution vendor and simulator", "Kordane", "Simulator", "highres");
    add("high-resolution vendor outranks the line-scan vendor", "Lintaro Kordane", "Qz10", "highres");
    add("line-scan vendor", "Lintaro", "anything", "linescan");
    add("line-scan vendor in capitals", "LINTARO INC.", "", "linescan");
    add("line-scan vendor outranks its model's row", "Lintaro", "HX-2040M", "linescan");
    add("line-scan vendor outranks the maker", "Orvelle Lintaro", "anything", "linescan");
    add("reference row", "Orvelle", "Kx200 5MP", "areascan");
    add("reference row inside a model text", "Orvelle", "The KX200", "areascan");
    add("longer reference row", "Orvelle GmbH", "Kx200 Pro 5MP", "linescan");
    add("reference row of any vendor", "Some Maker", "Qz10-4k", "linescan");
    add("reference row without a vendor", "", "hx-2040m", "highres");
    add("reference row outranks the maker", "Orvelle", "Qz10-4k", "linescan");
    add("maker with an unknown model", "Orvelle", "Nova 7", "areascan");
    add("maker without a model", "orvelle", "", "areascan");
    add("fragment of a reference row", "Some Maker", "Kx2", "other");
    add("anything else", "Some Maker", "Nova 7", "other");
    add("no texts at all", "", "", "other");
    add("vendor's word in the model", "Some Maker", "Kordane Lintaro Orvelle", "other");
}

void TestGroupMatching::cascade()
{
    QFETCH(QString, vendor);
    QFETCH(QString, model);
    LauncherConfig config;
    config.parseConfig(allGroups(), shippedStyleRows(), {});
    QTEST(groupType(config, vendor, model), "type");
}

void TestGroupMatching::groupIsReturnedWhole()
{
    LauncherConfig config;
    QJsonObject linescan = group("linescan", {tool("tuner", "bin/Tuner"), tool("viewer", "bin/Viewer")});
    linescan.insert(latin1("brand"), latin1("Lintaro"));
    linescan.insert(latin1("description"), latin1("Lines"));
    config.parseConfig(groups({linescan}), {}, {});
    const HardwareGroupConfig found = config.findGroupForCamera(camera(latin1("Lintaro"), {}));
    QCOMPARE(found.type, latin1("linescan"));
    QCOMPARE(found.name, latin1("LINESCAN"));
    QCOMPARE(found.brand, latin1("Lintaro"));
    QCOMPARE(found.description, latin1("Lines"));
    QCOMPARE(found.tools.size(), 2);
    QCOMPARE(found.tools.at(0).id, latin1("tuner"));
    QCOMPARE(found.tools.at(1).executable, latin1("bin/Viewer"));
}

void TestGroupMatching::nameAndSerialTakeNoPart()
{
    LauncherConfig config;
    config.parseConfig(allGroups(), shippedStyleRows(), {});
    CameraInfo info = camera(latin1("Some Maker"), latin1("Nova"), latin1("Kordane"), latin1("Lintaro"));
    info.cameraName = latin1("Orvelle Kx200");
    QCOMPARE(config.findGroupForCamera(info).type, latin1("other"));
}

void TestGroupMatching::longerReferenceModelWinsWhateverTheFileOrder()
{
    LauncherConfig shortFirst;
    shortFirst.parseConfig(allGroups(), references({{"Kx200", "areascan"}, {"Kx200 Pro", "linescan"}}), {});
    LauncherConfig longFirst;
    longFirst.parseConfig(allGroups(), references({{"Kx200 Pro", "linescan"}, {"Kx200", "areascan"}}), {});
    QCOMPARE(groupType(shortFirst, latin1("Orvelle GmbH"), latin1("Kx200 Pro 5MP")), latin1("linescan"));
    QCOMPARE(groupType(longFirst, latin1("Orvelle GmbH"), latin1("Kx200 Pro 5MP")), latin1("linescan"));
    QCOMPARE(groupType(longFirst, latin1("Orvelle GmbH"), latin1("Kx200 5MP")), latin1("areascan"));
}

// Intended: groups are stored under lower-case keys, and a row's type is looked up without conversion.
void TestGroupMatching::rowTypeIsTakenAsItStands()
{
    LauncherConfig config;
    config.parseConfig(allGroups(), references({{"Kx200", "AreaScan"}}), {});
    QCOMPARE(groupType(config, latin1("Orvelle"), latin1("Kx200")), QString());
}

// Every text contains the empty one, so such a row is not kept.
void TestGroupMatching::rowWithoutAModelTakesNoCamera()
{
    LauncherConfig config;
    const MessageLog log; // Its warning is a promise of its own.
    config.parseConfig(allGroups(), references({{"", "areascan"}}), {});
    QCOMPARE(groupType(config, {}, {}), latin1("other"));
    QCOMPARE(groupType(config, latin1("Some Maker"), latin1("Nova 7")), latin1("other"));
}

void TestGroupMatching::missingGroupIsEmptyAndNotTheNextTest_data()
{
    QTest::addColumn<QString>("vendor");
    QTest::addColumn<QString>("model");
    QTest::newRow("simulator") << latin1("Orvelle") << latin1("Simulator");
    QTest::newRow("highres") << latin1("Kordane") << latin1("Kx200");
    QTest::newRow("linescan") << latin1("Lintaro") << latin1("Kx200");
    QTest::newRow("row's group") << latin1("Orvelle") << latin1("Qz10");
    QTest::newRow("other") << latin1("Some Maker") << latin1("Nova");
}

void TestGroupMatching::missingGroupIsEmptyAndNotTheNextTest()
{
    QFETCH(QString, vendor);
    QFETCH(QString, model);
    LauncherConfig config; // Only the group that a camera of the maker would fall back to.
    config.parseConfig(groups({group("areascan")}), shippedStyleRows(), {});
    const HardwareGroupConfig found = config.findGroupForCamera(camera(vendor, model));
    QCOMPARE(found.type, QString());
    QCOMPARE(found.name, QString());
    QVERIFY(found.tools.isEmpty());
}

void TestGroupMatching::emptyConfigurationGivesTheEmptyGroup()
{
    QCOMPARE(groupType(LauncherConfig(), latin1("Orvelle"), latin1("Camera Simulator")), QString());
}

QTEST_GUILESS_MAIN(TestGroupMatching)
#include "TestGroupMatching.moc"
