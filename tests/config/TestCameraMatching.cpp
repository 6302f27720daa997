#include "config/LauncherConfig.h"
#include "tests/config/ConfigDocuments.h"
#include "tests/support/CameraBuilder.h"
#include "tests/support/MessageLog.h"

#include <QtTest>

using namespace ConfigDocuments;

/// Tests which hardware group and which picture a camera has.
class TestCameraMatching : public QObject
{
    Q_OBJECT

private slots:
    void groupAndPictureDependOnTheFieldsOfTheCamera_data();
    void groupAndPictureDependOnTheFieldsOfTheCamera();
    void cameraOfAnUnconfiguredGroupGetsAnEmptyGroup_data();
    void cameraOfAnUnconfiguredGroupGetsAnEmptyGroup();
    void typesAreCaseSensitive();
    void invalidReferenceRowIsSkippedWithAWarning_data();
    void invalidReferenceRowIsSkippedWithAWarning();
    void firstSevenCharactersOfThePathAreReplaced_data();
    void firstSevenCharactersOfThePathAreReplaced();
};

namespace {

const QString logo = ":/images/orvelle-logo.png"_s;
const QString placeholder = ":/images/cameras/camera-placeholder.png"_s;
const QString kx200 = ":/images/kx200"_s;
const QString kx200Pro = ":/images/kx200-pro"_s;
const QString qz10 = ":/images/qz10"_s;
const QString hx = ":/images/hx"_s;
const QString odd = ":/images/odd"_s;

QJsonObject exampleRows()
{
    return references({{"Kx200", "areascan", "assets/kx200"}, {"Kx200 Pro", "linescan", "assets/kx200-pro"},
        {"Qz10", "linescan", "assets/qz10"}, {"HX-", "highres", "assets/hx"},
        {"Odd Simulator", "other", "assets/odd"}});
}

LauncherConfig configured(const QJsonObject &groups, const QJsonObject &rows)
{
    LauncherConfig config;
    config.parseConfig(groups, rows, {});
    return config;
}

} // namespace

void TestCameraMatching::groupAndPictureDependOnTheFieldsOfTheCamera_data()
{
    QTest::addColumn<QString>("vendor");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("cameraName");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("picture");
    const auto add = [](const char *name, const char *vendor, const char *model, const char *group,
                         const QString &picture, const char *cameraName = "") {
        QTest::newRow(name) << latin1(vendor) << latin1(model) << latin1(cameraName) << latin1(group)
                            << picture;
    };
    add("simulator", "Orvelle GmbH", "Camera Simulator", "simulator", logo);
    add("simulator, vendor in capitals", "ORVELLE", "Camera Simulator", "simulator", logo);
    add("simulator, model in capitals", "orvelle", "CAMERA SIMULATOR 2", "simulator", logo);
    add("simulator, inside longer names", "The Orvelle Group", "xsimulatorx", "simulator", logo);
    add("simulator before reference row", "Orvelle", "Kx200 Simulator", "simulator", logo);
    add("simulator before kordane", "Orvelle Kordane", "Simulator", "simulator", logo);
    add("simulator of another vendor", "Some Vendor", "Simulator", "other", placeholder);
    add("simulator of another vendor in a row", "Some Vendor", "Odd Simulator", "other", placeholder);
    add("kordane", "KORDANE", "anything", "highres", placeholder);
    // Intended: the type of the picture's row may differ from the camera's group.
    add("kordane before reference row", "kordane optics", "Kx200 5MP", "highres", kx200);
    add("kordane with a simulator", "Kordane", "Simulator", "highres", odd);
    add("kordane before lintaro", "Lintaro Kordane", "Qz10", "highres", qz10);
    add("lintaro", "Lintaro", "anything", "linescan", placeholder);
    add("lintaro before reference row", "LINTARO INC.", "HX-2040M", "linescan", hx);
    add("lintaro before orvelle", "Orvelle Lintaro", "anything", "linescan", placeholder);
    add("reference row", "Orvelle", "Kx200 5MP", "areascan", kx200);
    add("reference row inside the model", "Orvelle", "The KX200", "areascan", kx200);
    add("longer reference row", "Orvelle GmbH", "Kx200 Pro 5MP", "linescan", kx200Pro);
    add("reference row, any vendor", "Some Vendor", "Qz10-4k", "linescan", qz10);
    add("reference row, no vendor", "", "hx-2040m", "highres", hx);
    add("reference row before orvelle", "Orvelle", "Qz10-4k", "linescan", qz10);
    add("orvelle with an unknown model", "Orvelle", "Nova 7", "areascan", logo);
    // Intended: a row's picture is also used if the row contains the camera's model. The longest row comes
    // first.
    add("no model", "orvelle", "", "areascan", odd);
    add("model is a part of two rows", "Orvelle", "Kx2", "areascan", kx200Pro);
    add("model equals the shorter of two rows", "Orvelle", "Kx200", "areascan", kx200Pro);
    add("model is a part of one row", "Orvelle", "hx", "areascan", hx);
    add("model is a part of a row, other vendor", "Some Vendor", "Kx2", "other", placeholder);
    add("camera name contains a row", "Orvelle", "Nova 7", "areascan", kx200, "My KX200 on the left");
    add("camera name is a part of a row", "Orvelle", "Nova", "areascan", logo, "Kx20");
    add("model and camera name joined by a blank", "Orvelle", "My Kx200", "areascan", kx200Pro, "Pro");
    add("camera name with vendors", "Some Vendor", "Nova", "other", placeholder, "Orvelle Kordane Lintaro");
    add("model with vendors", "Some Vendor", "Kordane Lintaro Orvelle", "other", placeholder);
    add("no vendor and no model", "", "", "other", placeholder);
}

