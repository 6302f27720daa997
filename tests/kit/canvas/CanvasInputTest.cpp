#include "tests/kit/canvas/LiveCanvas.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/canvas/Minimap.h"

#include <QSignalSpy>
#include <QtTest>

class CanvasInputTest : public QObject
{
    Q_OBJECT

private slots:
    void wheelKeepsThePixelUnderThePointer();
    void smallWheelMovementsAddUp();
    void drawnRegionIsThatOfThePicture();
    void drawnLineIsThatOfThePicture();
    void smallerPictureCutsTheShapes();
    void shapeStaysInsideAPictureThatShrinksMeanwhile_data();
    void shapeStaysInsideAPictureThatShrinksMeanwhile();
    void pictureMayGoWhileSomethingIsDrawn();
    void keysChangeTheView();
    void keysChangeTheRegion();
    void draggingPans_data();
    void draggingPans();
    void minimapMovesTheView();
    void doubleClickTogglesFitAndActualSize();
    void pointerIsReported();
};

void CanvasInputTest::wheelKeepsThePixelUnderThePointer()
{
    for (const Orientation &orientation : allOrientations()) {
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

void CanvasInputTest::smallWheelMovementsAddUp()
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

void CanvasInputTest::drawnRegionIsThatOfThePicture()
{
    for (const Orientation &orientation : allOrientations()) {
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

void CanvasInputTest::drawnLineIsThatOfThePicture()
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

void CanvasInputTest::smallerPictureCutsTheShapes()
{
    LiveCanvas canvas({400, 400}, randomImage(120, 100));
    canvas.stopAnswering();
    canvas.setRegion({20, 30, 90, 60});
    canvas.setLine({10, 10, 110, 90});
    QSignalSpy regions(&canvas, &ImageCanvas::regionChanged);
    QSignalSpy lines(&canvas, &ImageCanvas::lineChanged);
    canvas.setPictureSize({60, 50});
    QCOMPARE(canvas.region(), QRect(20, 30, 40, 20));
    QVERIFY(canvas.line().isNull());
    QCOMPARE(regions.size(), 1);
    QCOMPARE(lines.size(), 1);
    canvas.clear();
    QCOMPARE(canvas.region(), QRect(20, 30, 40, 20)); // The next camera may have a picture of this size.
}

void CanvasInputTest::shapeStaysInsideAPictureThatShrinksMeanwhile_data()
{
    QTest::addColumn<ImageCanvas::Tool>("tool");
    QTest::addColumn<QPoint>("grabbed"); // A pixel.
    QTest::newRow("move a region") << ImageCanvas::Tool::Region << QPoint(70, 60);
    QTest::newRow("resize a region") << ImageCanvas::Tool::Region << QPoint(20, 60);
    QTest::newRow("move a line") << ImageCanvas::Tool::Line << QPoint(70, 60);
    QTest::newRow("move an end") << ImageCanvas::Tool::Line << QPoint(20, 30);
}

void CanvasInputTest::shapeStaysInsideAPictureThatShrinksMeanwhile()
{
    QFETCH(ImageCanvas::Tool, tool);
    QFETCH(QPoint, grabbed);
    LiveCanvas canvas({400, 400}, randomImage(120, 100));
    canvas.stopAnswering();
    canvas.setTool(tool);
    canvas.setRegion({20, 30, 100, 60});
    canvas.setLine({20, 30, 120 - 1, 90 - 1});
    const QPoint place = canvas.placeOf(grabbed);
    QTest::mousePress(&canvas, Qt::LeftButton, {}, place);
    canvas.setPictureSize({60, 50});
    canvas.movePointer(place + QPoint(10, 10), Qt::LeftButton);
    const QRect picture(0, 0, 60, 50);
    QVERIFY(picture.contains(canvas.region()) || canvas.region().isEmpty());
    QVERIFY(canvas.line().isNull()
        || (picture.contains(canvas.line().p1()) && picture.contains(canvas.line().p2())));
}

void CanvasInputTest::pictureMayGoWhileSomethingIsDrawn()
{
    LiveCanvas canvas({400, 400}, randomImage(120, 100));
    canvas.stopAnswering();
    canvas.setTool(ImageCanvas::Tool::Region);
    canvas.setRegion({20, 30, 90, 60});
    QSignalSpy finishes(&canvas, &ImageCanvas::drawingFinished);
    const QPoint corner = canvas.placeOf({20, 30});
    QTest::mousePress(&canvas, Qt::LeftButton, {}, corner);
    canvas.clear();
    canvas.movePointer(corner + QPoint(30, 30), Qt::LeftButton);
    QTest::mouseRelease(&canvas, Qt::LeftButton, {}, corner);
    QCOMPARE(canvas.region(), QRect(20, 30, 90, 60));
    QCOMPARE(finishes.size(), 0);
}

void CanvasInputTest::keysChangeTheView()
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

void CanvasInputTest::keysChangeTheRegion()
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
    QSignalSpy finishes(&canvas, &ImageCanvas::drawingFinished);
    QTest::keyClick(&canvas, Qt::Key_Return);
    QTest::keyClick(&canvas, Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(finishes.size(), 2);
    QTest::keyClick(&canvas, Qt::Key_Delete);
    QTest::keyClick(&canvas, Qt::Key_Return);
    QCOMPARE(finishes.size(), 2);
}

void CanvasInputTest::draggingPans_data()
{
    QTest::addColumn<ImageCanvas::Tool>("tool");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("hasSpace");
    QTest::newRow("pan") << ImageCanvas::Tool::Pan << int(Qt::LeftButton) << false;
    QTest::newRow("middle button") << ImageCanvas::Tool::Line << int(Qt::MiddleButton) << false;
    QTest::newRow("space") << ImageCanvas::Tool::Region << int(Qt::LeftButton) << true;
}

void CanvasInputTest::draggingPans()
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

void CanvasInputTest::minimapMovesTheView()
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

void CanvasInputTest::doubleClickTogglesFitAndActualSize()
{
    LiveCanvas canvas({400, 400}, randomImage(800, 800));
    QTest::mouseDClick(&canvas, Qt::LeftButton, {}, {100, 300});
    QCOMPARE(canvas.view().scale(), 1.0);
    QCOMPARE(canvas.view().toPicture({100, 300}), QPointF(200, 600));
    QTest::mouseDClick(&canvas, Qt::LeftButton, {}, {50, 50});
    QVERIFY(canvas.view().isFitted());
}

void CanvasInputTest::pointerIsReported()
{
    LiveCanvas canvas({400, 400}, randomImage(100, 50)); // The picture covers y = 100 to 300, at scale 4.
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

QTEST_MAIN(CanvasInputTest)

#include "CanvasInputTest.moc"
