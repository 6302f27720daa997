#include "camera/CameraInfo.h"
#include "config/LauncherConfig.h"

#include <QDir>
#include <QFile>
#include <QFontMetrics>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPixmap>
#include <QTest>

namespace {

QJsonObject jsonObject(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

QJsonArray referenceRows()
{
    return jsonObject(QStringLiteral(":/config/cameras_reference.json"))
        .value(QStringLiteral("cameras"))
        .toArray();
}

/// Returns the resource path of the picture in a reference row: "assets/cameras/kx.png" becomes
/// ":/images/cameras/kx.png".
QString pictureOf(const QJsonValue &row)
{
    return QStringLiteral(":/images/")
        + row[QStringLiteral("thumbnail")].toString().mid(int(qstrlen("assets/")));
}

/// Returns the simulated camera of the shipped simulator configuration that has this model.
CameraInfo simulatedCamera(const QString &model)
{
    CameraInfo camera;
    for (const QJsonValue &interface :
        jsonObject(QStringLiteral(SIMULATOR_CONFIGURATION)).value(QStringLiteral("interfaces")).toArray()) {
        for (const QJsonValue &device : interface[QStringLiteral("devices")].toArray()) {
            if (device[QStringLiteral("model")].toString() != model)
                continue;
            camera.vendorName = device[QStringLiteral("vendor")].toString();
            camera.modelName = model;
            camera.cameraName = device[QStringLiteral("displayName")].toString();
        }
    }
    return camera;
}

QFont tileFont(int pixels, QFont::Weight weight)
{
    QFont font;
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

} // namespace

/// Tests the effects of the shipped documents and pictures in the program. Another test compares the content
/// of the documents with shipped-data.golden.
class TestShippedData : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_config.load(); }
    void toolsDependOnThePlatform_data();
    void toolsDependOnThePlatform();
    void nameAndDescriptionOfEveryToolFitTheTile();
    void pictureOfEveryReferenceRowIsFound_data();
    void pictureOfEveryReferenceRowIsFound();
    void everyCameraPictureBelongsToAReferenceRow();
    void cameraWithoutAModelHasAPictureOfItsVendor();
    void simulatedCameraHasItsGroupPictureAndTools_data();
    void simulatedCameraHasItsGroupPictureAndTools();
    void windowPictureHasTheExpectedSize_data();
    void windowPictureHasTheExpectedSize();
    void iconContainsSevenSizes();

private:
    LauncherConfig m_config;
};

void TestShippedData::toolsDependOnThePlatform_data()
{
    QTest::addColumn<QString>("platform");
    QTest::addColumn<QString>("ids");
    const QString everywhere = QStringLiteral(
        "image-viewer camera-setup pixel-repair flat-field focus-assistant thermal-monitor tap-balance");
    QTest::newRow("x86-64") << QStringLiteral("linux_x86_64")
                            << everywhere + QStringLiteral(" line-scan-tuner");
    QTest::newRow("arm64") << QStringLiteral("linux_arm64") << everywhere;
}

void TestShippedData::toolsDependOnThePlatform()
{
    QFETCH(QString, platform);
    QStringList ids;
    for (const ToolConfig &tool : m_config.allTools(platform))
        ids << tool.id;
    QTEST(ids.join(QLatin1Char(' ')), "ids");
}

void TestShippedData::nameAndDescriptionOfEveryToolFitTheTile()
{
    const QSize inside(185 - 2 * 6, 70 - 2 * 6); // This is the size of a tile without its margins.
    const QFontMetrics name(tileFont(13, QFont::Bold)), description(tileFont(11, QFont::Normal));
    for (const ToolConfig &tool : m_config.allTools(QStringLiteral("linux_x86_64"))) {
        QVERIFY2(name.horizontalAdvance(tool.name) <= inside.width(), qPrintable(tool.name));
        const QRect wrapped
            = description.boundingRect(QRect(0, 0, inside.width(), 1000), Qt::TextWordWrap, tool.description);
        QVERIFY2(wrapped.height() <= description.height() + description.lineSpacing(), qPrintable(tool.name));
        QVERIFY2(name.height() + 2 + wrapped.height() <= inside.height(), qPrintable(tool.name));
    }
}

void TestShippedData::pictureOfEveryReferenceRowIsFound_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("picture");
    for (const QJsonValue &row : referenceRows()) {
        const QString model = row[QStringLiteral("model")].toString();
        QTest::newRow(qPrintable(model)) << model << pictureOf(row);
    }
}