void TestCameraMatching::groupAndPictureDependOnTheFieldsOfTheCamera()
{
    QFETCH(QString, vendor);
    QFETCH(QString, model);
    QFETCH(QString, cameraName);
    CameraInfo info = camera(vendor, model);
    info.cameraName = cameraName;
    const LauncherConfig config = configured(allGroups(), exampleRows());
    QTEST(config.findGroupForCamera(info).type, "group");
    QTEST(config.findThumbnailForCamera(info), "picture");
}

void TestCameraMatching::cameraOfAnUnconfiguredGroupGetsAnEmptyGroup_data()
{
    QTest::addColumn<QString>("vendor");
    QTest::addColumn<QString>("model");
    QTest::newRow("simulator") << "Orvelle"_s
                               << "Odd Simulator"_s;
    QTest::newRow("highres") << "Orvelle Kordane"_s
                             << "Kx200"_s;
    QTest::newRow("linescan") << "Orvelle Lintaro"_s
                              << "Kx200"_s;
    QTest::newRow("reference row") << "Orvelle"_s
                                   << "Qz10"_s;
    QTest::newRow("other") << "Some Vendor"_s
                           << "Nova"_s;
}

// The first four cameras match a later rule as well, but their group stays empty.
void TestCameraMatching::cameraOfAnUnconfiguredGroupGetsAnEmptyGroup()
{
    QFETCH(QString, vendor);
    QFETCH(QString, model);
    const LauncherConfig config = configured(groups({group("areascan")}), exampleRows());
    QCOMPARE(config.findGroupForCamera(camera(vendor, model)).type, QString());
    // The reference rows do not matter.
    QCOMPARE(config.findThumbnailForCamera(camera(vendor, model)), placeholder);
}

