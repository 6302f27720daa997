#include "config/LauncherConfig.h"
#include "tests/config/ConfigDocuments.h"
#include "tests/support/CameraBuilder.h"
#include "tests/support/MessageLog.h"

#include <QtTest>

using namespace ConfigDocuments;

class TestThumbnails : public QObject
{
    Q_OBJECT

private slots:
    void picture_data();
    void picture();
    void incompleteRowIsSkippedWithAWarning_data();
    void incompleteRowIsSkippedWithAWarning();
    void fieldThatIsNoTextReadsEmpty_data();
    void fieldThatIsNoTextReadsEmpty();
    void rowThatIsNoObjectReadsEmpty();
    void percentSignInARowIsNoPlaceInTheWarning();
    void rowsAfterAnInvalidOneStillCount();
    void firstSevenCharactersGoWithoutALook_data();
    void firstSevenCharactersGoWithoutALook();
    void displayNameSuppliesTheFamilyWord();
    void nameOfTheDisplayDoesNotCountAsAFragment();
    void emptyModelOfTheMakerTakesTheLongestRow();
    void groupTypeInOtherLetterCaseIsNoSimulator();
    void typeOfTheRowIsNotComparedWithTheGroup();
    void emptyConfigurationGivesThePlaceholder();
    void pathIsNotCheckedToExist();
};

namespace {

const QString logo = QStringLiteral(":/images/orvelle-logo.png");
const QString placeholder = QStringLiteral(":/images/cameras/camera-placeholder.png");

LauncherConfig configured()
{
    LauncherConfig config;
    config.parseConfig(allGroups(),
        references({{"Kx200", "areascan", "assets/cameras/kx200.png"},
            {"Kx200 Pro", "areascan", "assets/cameras/kx200-pro.png"},
            {"Qz10", "linescan", "assets/cameras/qz10.png"}, {"HX-", "highres", "assets/cameras/hx.png"},
            {"Odd One", "other", "assets/cameras/odd.png"}}),
        {});
    return config;
}

QString warning(const char *model, const char *type, const char *thumbnail)
{
    return QStringLiteral("Invalid entry in cameras_reference.json file (model: %1, type: %2, thumbnail: %3)")
        .arg(latin1(model), latin1(type), latin1(thumbnail));
}

} // namespace

void TestThumbnails::picture_data()
{
    QTest::addColumn<QString>("vendor");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("path");
    const auto add = [](const char *name, const char *vendor, const char *model, const QString &path) {
        QTest::newRow(name) << latin1(vendor) << latin1(model) << path;
    };
    const QString kx200 = latin1(":/images/cameras/kx200.png");
    const QString kx200Pro = latin1(":/images/cameras/kx200-pro.png");
    add("row inside the model", "Orvelle", "Kx200 5MP", kx200);
    add("longer row first", "Orvelle", "Kx200 Pro 5MP", kx200Pro);
    add("letter case does not matter", "Orvelle", "KX200 PRO", kx200Pro);
    add("another maker's camera in a row", "Some Maker", "Qz10-4k", latin1(":/images/cameras/qz10.png"));
    add("fragment of the longest row", "Orvelle", "Kx2", kx200Pro);
    // Intended: the shorter row's whole text is a fragment of the longer row, which comes first.
    add("exactly the shorter row", "Orvelle", "Kx200", kx200Pro);
    add("fragment of one row", "Orvelle", "hx", latin1(":/images/cameras/hx.png"));
    add("area scan without a row", "Orvelle", "Nova 7", logo);
    add("line scan without a row", "Lintaro", "Nova 7", placeholder);
    add("high resolution without a row", "Kordane", "Nova 7", placeholder);
    add("high resolution in another group's row", "Kordane", "Qz10", latin1(":/images/cameras/qz10.png"));
    add("simulator", "Orvelle", "Camera Simulator", logo);
    add("simulator in a row", "Orvelle", "Kx200 Simulator", logo);
    add("other", "Some Maker", "Nova 7", placeholder);
    add("other although in a row", "Some Maker", "Odd One", placeholder);
    add("fragment in the group other", "Some Maker", "Kx2", placeholder);
    add("nothing known", "", "", placeholder);
}

