#include "tests/kit/picture/TestPicture.h"
#include "tools/kit/canvas/LengthText.h"
#include "tools/kit/canvas/LineTool.h"
#include "tools/kit/canvas/Minimap.h"
#include "tools/kit/canvas/PixelValuePainter.h"
#include "tools/kit/canvas/PleasantNumbers.h"
#include "tools/kit/canvas/RegionTool.h"

#include <QtTest>

namespace {

constexpr QSize picture(640, 480);

/// Returns a view at scale 2 whose middle shows the middle of the picture.
ViewTransform doubledView(const Orientation &orientation = {})
{
    ViewTransform view;
    view.setViewSize({800, 600}, 1);
    view.setPictureSize(picture);
    view.setOrientation(orientation);
    view.setScale(2, {400, 300});
    view.centerOn({320, 240});
    return view;
}

/// Drags from one point of the picture to another one.
void drag(DrawingTool &tool, const ViewTransform &view, const QPointF &from, const QPointF &to)
{
    tool.press(view, view.toView(from));
    tool.drag(view, view.toView((from + to) / 2));
    tool.drag(view, view.toView(to));
}

QVector<Orientation> orientations()
{
    return {{0, false}, {1, false}, {2, false}, {3, false}, {0, true}, {1, true}, {2, true}, {3, true}};
}

} // namespace

class CanvasToolsTest : public QObject
{
    Q_OBJECT

private slots:
    void regionIsDrawnInEveryOrientation();
    void regionIsChanged_data();
    void regionIsChanged();
    void cursorTellsTheDirectionOnTheScreen();
    void lineIsDrawnAndChanged();
    void keysMoveShapesInsideThePicture();
    void minimapShowsTheVisibleFrame();
    void numbersArePleasant_data();
    void numbersArePleasant();
    void lengthsHaveAUnit();
    void valuesHaveAllDigits_data();
    void valuesHaveAllDigits();
};

void CanvasToolsTest::regionIsDrawnInEveryOrientation()
{
    for (const Orientation &orientation : orientations()) {
        const ViewTransform view = doubledView(orientation);
        RegionTool tool;
        drag(tool, view, {300.5, 180.5}, {349.5, 259.5});
        QCOMPARE(tool.region(), QRect(300, 180, 50, 80));
        tool.remove();
        drag(tool, view, {349.5, 259.5}, {300.5, 180.5}); // The region is drawn from the other end.
        QCOMPARE(tool.region(), QRect(300, 180, 50, 80));
    }
    RegionTool tool;
    const ViewTransform view = doubledView();
    drag(tool, view, {300.5, 180.5}, {-9000, 9000}); // Drawn beyond the picture.
    QCOMPARE(tool.region(), QRect(0, 180, 301, 300));
    tool.remove();
    drag(tool, view, {300, 300}, {300.5, 300}); // A click that trembles draws nothing.
    QVERIFY(tool.isEmpty());
}

void CanvasToolsTest::regionIsChanged_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<QRect>("region"); // The region before the drag has 100 x 60 pixels at (300, 200).
    QTest::newRow("move") << QPointF(350, 230) << QPointF(340, 235) << QRect(290, 205, 100, 60);
    QTest::newRow("move beyond") << QPointF(350, 230) << QPointF(9000, -9000) << QRect(540, 0, 100, 60);
    QTest::newRow("left") << QPointF(300, 230) << QPointF(280, 300) << QRect(280, 200, 120, 60);
    QTest::newRow("right") << QPointF(401, 230) << QPointF(420, 300) << QRect(300, 200, 120, 60);
    QTest::newRow("top") << QPointF(350, 199) << QPointF(0, 210) << QRect(300, 210, 100, 50);
    QTest::newRow("corner") << QPointF(400, 260) << QPointF(410, 250) << QRect(300, 200, 110, 50);
    QTest::newRow("other corner") << QPointF(300, 260) << QPointF(310, 290) << QRect(310, 200, 90, 90);
    QTest::newRow("across") << QPointF(300, 230) << QPointF(450, 230) << QRect(400, 200, 50, 60);
    QTest::newRow("no width") << QPointF(300, 230) << QPointF(400, 230) << QRect(400, 200, 1, 60);
    QTest::newRow("new one") << QPointF(420.5, 300.5) << QPointF(430.5, 310.5) << QRect(420, 300, 11, 11);
}

