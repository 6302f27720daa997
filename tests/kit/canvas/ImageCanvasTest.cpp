#include "tools/kit/canvas/ImageCanvas.h"
#include "tests/kit/canvas/CanvasImage.h"
#include "tools/kit/canvas/CanvasColors.h"
#include "tools/kit/canvas/Minimap.h"

#include <QSignalSpy>
#include <QWheelEvent>
#include <QtTest>

namespace {

using ImagePointer = std::shared_ptr<const CvxCPP::Image>;

/// Returns a picture of random colours.
ImagePointer randomImage(std::uint32_t width, std::uint32_t height)
{
    return std::make_shared<CanvasImage>(TestPicture("RGB8", width, height).fillRandomly());
}

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

QVector<Orientation> orientations()
{
    return {{0, false}, {1, false}, {2, false}, {3, false}, {0, true}, {1, true}, {2, true}, {3, true}};
}

/// A canvas on the screen that answers each request, as long as it is connected.
class LiveCanvas : public ImageCanvas
{
public:
    LiveCanvas(const QSize &size, const ImagePointer &image) : m_image(image)
    {
        resize(size);
        QWidget::show();
        ::show(*this, image);
        m_answering = connect(this, &ImageCanvas::requestChanged, this, [this] { answer(); });
    }

    void stopAnswering() { disconnect(m_answering); }
    void answer() { setPicture(shownPicture(m_image, request())); }
    QImage painting() { return grab().toImage(); }

