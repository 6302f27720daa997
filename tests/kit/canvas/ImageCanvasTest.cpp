#include "tools/kit/canvas/ImageCanvas.h"
#include "tests/kit/canvas/LiveCanvas.h"
#include "tools/kit/canvas/CanvasColors.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

ImagePointer evenImage(std::uint32_t width, std::uint32_t height, std::uint64_t value)
{
    TestPicture picture("Mono8", width, height);
    picture.fill(8, value);
    return std::make_shared<CanvasImage>(picture);
}

QRgb pixelOf(const ImagePointer &image, const QPoint &pixel)
{
    const RawImage raw = rawImage(*image);
    const std::uint8_t *const bytes
        = raw.data + 3 * (std::size_t(pixel.y()) * raw.width + std::size_t(pixel.x()));
    return qRgb(bytes[0], bytes[1], bytes[2]);
}

} // namespace

class ImageCanvasTest : public QObject
{
    Q_OBJECT

private slots:
    void paintsThePixelsOfThePicture_data();
    void paintsThePixelsOfThePicture();
    void reducedPictureIsCopied();
    void requestCoversWhatIsVisible();
    void oldPictureStaysUntilTheNextOne();
    void pictureOfAnotherSizeIsStretched();
    void paintedComesOncePerPicture();
    void valuesAreWrittenIntoLargePixels();
    void noticeGreysThePicture();
    void overlaysAreDrawn();
};

void ImageCanvasTest::paintsThePixelsOfThePicture_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("scale"); // 0 for the fitted picture.
    QTest::newRow("fitted") << QSize(100, 90) << 0.0;
    QTest::newRow("1:1") << QSize(700, 500) << 1.0;
    QTest::newRow("enlarged") << QSize(700, 500) << 3.0;
}

void ImageCanvasTest::paintsThePixelsOfThePicture()
{
    QFETCH(QSize, size);
    QFETCH(double, scale);
    const ImagePointer image
        = randomImage(static_cast<std::uint32_t>(size.width()), static_cast<std::uint32_t>(size.height()));
    for (const Orientation &orientation : allOrientations()) {
        LiveCanvas canvas({400, 400}, image);
        canvas.setOrientation(orientation);
        while (canvas.view().scale() < scale)
            canvas.zoomIn();
        QCOMPARE(canvas.view().isFitted(), scale == 0);
        const QImage painting = canvas.painting();
        for (int y = 0; y < 200; y += 3) { // Below, other things are painted over the picture.
            for (int x = 0; x < 400; x += 3) {
                const auto pixel = canvas.view().pixelAt(QPointF(x + 0.5, y + 0.5));
                if (pixel && painting.pixel(x, y) != pixelOf(image, *pixel))
                    QFAIL(qPrintable(
                        QStringLiteral("(%1, %2), turned %3").arg(x).arg(y).arg(orientation.quarterTurns)));
            }
        }
    }
}

void ImageCanvasTest::reducedPictureIsCopied()
{
    LiveCanvas canvas({400, 330}, randomImage(1000, 700));
    const QImage painting = canvas.painting();
    const QImage pixels = canvas.picture().pixels;
    QCOMPARE(pixels.size(), QSize(400, 280));
    const QRect place = canvas.view().toDevice(QRectF(0, 0, 1000, 700));
    QCOMPARE(painting.copy(QRect(place.topLeft(), QSize(400, 150))).convertToFormat(QImage::Format_RGB32),
        pixels.copy(0, 0, 400, 150));
    QCOMPARE(painting.pixel(5, 5), canvascolors::background);
}

void ImageCanvasTest::requestCoversWhatIsVisible()
{
    LiveCanvas canvas({400, 300}, randomImage(800, 600));
    canvas.stopAnswering();
    QSignalSpy changes(&canvas, &ImageCanvas::requestChanged);
    QCOMPARE(canvas.request().region, QRect(0, 0, 800, 600));
    QCOMPARE(canvas.request().size, QSize(400, 300));
    QCOMPARE(canvas.request().pictureSize, QSize(800, 600));
    canvas.showActualSize();
    QCOMPARE(changes.size(), 1);
    QCOMPARE(canvas.request().region, QRect(200, 150, 400, 300));
    while (canvas.view().scale() < 8)
        canvas.zoomIn();
    QCOMPARE(canvas.request().region, QRect(375, 281, 50, 38));
    QCOMPARE(canvas.request().size, QSize(50, 38));
    changes.clear();
    canvas.rotateRight();
    QCOMPARE(canvas.request().region, QRect(381, 275, 38, 50));
    QCOMPARE(changes.size(), 1);
    canvas.resize(200, 100);
    QCOMPARE(changes.size(), 2);
    canvas.setPictureSize({640, 480});
    QCOMPARE(changes.size(), 3);
    DisplaySettings settings;
    settings.hasClipMarks = true;
    canvas.setDisplaySettings(settings);
    QCOMPARE(changes.size(), 4);
    QVERIFY(canvas.request().settings.hasClipMarks);
    canvas.setGrid(true); // Changes nothing that has to be converted.
    QCOMPARE(changes.size(), 4);
}