void CanvasToolsTest::regionIsChanged()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    for (const Orientation &orientation : orientations()) {
        RegionTool tool;
        tool.setRegion({300, 200, 100, 60});
        drag(tool, doubledView(orientation), from, to);
        QTEST(tool.region(), "region");
    }
}

void CanvasToolsTest::cursorTellsTheDirectionOnTheScreen()
{
    RegionTool tool;
    tool.setRegion({300, 200, 100, 60});
    const auto cursor = [&tool](const Orientation &orientation, const QPointF &point) {
        const ViewTransform view = doubledView(orientation);
        return tool.cursor(view, view.toView(point));
    };
    QCOMPARE(cursor({}, {350, 230}), Qt::SizeAllCursor);
    QCOMPARE(cursor({}, {100, 100}), Qt::CrossCursor);
    QCOMPARE(cursor({}, {300, 230}), Qt::SizeHorCursor);
    QCOMPARE(cursor({1, false}, {300, 230}), Qt::SizeVerCursor);
    QCOMPARE(cursor({}, {300, 200}), Qt::SizeFDiagCursor);
    QCOMPARE(cursor({0, true}, {300, 200}), Qt::SizeBDiagCursor);
}

void CanvasToolsTest::lineIsDrawnAndChanged()
{
    for (const Orientation &orientation : orientations()) {
        const ViewTransform view = doubledView(orientation);
        LineTool tool;
        drag(tool, view, {300.5, 200.5}, {400.5, 250.5});
        QCOMPARE(tool.line(), QLine(300, 200, 400, 250));
        drag(tool, view, {400.5, 250.5}, {410.5, 220.5});
        QCOMPARE(tool.line(), QLine(300, 200, 410, 220));
        drag(tool, view, {300.5, 200.5}, {310.5, 200.5});
        QCOMPARE(tool.line(), QLine(310, 200, 410, 220));
        drag(tool, view, {360.5, 210.5}, {365.5, 230.5});
        QCOMPARE(tool.line(), QLine(315, 220, 415, 240));
        drag(tool, view, {320.5, 300.5}, {330.5, 310.5});
        QCOMPARE(tool.line(), QLine(320, 300, 330, 310));
    }
}

void CanvasToolsTest::keysMoveShapesInsideThePicture()
{
    RegionTool region;
    region.create({100, 100, 200, 100});
    QCOMPARE(region.region(), QRect(150, 125, 100, 50));
    region.moveBy({-1, 2}, picture);
    region.resizeBy({3, -1}, picture);
    QCOMPARE(region.region(), QRect(149, 127, 103, 49));
    region.moveBy({9000, -9000}, picture);
    QCOMPARE(region.region(), QRect(537, 0, 103, 49));
    region.resizeBy({9, -9000}, picture);
    QCOMPARE(region.region(), QRect(537, 0, 103, 1));

    LineTool line;
    line.create({100, 100, 200, 100});
    QCOMPARE(line.line(), QLine(150, 149, 249, 149));
    line.resizeBy({0, 10}, picture);
    line.moveBy({-200, -1}, picture);
    QCOMPARE(line.line(), QLine(0, 148, 99, 158));
}

