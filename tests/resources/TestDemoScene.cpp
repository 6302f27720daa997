#include "camera/CameraInfo.h"
#include "config/LauncherConfig.h"
#include "tests/resources/JsonResource.h"

#include <QFont>
#include <QFontMetrics>
#include <QMap>
#include <QSet>
#include <QTest>

namespace {

QString text(const QJsonValue &object, const char *key)
{
    return object[QLatin1String(key)].toString();
}

QJsonArray interfaces()
{
    return jsonObject(QStringLiteral(DEMO_SCENE)).value(QStringLiteral("interfaces")).toArray();
}

/// Every device of the scene as its JSON value, in file order.
QVector<QJsonValue> devices()
{
    QVector<QJsonValue> result;
    for (const QJsonValue &interface : interfaces()) {
        for (const QJsonValue &device : interface[QStringLiteral("devices")].toArray())
            result << device;
    }
    return result;
}

CameraInfo toCamera(const QJsonValue &device)
{
    CameraInfo camera;
    camera.cameraId = text(device, "id");
    camera.vendorName = text(device, "vendor");
    camera.modelName = text(device, "model");
    camera.cameraName = text(device, "displayName");
    camera.serialNumber = text(device, "serial");
    return camera;
}

} // namespace

/// The scene that a new installation's simulator shows: a camera for everything the launcher can do.
class TestDemoScene : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void showsEightCameras();
    void everyTextIsFilledIn();
    void idsAndSerialsAreUnique();
    void showsSixTransports();
    void camerasFallIntoAllFiveGroups_data();
    void camerasFallIntoAllFiveGroups();
    void camerasHaveTheirOwnPictures_data();
    void camerasHaveTheirOwnPictures();
    void oneHighResolutionCameraIsLimited();
    void textsFitTheTable();

private:
    LauncherConfig m_config;
};

void TestDemoScene::initTestCase()
{
    m_config.load();
}

void TestDemoScene::showsEightCameras()
{
    QCOMPARE(devices().size(), 8);
}

void TestDemoScene::everyTextIsFilledIn()
{
    for (const QJsonValue &interface : interfaces()) {
        for (const char *key : {"id", "name", "tlType"})
            QVERIFY2(!text(interface, key).isEmpty(), key);
    }
    for (const QJsonValue &device : devices()) {
        for (const char *key : {"id", "vendor", "model", "serial", "displayName"})
            QVERIFY2(!text(device, key).isEmpty(), key);
        QVERIFY(device[QStringLiteral("userName")].isString()); // May be empty: not every camera was named.
    }
}

void TestDemoScene::idsAndSerialsAreUnique()
{
    QSet<QString> interfaceIds, ids, serials;
    for (const QJsonValue &interface : interfaces())
        interfaceIds << text(interface, "id");
    for (const QJsonValue &device : devices()) {
        ids << text(device, "id");
        serials << text(device, "serial");
    }
    QCOMPARE(interfaceIds.size(), interfaces().size());
    QCOMPARE(ids.size(), 8);
    QCOMPARE(serials.size(), 8);
}

void TestDemoScene::showsSixTransports()
{
    const QSet<QString> known{QStringLiteral("GEV"), QStringLiteral("U3V"), QStringLiteral("CL"),
        QStringLiteral("CLHS"), QStringLiteral("CXP"), QStringLiteral("IIDC"), QStringLiteral("UVC"),
        QStringLiteral("Ethernet"), QStringLiteral("PCI")};
    QSet<QString> shown;
    for (const QJsonValue &interface : interfaces()) {
        if (!interface[QStringLiteral("devices")].toArray().isEmpty())
            shown << text(interface, "tlType");
    }
    QCOMPARE(shown.size(), 6);
    QVERIFY(known.contains(shown));
}

void TestDemoScene::camerasFallIntoAllFiveGroups_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<int>("cameras");
    QTest::newRow("areascan") << QStringLiteral("areascan") << 3;
    QTest::newRow("linescan") << QStringLiteral("linescan") << 1;
    QTest::newRow("highres") << QStringLiteral("highres") << 2;
    QTest::newRow("other") << QStringLiteral("other") << 1;
    QTest::newRow("simulator") << QStringLiteral("simulator") << 1;
}

void TestDemoScene::camerasFallIntoAllFiveGroups()
{
    QFETCH(QString, group);
    int cameras = 0;
    for (const QJsonValue &device : devices())
        cameras += m_config.findGroupForCamera(toCamera(device)).type == group ? 1 : 0;
    QTEST(cameras, "cameras");
}

void TestDemoScene::camerasHaveTheirOwnPictures_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("picture");
    const auto row = [](const char *model, const char *picture) {
        QTest::newRow(model) << QString::fromLatin1(model)
                             << QStringLiteral(":/images/") + QLatin1String(picture);
    };
    row("Kx200 Pro 5MP-C", "cameras/kx200-pro.png");
    row("Borea SWIR 1.3MP", "cameras/borea-swir.png");
    row("Ilvo 2MP-M", "cameras/ilvo.png");
    row("HX-2040M", "cameras/hx.png");
    row("HXT-15110M-CXP", "cameras/hxt.png");
    row("Qz40 TDI 16k", "cameras/qz40-tdi.png");
    row("BenchCam 2", "cameras/camera-placeholder.png");
    row("Camera Simulator", "orvelle-logo.png");
}

void TestDemoScene::camerasHaveTheirOwnPictures()
{
    QFETCH(QString, model);
    int cameras = 0;
    for (const QJsonValue &device : devices()) {
        if (text(device, "model") == model) {
            QTEST(m_config.findThumbnailForCamera(toCamera(device)), "picture");
            ++cameras;
        }
    }
    QCOMPARE(cameras, 1);
}

void TestDemoScene::oneHighResolutionCameraIsLimited()
{
    QMap<QString, int> tools;
    for (const QJsonValue &device : devices()) {
        const CameraInfo camera = toCamera(device);
        const HardwareGroupConfig group = m_config.findGroupForCamera(camera);
        if (group.type == QStringLiteral("highres")) {
            const auto ids
                = m_config.recommendedToolsIdsForCamera(group, camera, QStringLiteral("linux_x86_64"));
            tools.insert(camera.modelName, ids.size());
        }
    }
    const QMap<QString, int> expected{{QStringLiteral("HX-2040M"), 3}, {QStringLiteral("HXT-15110M-CXP"), 5}};
    QCOMPARE(tools, expected);
}

void TestDemoScene::textsFitTheTable()
{
    QFont font;
    font.setPixelSize(13); // About what a desktop's default of 10 points comes to.
    const QFontMetrics metrics(font);
    constexpr int padding = 16; // The style sheet's indent and right padding.
    const struct
    {
        const char *key;
        int width;
    } columns[] = {{"vendor", 144}, {"model", 289}, {"serial", 140}};
    for (const QJsonValue &device : devices()) {
        for (const auto &column : columns) {
            const QString value = text(device, column.key);
            QVERIFY2(metrics.horizontalAdvance(value) + padding <= column.width, qPrintable(value));
        }
    }
}

QTEST_MAIN(TestDemoScene)
#include "TestDemoScene.moc"