// Intended: types are compared case-sensitively. The type of a reference row must be the key of a group,
// which is lower case. Only the group types "simulator", "other" and "areascan" in lower case have built-in
// pictures.
void TestCameraMatching::typesAreCaseSensitive()
{
    const LauncherConfig lowerCase = configured(allGroups(), references({{"Kx200", "AreaScan"}}));
    QCOMPARE(lowerCase.findGroupForCamera(camera("Orvelle"_s, "Kx200"_s)).type, QString());
    const LauncherConfig mixedCase
        = configured(groups({group("Simulator"), group("Other"), group("AreaScan")}),
            references({{"Kx200", "other", "assets/kx200"}}));
    QCOMPARE(mixedCase.findThumbnailForCamera(camera("Orvelle"_s, "Kx200 Simulator"_s)), kx200);
    QCOMPARE(mixedCase.findThumbnailForCamera(camera("Some Vendor"_s, "Kx200"_s)), kx200);
    QCOMPARE(mixedCase.findThumbnailForCamera(camera("Orvelle"_s, "Nova"_s)), placeholder);
}

void TestCameraMatching::invalidReferenceRowIsSkippedWithAWarning_data()
{
    QTest::addColumn<QJsonValue>("row");
    QTest::addColumn<QString>("fields");
    const auto add = [](const char *name, const QJsonValue &model, const QJsonValue &type,
                         const QJsonValue &thumbnail, const char *fields) {
        const QJsonObject row{{"model"_s, model}, {"type"_s, type}, {"thumbnail"_s, thumbnail}};
        QTest::newRow(name) << QJsonValue(row) << latin1(fields);
    };
    const QString path = "assets/x"_s;
    add("empty model", ""_s, "areascan"_s, path, "model: , type: areascan, thumbnail: assets/x");
    add("empty type", "12"_s, ""_s, path, "model: 12, type: , thumbnail: assets/x");
    add("empty thumbnail", "12"_s, "areascan"_s, ""_s, "model: 12, type: areascan, thumbnail: ");
    add("number as the model", 12, "areascan"_s, path, "model: , type: areascan, thumbnail: assets/x");
    add("null as the type", "12"_s, {}, path, "model: 12, type: , thumbnail: assets/x");
    add("percent signs are no placeholders", "12%3"_s, ""_s, "%1"_s, "model: 12%3, type: , thumbnail: %1");
    QTest::newRow("no object") << QJsonValue(12) << "model: , type: , thumbnail: "_s;
}

void TestCameraMatching::invalidReferenceRowIsSkippedWithAWarning()
{
    QFETCH(QJsonValue, row);
    QFETCH(QString, fields);
    const QJsonArray rows{row, exampleRows().value("cameras"_s).toArray().at(0)};
    const MessageLog log;
    const LauncherConfig config = configured(allGroups(), {{"cameras"_s, rows}});
    QCOMPARE(log.texts(QtWarningMsg),
        QStringList{"Invalid entry in cameras_reference.json file ("_s + fields + ")"_s});
    QCOMPARE(log.entries().size(), 1);
    QCOMPARE(config.findThumbnailForCamera(camera("Orvelle"_s, "12"_s)), logo);
    QCOMPARE(config.findThumbnailForCamera(camera("Orvelle"_s, "Kx200"_s)), kx200); // The next row is valid.
}

void TestCameraMatching::firstSevenCharactersOfThePathAreReplaced_data()
{
    QTest::addColumn<QByteArray>("thumbnail");
    QTest::addColumn<QString>("path");
    QTest::newRow("assets") << QByteArray("assets/cameras/kx200.png") << ":/images/cameras/kx200.png"_s;
    QTest::newRow("another prefix") << QByteArray("pictures/kx.png") << ":/images/s/kx.png"_s;
    QTest::newRow("seven characters") << QByteArray("1234567") << ":/images/"_s;
    QTest::newRow("fewer characters") << QByteArray("kx.png") << ":/images/"_s;
}

// Intended: the first seven characters are replaced even if they are not "assets/".
void TestCameraMatching::firstSevenCharactersOfThePathAreReplaced()
{
    QFETCH(QByteArray, thumbnail);
    const QJsonObject rows = references({{"Kx", "areascan", thumbnail.constData()}});
    QTEST(configured(allGroups(), rows).findThumbnailForCamera(camera({}, "Kx"_s)), "path");
}

QTEST_GUILESS_MAIN(TestCameraMatching)
#include "TestCameraMatching.moc"