    QPoint placeOf(const QPoint &pixel) const
    {
        return view().toView(QPointF(pixel) + QPointF(0.5, 0.5)).toPoint();
    }
    void turnWheel(const QPointF &place, const QPoint &angle)
    {
        QWheelEvent event(place, mapToGlobal(place.toPoint()), {}, angle, Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(this, &event);
    }
    // QTest::mouseMove() reports no pressed button.
    void movePointer(const QPoint &place, Qt::MouseButtons buttons = {})
    {
        QMouseEvent event(
            QEvent::MouseMove, place, mapToGlobal(place), Qt::NoButton, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &event);
    }
    void drag(Qt::MouseButton button, const QPoint &from, const QPoint &to)
    {
        QTest::mousePress(this, button, {}, from);
        movePointer((from + to) / 2, button);
        movePointer(to, button);
        QTest::mouseRelease(this, button, {}, to);
    }

private:
    ImagePointer m_image;
    QMetaObject::Connection m_answering;
};

} // namespace

class ImageCanvasTest : public QObject
{
    Q_OBJECT

private slots:
    void paintsThePixelsOfThePicture_data();
    void paintsThePixelsOfThePicture();
    void reducedPictureIsCopied();
    void requestCoversWhatIsVisible();
    void wheelKeepsThePixelUnderThePointer();
    void smallWheelMovementsAddUp();
    void oldPictureStaysUntilTheNextOne();
    void pictureOfAnotherSizeIsStretched();
    void paintedComesOncePerPicture();
    void valuesAreWrittenIntoLargePixels();
    void drawnRegionIsThatOfThePicture();
    void drawnLineIsThatOfThePicture();
    void keysChangeTheView();
    void keysChangeTheRegion();
    void draggingPans_data();
    void draggingPans();
    void minimapMovesTheView();
    void doubleClickTogglesFitAndActualSize();
    void pointerIsReported();
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
    for (const Orientation &orientation : orientations()) {
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

void ImageCanvasTest::wheelKeepsThePixelUnderThePointer()
{
    for (const Orientation &orientation : orientations()) {
        LiveCanvas canvas({400, 400}, randomImage(100, 90));
        canvas.setOrientation(orientation);
        const QPointF place = canvas.view().toView(QPointF(20.5, 60.5));
        for (int i = 0; i < 8; ++i) {
            canvas.turnWheel(place, {0, 120});
            QCOMPARE(canvas.view().pixelAt(place), std::optional(QPoint(20, 60)));
        }
        QCOMPARE(canvas.view().scale(), 64.0);
        for (int i = 0; i < 6; ++i)
            canvas.turnWheel(place, {0, -120});
        QCOMPARE(canvas.view().pixelAt(place), std::optional(QPoint(20, 60)));
    }
}

void ImageCanvasTest::smallWheelMovementsAddUp()
{
    LiveCanvas canvas({400, 400}, randomImage(400, 400));
    for (int i = 0; i < 7; ++i)
        canvas.turnWheel({200, 200}, {0, 15});
    QCOMPARE(canvas.view().scale(), 1.0);
    canvas.turnWheel({200, 200}, {0, 15});
    QCOMPARE(canvas.view().scale(), 1.5);
    for (int i = 0; i < 7; ++i)
        canvas.turnWheel({200, 200}, {0, -15});
    QCOMPARE(canvas.view().scale(), 1.5);
    canvas.turnWheel({200, 200}, {0, -15});
    QVERIFY(canvas.view().isFitted());
    canvas.turnWheel({200, 200}, {0, 240});
    const QPointF before = canvas.view().toView(QPointF(200, 200));
    canvas.turnWheel({200, 200}, {120, 10}); // To the side.
    QCOMPARE(canvas.view().toView(QPointF(200, 200)), before + QPointF(40, 0));
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

void ImageCanvasTest::drawnRegionIsThatOfThePicture()
{
    for (const Orientation &orientation : orientations()) {
        LiveCanvas canvas({600, 600}, randomImage(120, 100));
        canvas.setOrientation(orientation);
        canvas.setTool(ImageCanvas::Tool::Region);
        QSignalSpy changes(&canvas, &ImageCanvas::regionChanged);
        canvas.drag(Qt::LeftButton, canvas.placeOf({20, 30}), canvas.placeOf({59, 44}));
        QCOMPARE(canvas.region(), QRect(20, 30, 40, 15));
        QCOMPARE(changes.last().first().toRect(), canvas.region());
        QTest::keyClick(&canvas, Qt::Key_Delete);
        QVERIFY(canvas.region().isEmpty());
        QVERIFY(changes.last().first().toRect().isEmpty());
    }
}

void ImageCanvasTest::drawnLineIsThatOfThePicture()
{
    LiveCanvas canvas({600, 600}, randomImage(120, 100));
    canvas.rotateLeft();
    canvas.setTool(ImageCanvas::Tool::Line);
    QSignalSpy changes(&canvas, &ImageCanvas::lineChanged);
    canvas.drag(Qt::LeftButton, canvas.placeOf({20, 30}), canvas.placeOf({59, 44}));
    QCOMPARE(canvas.line(), QLine(20, 30, 59, 44));
    QCOMPARE(changes.last().first().toLine(), canvas.line());
    changes.clear();
    canvas.setLine({1, 2, 3, 4}); // By the program.
    QCOMPARE(changes.size(), 0);
}

void ImageCanvasTest::keysChangeTheView()
{
    LiveCanvas canvas({400, 400}, randomImage(800, 800));
    canvas.setTool(ImageCanvas::Tool::Region);
    QSignalSpy views(&canvas, &ImageCanvas::viewChanged);
    QTest::keyClick(&canvas, Qt::Key_1);
    QCOMPARE(canvas.view().scale(), 1.0);
    QTest::keyClick(&canvas, Qt::Key_Plus);
    QCOMPARE(canvas.view().scale(), 1.5);
    QTest::keyClick(&canvas, Qt::Key_Minus);
    QCOMPARE(canvas.view().scale(), 1.0);
    QCOMPARE(views.size(), 3);
    const auto middle = [&canvas] { return canvas.view().toPicture({200, 200}); };
    QTest::keyClick(&canvas, Qt::Key_Right);
    QCOMPARE(middle(), QPointF(440, 400));
    QTest::keyClick(&canvas, Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(middle(), QPointF(440, 200));
    QCOMPARE(views.size(), 3); // The scale is the same.
    QTest::keyClick(&canvas, Qt::Key_0);
    QVERIFY(canvas.view().isFitted());
}

void ImageCanvasTest::keysChangeTheRegion()
{
    LiveCanvas canvas({400, 400}, randomImage(200, 200));
    canvas.rotateRight();
    canvas.setTool(ImageCanvas::Tool::Region);
    QTest::keyClick(&canvas, Qt::Key_Insert);
    QCOMPARE(canvas.region(), QRect(50, 50, 100, 100));
    QTest::keyClick(&canvas, Qt::Key_Right, Qt::ControlModifier); // On the screen; up in the picture.
    QCOMPARE(canvas.region(), QRect(50, 49, 100, 100));
    QTest::keyClick(&canvas, Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(canvas.region(), QRect(50, 49, 101, 100));
}

void ImageCanvasTest::draggingPans_data()
{
    QTest::addColumn<ImageCanvas::Tool>("tool");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("hasSpace");
    QTest::newRow("pan") << ImageCanvas::Tool::Pan << int(Qt::LeftButton) << false;
    QTest::newRow("middle button") << ImageCanvas::Tool::Line << int(Qt::MiddleButton) << false;
    QTest::newRow("space") << ImageCanvas::Tool::Region << int(Qt::LeftButton) << true;
}

void ImageCanvasTest::draggingPans()
{
    QFETCH(ImageCanvas::Tool, tool);
    QFETCH(int, button);
    QFETCH(bool, hasSpace);
    LiveCanvas canvas({400, 400}, randomImage(800, 800));
    canvas.setTool(tool);
    canvas.showActualSize();
    if (hasSpace)
        QTest::keyPress(&canvas, Qt::Key_Space);
    canvas.drag(static_cast<Qt::MouseButton>(button), {100, 100}, {130, 80});
    QCOMPARE(canvas.view().toPicture({200, 200}), QPointF(370, 420));
    QVERIFY(canvas.region().isEmpty() && canvas.line().isNull());
    QTest::keyRelease(&canvas, Qt::Key_Space);
    canvas.drag(Qt::LeftButton, {100, 100}, {130, 80});
    QCOMPARE(canvas.region().isEmpty(), tool != ImageCanvas::Tool::Region);
}

void ImageCanvasTest::minimapMovesTheView()
{
    LiveCanvas canvas({400, 400}, randomImage(800, 800));
    canvas.setTool(ImageCanvas::Tool::Region);
    canvas.showActualSize();
    const QRectF map = Minimap(canvas.view()).rect();
    canvas.drag(Qt::LeftButton, map.center().toPoint(),
        (map.topLeft() + QPointF(map.width() / 4, map.height() / 4)).toPoint());
    QVERIFY((canvas.view().toPicture({200, 200}) - QPointF(200, 200)).manhattanLength() < 16);
    QVERIFY(canvas.region().isEmpty());
}

void ImageCanvasTest::doubleClickTogglesFitAndActualSize()
{
    LiveCanvas canvas({400, 400}, randomImage(800, 800));
    QTest::mouseDClick(&canvas, Qt::LeftButton, {}, {100, 300});
    QCOMPARE(canvas.view().scale(), 1.0);
    QCOMPARE(canvas.view().toPicture({100, 300}), QPointF(200, 600));
    QTest::mouseDClick(&canvas, Qt::LeftButton, {}, {50, 50});
    QVERIFY(canvas.view().isFitted());
}

void ImageCanvasTest::pointerIsReported()
{
    LiveCanvas canvas({400, 400}, randomImage(100, 50)); // From y = 100 to 300, at scale 4.
    canvas.setTool(ImageCanvas::Tool::Pick);
    QSignalSpy moves(&canvas, &ImageCanvas::pointerMoved);
    QSignalSpy leaves(&canvas, &ImageCanvas::pointerLeft);
    QSignalSpy picks(&canvas, &ImageCanvas::picked);
    canvas.movePointer({41, 121});
    canvas.movePointer({42, 122}); // The same pixel.
    QCOMPARE(moves.size(), 1);
    QCOMPARE(moves.last().first().toPoint(), QPoint(10, 5));
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, {41, 121});
    QCOMPARE(picks.last().first().toPoint(), QPoint(10, 5));
    canvas.mirrorHorizontally(); // Another pixel comes to the pointer.
    QCOMPARE(moves.last().first().toPoint(), QPoint(89, 5));
    canvas.movePointer({41, 50});
    QCOMPARE(leaves.size(), 1);
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, {41, 50});
    QCOMPARE(picks.size(), 1);
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