void TestShippedData::pictureOfEveryReferenceRowIsFound()
{
    QFETCH(QString, model);
    QFETCH(QString, picture);
    CameraInfo camera;
    camera.modelName = model + QStringLiteral(" 5MP");
    QCOMPARE(m_config.findThumbnailForCamera(camera), picture);
    // A picture stays sharp in the tooltip if its size is a whole multiple of 78 × 70 pixels. A transparent
    // corner shows the background of the tooltip.
    const QImage image(picture);
    QCOMPARE(image.size(), 3 * QSize(78, 70));
    QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
}

void TestShippedData::everyCameraPictureBelongsToAReferenceRow()
{
    QStringList expected{QStringLiteral(":/images/cameras/camera-placeholder.png")};
    for (const QJsonValue &row : referenceRows())
        expected << pictureOf(row);
    expected.sort();
    QStringList found;
    for (const QFileInfo &file :
        QDir(QStringLiteral(":/images/cameras")).entryInfoList(QDir::Files, QDir::Name))
        found << file.filePath();
    QCOMPARE(found, expected);
}

/// A camera without a model matches the first row of the lookup. That row must therefore belong to Orvelle
/// and not to KORDANE or Lintaro.
void TestShippedData::cameraWithoutAModelHasAPictureOfItsVendor()
{
    CameraInfo camera;
    camera.vendorName = QStringLiteral("Orvelle");
    QCOMPARE(m_config.findThumbnailForCamera(camera), QStringLiteral(":/images/cameras/ilvo.png"));
}

void TestShippedData::simulatedCameraHasItsGroupPictureAndTools_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<int>("tools");
    const auto row = [](const char *model, const char *group, const char *picture, int tools) {
        QTest::newRow(model) << QString::fromLatin1(group)
                             << QStringLiteral(":/images/%1.png").arg(QLatin1String(picture)) << tools;
    };
    row("Kx200 Pro 5MP-C", "areascan", "cameras/kx200-pro", 2);
    row("Borea SWIR 1.3MP", "areascan", "cameras/borea-swir", 2);
    row("Ilvo Universal 2MP-M", "areascan", "cameras/ilvo", 2);
    row("HX-2040M", "highres", "cameras/hx", 3); // The compatibility table limits the tools.
    row("HXT-15110M-CXP", "highres", "cameras/hxt", 5);
    row("Qz40 TDI 16k", "linescan", "cameras/qz40-tdi", 2);
    row("BenchCam 2", "other", "cameras/camera-placeholder", 1);
    row("Camera Simulator", "simulator", "orvelle-logo", 1);
}

void TestShippedData::simulatedCameraHasItsGroupPictureAndTools()
{
    const CameraInfo camera = simulatedCamera(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(!camera.modelName.isEmpty());
    const HardwareGroupConfig group = m_config.findGroupForCamera(camera);
    QTEST(group.type, "group");
    QTEST(m_config.findThumbnailForCamera(camera), "picture");
    const auto tools = m_config.recommendedToolsIdsForCamera(group, camera, QStringLiteral("linux_x86_64"));
    QTEST(int(tools.size()), "tools");
}

void TestShippedData::windowPictureHasTheExpectedSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("orvelle-logo") << QSize(256, 256);
    QTest::newRow("menu-dots") << QSize(128, 128);
    QTest::newRow("minimize") << QSize(113, 113);
    QTest::newRow("cross") << QSize(113, 113);
    QTest::newRow("refresh") << QSize(24, 24);
    QTest::newRow("refresh@2x") << QSize(48, 48);
}

void TestShippedData::windowPictureHasTheExpectedSize()
{
    QTEST(QPixmap(QStringLiteral(":/images/%1.png").arg(QLatin1String(QTest::currentDataTag()))).size(),
        "size");
}

void TestShippedData::iconContainsSevenSizes()
{
    QImageReader reader(QStringLiteral(":/images/orvelle-logo.ico"));
    QVector<int> widths;
    do {
        const QImage image = reader.read();
        QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
        widths << image.width();
    } while (reader.jumpToNextImage());
    QCOMPARE(widths, (QVector<int>{16, 24, 32, 48, 64, 128, 256}));
}

QTEST_MAIN(TestShippedData)
#include "TestShippedData.moc"