void TestThumbnails::picture()
{
    QFETCH(QString, vendor);
    QFETCH(QString, model);
    QTEST(configured().findThumbnailForCamera(camera(vendor, model)), "path");
}

void TestThumbnails::incompleteRowIsSkippedWithAWarning_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("thumbnail");
    QTest::newRow("no model") << QByteArray("") << QByteArray("areascan")
                              << QByteArray("assets/cameras/kx.png");
    QTest::newRow("no type") << QByteArray("Kx") << QByteArray("") << QByteArray("assets/cameras/kx.png");
    QTest::newRow("no thumbnail") << QByteArray("Kx") << QByteArray("areascan") << QByteArray("");
    QTest::newRow("nothing") << QByteArray("") << QByteArray("") << QByteArray("");
}

void TestThumbnails::incompleteRowIsSkippedWithAWarning()
{
    QFETCH(QByteArray, model);
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, thumbnail);
    LauncherConfig config;
    MessageLog log;
    config.parseConfig(
        allGroups(), references({{model.constData(), type.constData(), thumbnail.constData()}}), {});
    QCOMPARE(log.texts(QtWarningMsg), QStringList{warning(model, type, thumbnail)});
    QCOMPARE(log.entries().size(), 1);
    // Of the maker's cameras every one would match the row, had it been kept.
    QCOMPARE(config.findThumbnailForCamera(camera(latin1("Orvelle"), latin1("Kx"))), logo);
}

void TestThumbnails::fieldThatIsNoTextReadsEmpty_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("message");
    const auto add = [](const char *key, const QString &message) {
        QTest::addRow("%s missing", key) << latin1(key) << QJsonValue(QJsonValue::Undefined) << message;
        QTest::addRow("%s null", key) << latin1(key) << QJsonValue() << message;
        QTest::addRow("%s number", key) << latin1(key) << QJsonValue(12) << message;
        QTest::addRow("%s truth value", key) << latin1(key) << QJsonValue(true) << message;
        QTest::addRow("%s array", key) << latin1(key) << QJsonValue(QJsonArray{latin1("12")}) << message;
    };
    add("model", warning("", "areascan", "assets/cameras/kx.png"));
    add("type", warning("12", "", "assets/cameras/kx.png"));
    add("thumbnail", warning("12", "areascan", ""));
}

void TestThumbnails::fieldThatIsNoTextReadsEmpty()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QFETCH(QString, message);
    QJsonObject row{{latin1("model"), latin1("12")}, {latin1("type"), latin1("areascan")},
        {latin1("thumbnail"), latin1("assets/cameras/kx.png")}};
    row.insert(key, value);
    LauncherConfig config;
    MessageLog log;
    config.parseConfig(allGroups(), {{latin1("cameras"), QJsonArray{row}}}, {});
    QCOMPARE(log.texts(QtWarningMsg), QStringList{message});
    QCOMPARE(config.findThumbnailForCamera(camera(latin1("Orvelle"), latin1("12"))), logo);
}

void TestThumbnails::rowThatIsNoObjectReadsEmpty()
{
    LauncherConfig config;
    MessageLog log;
    config.buildThumbnailLookup({{latin1("cameras"), QJsonArray{12, latin1("Kx"), QJsonValue()}}});
    QCOMPARE(log.texts(QtWarningMsg),
        QStringList({warning("", "", ""), warning("", "", ""), warning("", "", "")}));
}

void TestThumbnails::percentSignInARowIsNoPlaceInTheWarning()
{
    LauncherConfig config;
    MessageLog log;
    config.buildThumbnailLookup(references({{"%3 and %2", "", "%1"}}));
    QCOMPARE(log.texts(QtWarningMsg),
        QStringList{latin1(
            "Invalid entry in cameras_reference.json file (model: %3 and %2, type: , thumbnail: %1)")});
}

void TestThumbnails::rowsAfterAnInvalidOneStillCount()
{
    LauncherConfig config;
    MessageLog log;
    config.parseConfig(allGroups(),
        references({{"", "areascan"}, {"Kx200", "areascan", "assets/cameras/kx200.png"}, {"Kx", ""}}), {});
    QCOMPARE(log.texts(QtWarningMsg).size(), 2);
    QCOMPARE(
        config.findThumbnailForCamera(camera({}, latin1("Kx200"))), latin1(":/images/cameras/kx200.png"));
}