void ImageCanvasTest::oldPictureStaysUntilTheNextOne()
{
    TestPicture halves("Mono8", 400, 400);
    for (std::size_t i = 0; i < 400 * 400; ++i)
        halves.set(i, 8, i % 400 < 200 ? 200 : 50);
    LiveCanvas canvas({400, 400}, std::make_shared<CanvasImage>(halves));
    canvas.stopAnswering();
    canvas.zoomIn();
    canvas.zoomIn(); // Scale 2.
    QImage painting = canvas.painting();
    QCOMPARE(painting.pixel(20, 100), qRgb(200, 200, 200));
    QCOMPARE(painting.pixel(380, 100), qRgb(50, 50, 50));
    canvas.answer(); // Only the middle of the picture.
    QTest::keyClick(&canvas, Qt::Key_Left, Qt::ShiftModifier);
    painting = canvas.painting(); // What was not visible before comes from the picture of everything.
    QCOMPARE(painting.pixel(20, 100), qRgb(200, 200, 200));
    QCOMPARE(painting.pixel(395, 20), qRgb(200, 200, 200));
    canvas.fit();
    QCOMPARE(canvas.painting().pixel(380, 20), qRgb(50, 50, 50));
}

void ImageCanvasTest::pictureOfAnotherSizeIsStretched()
{
    LiveCanvas canvas({400, 400}, evenImage(200, 200, 100));
    canvas.stopAnswering();
    canvas.setPictureSize({400, 200});
    const QImage painting = canvas.painting();
    QCOMPARE(painting.pixel(395, 110), qRgb(100, 100, 100));
    QCOMPARE(painting.pixel(395, 90), canvascolors::background);
    canvas.clear();
    QVERIFY(canvas.request().region.isEmpty());
    QCOMPARE(canvas.painting().pixel(200, 150), canvascolors::background);
}

void ImageCanvasTest::paintedComesOncePerPicture()
{
    LiveCanvas canvas({400, 400}, evenImage(200, 200, 100));
    QVERIFY(QTest::qWaitForWindowExposed(&canvas));
    canvas.painting();
    QSignalSpy painted(&canvas, &ImageCanvas::painted);
    canvas.painting();
    QCOMPARE(painted.size(), 0);
    canvas.answer();
    canvas.answer();
    QTRY_COMPARE_WITH_TIMEOUT(painted.size(), 1, 10000);
    canvas.painting();
    QCOMPARE(painted.size(), 1);
}

void ImageCanvasTest::valuesAreWrittenIntoLargePixels()
{
    for (const auto &[value, ink] : {std::pair(20U, qRgb(255, 255, 255)), std::pair(230U, qRgb(0, 0, 0))}) {
        LiveCanvas canvas({400, 400}, evenImage(200, 200, value));
        const auto inkOfPixel = [&canvas, color = ink] {
            const QRect cell = canvas.view().toDevice(QRectF(100, 97, 1, 1)).adjusted(2, 2, -2, -2);
            const QImage pixel = canvas.painting().copy(cell);
            int count = 0;
            for (int i = 0; i < pixel.width() * pixel.height(); ++i)
                count += pixel.pixel(i % pixel.width(), i / pixel.width()) == color ? 1 : 0;
            return count;
        };
        while (canvas.view().scale() < 24)
            canvas.zoomIn();
        QCOMPARE(inkOfPixel(), 0);
        canvas.zoomIn();
        QCOMPARE(canvas.view().scale(), 32.0);
        QVERIFY(inkOfPixel() > 0);
    }
}

void ImageCanvasTest::noticeGreysThePicture()
{
    LiveCanvas canvas({400, 400}, randomImage(40, 40));
    const QColor before = canvas.painting().pixelColor(200, 200);
    const QString description = canvas.accessibleDescription();
    canvas.setNotice(QStringLiteral("The camera is gone."));
    const QImage painting = canvas.painting();
    QVERIFY(painting.pixelColor(200, 200) != before);
    QCOMPARE(painting.pixel(14, 20), canvascolors::warning);
    QCOMPARE(canvas.accessibleDescription(), QStringLiteral("The camera is gone."));
    canvas.answer(); // A picture that was on its way is greyed too.
    QCOMPARE(canvas.painting(), painting);
    canvas.setNotice({});
    QCOMPARE(canvas.painting().pixelColor(200, 200), before);
    QCOMPARE(canvas.accessibleDescription(), description);
}

void ImageCanvasTest::overlaysAreDrawn()
{
    LiveCanvas canvas({400, 400}, evenImage(200, 200, 100));
    const QImage plain = canvas.painting();
    const auto isChangedBy = [&canvas, &plain](auto &&change, const QPoint &place) {
        change(true);
        const bool isChanged = canvas.painting().pixel(place) != plain.pixel(place);
        change(false);
        return isChanged && canvas.painting() == plain;
    };
    QVERIFY(isChangedBy([&canvas](bool on) { canvas.setGrid(on); }, {100, 300})); // At x = 50.
    QVERIFY(isChangedBy([&canvas](bool on) { canvas.setCrosshair(on); }, {200, 50}));
    QVERIFY(isChangedBy(
        [&canvas](bool on) { canvas.setRegion(on ? QRect(20, 20, 50, 50) : QRect()); }, {40, 80}));
    QVERIFY(
        isChangedBy([&canvas](bool on) { canvas.setLine(on ? QLine(20, 20, 20, 90) : QLine()); }, {41, 80}));
    canvas.setMicrometresPerPixel(0.7); // The scale bar gets another length.
    QVERIFY(canvas.painting() != plain);
}

QTEST_MAIN(ImageCanvasTest)

#include "ImageCanvasTest.moc"