void CanvasToolsTest::minimapShowsTheVisibleFrame()
{
    for (const Orientation &orientation : orientations()) {
        ViewTransform view = doubledView(orientation);
        const Minimap map(view);
        QVERIFY(map.isVisible());
        QVERIFY(QRectF(0, 0, 800, 600).contains(map.rect()));
        QCOMPARE(map.toPicture(map.rect().center()), QPointF(320, 240));
        // The frame has the share of the outline that the visible region has of the picture.
        const QRectF visible(view.visibleRegion());
        const double share
            = map.frame().width() * map.frame().height() / (map.rect().width() * map.rect().height());
        QVERIFY(qAbs(share - visible.width() * visible.height() / (640 * 480)) < 1e-6);
        QVERIFY(QLineF(map.toPicture(map.frame().center()), visible.center()).length() < 1e-6);
        view.fit();
        QVERIFY(!Minimap(view).isVisible());
    }
}

void CanvasToolsTest::numbersArePleasant_data()
{
    QTest::addColumn<double>("limit");
    QTest::addColumn<double>("atMost");
    QTest::addColumn<double>("atLeast");
    QTest::newRow("1") << 1.0 << 1.0 << 1.0;
    QTest::newRow("1.5") << 1.5 << 1.0 << 2.0;
    QTest::newRow("4.99") << 4.99 << 2.0 << 5.0;
    QTest::newRow("5") << 5.0 << 5.0 << 5.0;
    QTest::newRow("999") << 999.0 << 500.0 << 1000.0;
    QTest::newRow("1000") << 1000.0 << 1000.0 << 1000.0;
    QTest::newRow("0.03") << 0.03 << 0.02 << 0.05;
}

void CanvasToolsTest::numbersArePleasant()
{
    QFETCH(double, limit);
    QTEST(pleasantAtMost(limit), "atMost");
    QTEST(pleasantAtLeast(limit), "atLeast");
}

void CanvasToolsTest::lengthsHaveAUnit()
{
    QLocale::setDefault(QLocale::C);
    QCOMPARE(LengthText::length(12.34, 0), QStringLiteral("12.3 px"));
    QCOMPARE(LengthText::length(12, 3.5), QStringLiteral("12.0 px (42 µm)"));
    QCOMPARE(LengthText::size({640, 100}, 2.5), QStringLiteral("640 × 100 px (1.6 mm × 250 µm)"));
    QCOMPARE(LengthText::size({640, 100}, 0), QStringLiteral("640 × 100 px"));
}

void CanvasToolsTest::valuesHaveAllDigits_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<unsigned>("bits");
    QTest::addColumn<QVector<quint64>>("components"); // What the pixel (1, 0) has in memory.
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char *format, unsigned bits, const QVector<quint64> &components,
                         const QStringList &lines) {
        QTest::newRow(format) << QString::fromLatin1(format) << bits << components << lines;
    };
    row("Mono12p", 12, {4095}, {QStringLiteral("4095")});
    row("BayerRG12p", 12, {1234}, {QStringLiteral("1234")});
    row("BGR8", 8, {1, 22, 255}, {QStringLiteral("255"), QStringLiteral("22"), QStringLiteral("1")});
    row("Mono8s", 8, {0x80}, {QStringLiteral("-128")});
    row("Mono32", 32, {4294967295}, {QStringLiteral("4294967295")});
    row("Data32f", 32, {0xC0490FDB}, {QStringLiteral("-3.14159")});
}

void CanvasToolsTest::valuesHaveAllDigits()
{
    QFETCH(QString, format);
    QFETCH(unsigned, bits);
    QFETCH(QVector<quint64>, components);
    TestPicture image(format.toStdString(), 2, 1);
    for (int i = 0; i < components.size(); ++i)
        image.set(static_cast<std::size_t>(components.size() + i), bits, components[i]);
    QStringList lines;
    for (const std::string &line : PixelValuePainter::lines(image.raw(), {1, 0}))
        lines.append(QString::fromStdString(line));
    QTEST(lines, "lines");
}

QTEST_MAIN(CanvasToolsTest)

#include "CanvasToolsTest.moc"
