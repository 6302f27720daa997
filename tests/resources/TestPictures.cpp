#include "camera/CameraInfo.h"
#include "config/LauncherConfig.h"
#include "tests/resources/JsonResource.h"

#include <QDir>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>
#include <QSet>
#include <QTest>

namespace {

QString cameraFolder()
{
    return QStringLiteral(":/images/cameras/");
}

QString placeholder()
{
    return cameraFolder() + QStringLiteral("camera-placeholder.png");
}

QStringList cameraPictures()
{
    return QDir(cameraFolder()).entryList(QDir::Files, QDir::Name);
}

int visiblePixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 128 ? 1 : 0;
    }
    return count;
}

} // namespace

/// The pictures that are compiled in: there, of the right size, and something to see.
class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void windowPicturesHaveTheirSize_data();
    void windowPicturesHaveTheirSize();
    void iconHoldsSevenSizes();
    void buttonIconsAreLightOnTheButton_data();
    void buttonIconsAreLightOnTheButton();
    void everyReferenceRowHasItsPicture_data();
    void everyReferenceRowHasItsPicture();
    void everyPictureBelongsToARow();
    void cameraPicturesLookRightInATooltip_data();
    void cameraPicturesLookRightInATooltip();
    void noTwoCamerasLookTheSame();
    void picturesStaySmall();
};

void TestPictures::windowPicturesHaveTheirSize_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    QTest::newRow("logo") << QStringLiteral(":/images/orvelle-logo.png") << QSize(256, 256);
    QTest::newRow("menu dots") << QStringLiteral(":/images/menu-dots.png") << QSize(128, 128);
    QTest::newRow("minimize") << QStringLiteral(":/images/minimize.png") << QSize(113, 113);
    QTest::newRow("cross") << QStringLiteral(":/images/cross.png") << QSize(113, 113);
    QTest::newRow("refresh") << QStringLiteral(":/images/refresh.png") << QSize(24, 24);
    QTest::newRow("refresh on fine screens") << QStringLiteral(":/images/refresh@2x.png") << QSize(48, 48);
}

void TestPictures::windowPicturesHaveTheirSize()
{
    QFETCH(QString, path);
    QTEST(QPixmap(path).size(), "size");
}

void TestPictures::iconHoldsSevenSizes()
{
    const QString path = QStringLiteral(":/images/orvelle-logo.ico");
    QImageReader reader(path);
    QVector<QSize> sizes;
    do {
        const QImage image = reader.read();
        QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
        sizes << image.size();
    } while (reader.jumpToNextImage());
    const QVector<QSize> expected{{16, 16}, {24, 24}, {32, 32}, {48, 48}, {64, 64}, {128, 128}, {256, 256}};
    QCOMPARE(sizes, expected);
    QVERIFY(!QIcon(path).pixmap(16, 16).isNull());
}

void TestPictures::buttonIconsAreLightOnTheButton_data()
{
    QTest::addColumn<QString>("path");
    for (const char *name : {"menu-dots", "minimize", "cross", "refresh"})
        QTest::newRow(name) << QStringLiteral(":/images/%1.png").arg(QLatin1String(name));
}

void TestPictures::buttonIconsAreLightOnTheButton()
{
    QFETCH(QString, path);
    const QImage shown = QIcon(path).pixmap(16, 16).toImage();
    QCOMPARE(shown.size(), QSize(16, 16));
    int clear = 0;
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            const QColor color = shown.pixelColor(x, y);
            clear += color.alpha() > 200 && color.lightness() > 200 ? 1 : 0;
        }
    }
    QVERIFY2(clear >= 10, qPrintable(QString::number(clear)));
    QCOMPARE(qAlpha(shown.pixel(0, 0)), 0);
}

void TestPictures::everyReferenceRowHasItsPicture_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("picture");
    const QJsonObject root = jsonObject(QStringLiteral(":/config/cameras_reference.json"));
    for (const QJsonValue &row : root.value(QStringLiteral("cameras")).toArray()) {
        const QString model = row[QStringLiteral("model")].toString();
        const QString file = row[QStringLiteral("thumbnail")].toString().mid(int(qstrlen("assets/")));
        QTest::newRow(qPrintable(model)) << model << QStringLiteral(":/images/") + file;
    }
}

void TestPictures::everyReferenceRowHasItsPicture()
{
    QFETCH(QString, model);
    QFETCH(QString, picture);
    LauncherConfig config;
    config.load();
    CameraInfo camera;
    camera.modelName = model + QStringLiteral(" 5MP");
    QCOMPARE(config.findThumbnailForCamera(camera), picture);
    QVERIFY(!QPixmap(picture).isNull());
}

void TestPictures::everyPictureBelongsToARow()
{
    QStringList expected{placeholder().mid(cameraFolder().size())};
    const QJsonObject root = jsonObject(QStringLiteral(":/config/cameras_reference.json"));
    for (const QJsonValue &row : root.value(QStringLiteral("cameras")).toArray())
        expected << row[QStringLiteral("thumbnail")].toString().mid(int(qstrlen("assets/cameras/")));
    expected.sort();
    QCOMPARE(cameraPictures(), expected);
}

void TestPictures::cameraPicturesLookRightInATooltip_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &name : cameraPictures())
        QTest::newRow(qPrintable(name)) << cameraFolder() + name;
}

void TestPictures::cameraPicturesLookRightInATooltip()
{
    QFETCH(QString, path);
    const QPixmap picture(path);
    // A whole multiple of what is shown stays sharp when it is scaled; one height keeps the tooltips alike.
    QCOMPARE(picture.size(), 3 * QSize(78, 70));
    const QImage shown = picture.scaledToWidth(78, Qt::SmoothTransformation).toImage();
    QVERIFY(visiblePixels(shown) > shown.width() * shown.height() / 3);
    QVERIFY2(qAlpha(shown.pixel(0, 0)) < 30, "The corner should let the tooltip's white through.");
}

void TestPictures::noTwoCamerasLookTheSame()
{
    QSet<QByteArray> contents;
    for (const QString &name : cameraPictures()) {
        QFile file(cameraFolder() + name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        contents << file.readAll();
    }
    QCOMPARE(contents.size(), cameraPictures().size());
}

void TestPictures::picturesStaySmall()
{
    qint64 bytes = 0;
    for (const QString &folder : {QStringLiteral(":/images"), QStringLiteral(":/images/cameras")}) {
        for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files))
            bytes += file.size();
    }
    QVERIFY2(bytes / 1024 < 450, qPrintable(QString::number(bytes)));
}

QTEST_MAIN(TestPictures)
#include "TestPictures.moc"