void TestThumbnails::firstSevenCharactersGoWithoutALook_data()
{
    QTest::addColumn<QByteArray>("thumbnail");
    QTest::addColumn<QString>("path");
    QTest::newRow("assets") << QByteArray("assets/cameras/kx200.png") << latin1(":/images/cameras/kx200.png");
    QTest::newRow("another prefix") << QByteArray("pictures/kx.png") << latin1(":/images/s/kx.png");
    QTest::newRow("seven characters") << QByteArray("1234567") << latin1(":/images/");
    QTest::newRow("fewer characters") << QByteArray("kx.png") << latin1(":/images/");
}

// Intended: whatever stands in the place of "assets/" is dropped.
void TestThumbnails::firstSevenCharactersGoWithoutALook()
{
    QFETCH(QByteArray, thumbnail);
    LauncherConfig config;
    config.parseConfig(allGroups(), references({{"Kx", "areascan", thumbnail.constData()}}), {});
    QTEST(config.findThumbnailForCamera(camera({}, latin1("Kx"))), "path");
}

void TestThumbnails::displayNameSuppliesTheFamilyWord()
{
    CameraInfo info = camera(latin1("Orvelle"), latin1("Nova 7"));
    info.cameraName = latin1("My KX200 on the left");
    QCOMPARE(configured().findThumbnailForCamera(info), latin1(":/images/cameras/kx200.png"));
}

// The search text is model, blank, name: a row that spans the blank is found, too.
void TestThumbnails::nameOfTheDisplayDoesNotCountAsAFragment()
{
    CameraInfo info = camera(latin1("Orvelle"), latin1("Nova"));
    info.cameraName = latin1("Kx20");
    QCOMPARE(configured().findThumbnailForCamera(info), logo);
    info.modelName = latin1("Nova Kx200");
    info.cameraName = latin1("Pro");
    QCOMPARE(configured().findThumbnailForCamera(info), latin1(":/images/cameras/kx200-pro.png"));
}

// Intended: every row's model contains the empty text.
void TestThumbnails::emptyModelOfTheMakerTakesTheLongestRow()
{
    QCOMPARE(configured().findThumbnailForCamera(camera(latin1("Orvelle"), {})),
        latin1(":/images/cameras/kx200-pro.png"));
}

void TestThumbnails::groupTypeInOtherLetterCaseIsNoSimulator()
{
    LauncherConfig config;
    config.parseConfig(groups({group("Simulator"), group("Other"), group("AreaScan")}),
        references({{"Kx200", "other", "assets/cameras/kx200.png"}}), {});
    QCOMPARE(config.findThumbnailForCamera(camera(latin1("Orvelle"), latin1("Kx200 Simulator"))),
        latin1(":/images/cameras/kx200.png"));
    QCOMPARE(config.findThumbnailForCamera(camera(latin1("Orvelle"), latin1("Simulator"))), placeholder);
    QCOMPARE(config.findThumbnailForCamera(camera(latin1("Some Maker"), latin1("Kx200"))),
        latin1(":/images/cameras/kx200.png"));
    // Neither is "AreaScan" the group whose cameras without a row get the logo.
    QCOMPARE(config.findThumbnailForCamera(camera(latin1("Orvelle"), latin1("Nova"))), placeholder);
}

void TestThumbnails::typeOfTheRowIsNotComparedWithTheGroup()
{
    QCOMPARE(configured().findThumbnailForCamera(camera(latin1("Lintaro"), latin1("HX-2040"))),
        latin1(":/images/cameras/hx.png"));
}

void TestThumbnails::emptyConfigurationGivesThePlaceholder()
{
    QCOMPARE(
        LauncherConfig().findThumbnailForCamera(camera(latin1("Orvelle"), latin1("Simulator"))), placeholder);
}

void TestThumbnails::pathIsNotCheckedToExist()
{
    const QString path = configured().findThumbnailForCamera(camera({}, latin1("Kx200 5MP")));
    QVERIFY(!QFile::exists(path)); // No pictures are linked into this test.
    QCOMPARE(path, latin1(":/images/cameras/kx200.png"));
}

QTEST_GUILESS_MAIN(TestThumbnails)
#include "TestThumbnails.moc"
