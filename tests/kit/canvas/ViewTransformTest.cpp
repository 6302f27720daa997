#include "tools/kit/canvas/ViewTransform.h"

#include <QtTest>

#include <cmath>

namespace {

constexpr QSize picture(640, 480);
constexpr QSizeF window(800, 500);

ViewTransform viewOf(const QSize &pictureSize, const QSizeF &viewSize, double ratio = 1)
{
    ViewTransform view;
    view.setViewSize(viewSize, ratio);
    view.setPictureSize(pictureSize);
    return view;
}

QVector<Orientation> allOrientations()
{
    QVector<Orientation> result;
    for (int turns = 0; turns < 4; ++turns)
        for (const bool isMirrored : {false, true})
            result.append({turns, isMirrored});
    return result;
}

double distance(const QPointF &first, const QPointF &second)
{
    return QLineF(first, second).length();
}

} // namespace

class ViewTransformTest : public QObject
{
    Q_OBJECT

private slots:
    void fitsAndKeepsFitting_data();
    void fitsAndKeepsFitting();
    void orientationsTurnThePicture_data();
    void orientationsTurnThePicture();
    void turningActsOnWhatIsSeen();
    void coordinatesRoundTrip();
    void zoomKeepsTheAnchor();
    void zoomFollowsPleasantScales();
    void scaleHasLimits();
    void pictureCannotBeLost();
    void windowChangeKeepsTheMiddle();
    void visibleRegionIsExact_data();
    void visibleRegionIsExact();
    void outputHasThePixelsOfTheScreen_data();
    void outputHasThePixelsOfTheScreen();
    void thinPicturesStayVisible();
    void emptyViewShowsNothing();
};

void ViewTransformTest::fitsAndKeepsFitting_data()
{
    QTest::addColumn<QSize>("pictureSize");
    QTest::addColumn<QSizeF>("viewSize");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("turns");
    QTest::addColumn<double>("scale");
    QTest::addColumn<QRectF>("place");
    QTest::newRow("high") << QSize(100, 400) << QSizeF(800, 200) << 1.0 << 0 << 0.5
                          << QRectF(375, 0, 50, 200);
    QTest::newRow("wide") << QSize(1600, 400) << QSizeF(800, 400) << 1.0 << 0 << 0.5
                          << QRectF(0, 100, 800, 200);
    QTest::newRow("turned") << QSize(400, 100) << QSizeF(800, 200) << 1.0 << 1 << 0.5
                            << QRectF(375, 0, 50, 200);
    QTest::newRow("small") << QSize(80, 40) << QSizeF(800, 800) << 1.0 << 2 << 10.0
                           << QRectF(0, 200, 800, 400);
    QTest::newRow("sharp screen") << QSize(1600, 400) << QSizeF(800, 400) << 2.0 << 0 << 1.0
                                  << QRectF(0, 100, 800, 200);
    QTest::newRow("one pixel") << QSize(1, 1) << QSizeF(800, 600) << 1.0 << 0 << 128.0
                               << QRectF(336, 236, 128, 128);
}

void ViewTransformTest::fitsAndKeepsFitting()
{
    QFETCH(QSize, pictureSize);
    QFETCH(QSizeF, viewSize);
    QFETCH(double, ratio);
    QFETCH(int, turns);
    ViewTransform view = viewOf(picture, window); // Everything changes after this.
    view.setOrientation({turns, false});
    view.setViewSize(viewSize, ratio);
    view.setPictureSize(pictureSize);
    QVERIFY(view.isFitted());
    QTEST(view.scale(), "scale");
    QTEST(view.toView(QRectF(QPointF(), pictureSize)), "place");
    QCOMPARE(view.visibleRegion(), QRect(QPoint(), pictureSize));
}

void ViewTransformTest::orientationsTurnThePicture_data()
{
    QTest::addColumn<int>("turns");
    QTest::addColumn<bool>("isMirrored");
    QTest::addColumn<QPointF>("place"); // Where the point (1, 0.5) of a picture of 4 x 3 is shown.
    QTest::newRow("plain") << 0 << false << QPointF(1, 0.5);
    QTest::newRow("right") << 1 << false << QPointF(2.5, 1);
    QTest::newRow("half") << 2 << false << QPointF(3, 2.5);
    QTest::newRow("left") << 3 << false << QPointF(0.5, 3);
    QTest::newRow("mirrored") << 0 << true << QPointF(3, 0.5);
    QTest::newRow("mirrored, right") << 1 << true << QPointF(2.5, 3);
    QTest::newRow("mirrored, half") << 2 << true << QPointF(1, 2.5);
    QTest::newRow("mirrored, left") << 3 << true << QPointF(0.5, 1);
}

void ViewTransformTest::orientationsTurnThePicture()
{
    QFETCH(int, turns);
    QFETCH(bool, isMirrored);
    QTEST((Orientation{turns, isMirrored}.transform(QSizeF(4, 3)).map(QPointF(1, 0.5))), "place");
}

void ViewTransformTest::turningActsOnWhatIsSeen()
{
    constexpr QSize square(400, 400); // So that a point can be followed through quarter turns.
    for (const Orientation &orientation : allOrientations()) {
        ViewTransform view = viewOf(square, QSizeF(400, 400));
        view.setOrientation(orientation);
        const QPointF point(100, 50);
        const QPointF seen = view.toView(point);
        view.mirrorHorizontally();
        QCOMPARE(view.toView(point), QPointF(400 - seen.x(), seen.y()));
        view.mirrorHorizontally();
        view.mirrorVertically();
        QCOMPARE(view.toView(point), QPointF(seen.x(), 400 - seen.y()));
        view.mirrorVertically();
        view.rotate(1);
        QCOMPARE(view.toView(point), QPointF(400 - seen.y(), seen.x()));
        view.rotate(-2);
        QCOMPARE(view.toView(point), QPointF(seen.y(), 400 - seen.x()));
    }
}

void ViewTransformTest::coordinatesRoundTrip()
{
    for (const Orientation &orientation : allOrientations()) {
        for (const double ratio : {1.0, 1.5, 2.0}) {
            ViewTransform view = viewOf(picture, window, ratio);
            view.setOrientation(orientation);
            for (const double scale : {0.4, 1.0, 3.0, 37.7}) {
                view.setScale(scale, {300, 200});
                for (const QPointF &point : {QPointF(0, 0), QPointF(12.25, 400.5), QPointF(640, 480)})
                    QVERIFY(distance(view.toPicture(view.toView(point)), point) < 1e-6);
                const QPoint pixel = view.nearestPixel({300, 200});
                QCOMPARE(view.pixelAt(view.toView(QPointF(pixel) + QPointF(0.5, 0.5))), std::optional(pixel));
                // The corner of the picture is at a whole pixel of the screen.
                const QPointF corner = view.toView(QRectF(QPointF(), picture)).topLeft() * ratio;
                QVERIFY(scale < 1 || distance(corner, corner.toPoint()) < 1e-6);
            }
        }
    }
    const ViewTransform view = viewOf(picture, window);
    QVERIFY(!view.pixelAt({10, 250})); // Beside the fitted picture.
    QCOMPARE(view.nearestPixel({10, 499.9}), QPoint(0, 479));
}

void ViewTransformTest::zoomKeepsTheAnchor()
{
    for (const Orientation &orientation : allOrientations()) {
        ViewTransform view = viewOf(picture, window);
        view.setOrientation(orientation);
        const QPointF anchor = view.toView(QPointF(123, 345));
        while (view.scale() < ViewTransform::maxScale) {
            view.zoomIn(anchor);
            const double screenPixels = distance(view.toView(QPointF(123, 345)), anchor);
            QVERIFY2(screenPixels <= std::sqrt(0.5) + 1e-6, qPrintable(QString::number(view.scale())));
        }
        while (view.scale() > 4) {
            view.zoomOut(anchor);
            QVERIFY(distance(view.toView(QPointF(123, 345)), anchor) <= std::sqrt(0.5) + 1e-6);
        }
    }
}

void ViewTransformTest::zoomFollowsPleasantScales()
{
    ViewTransform view = viewOf({1000, 1000}, {700, 700}); // The fitted scale is 0.7.
    QVector<double> scales;
    for (int i = 0; i < 5; ++i) {
        scales.append(view.scale());
        view.zoomIn({350, 350});
    }
    QCOMPARE(scales, QVector<double>({0.7, 1, 1.5, 2, 3}));
    view.setScale(1, {350, 350});
    scales.clear();
    for (int i = 0; i < 5; ++i) {
        view.zoomOut({350, 350});
        scales.append(view.scale());
    }
    QCOMPARE(scales, QVector<double>({0.7, 1 / 1.5, 0.5, 1 / 3.0, 0.25}));
    view.zoomIn({350, 350});
    view.zoomIn({350, 350});
    view.zoomIn({350, 350});
    view.zoomIn({350, 350});
    QVERIFY(view.isFitted());
}

void ViewTransformTest::scaleHasLimits()
{
    ViewTransform view = viewOf({1000, 1000}, {700, 700});
    for (int i = 0; i < 50; ++i)
        view.zoomIn({350, 350});
    QCOMPARE(view.scale(), 128.0);
    for (int i = 0; i < 50; ++i)
        view.zoomOut({350, 350});
    QCOMPARE(view.scale(), 0.7 / 4);
    QCOMPARE(view.toView(QPointF(500, 500)).toPoint(), QPoint(350, 350)); // Small pictures are in the middle.
    ViewTransform tiny = viewOf({10, 10}, {700, 700});
    tiny.setScale(0.01, {350, 350});
    QCOMPARE(tiny.scale(), 1.0);
}

void ViewTransformTest::pictureCannotBeLost()
{
    ViewTransform view = viewOf(picture, window);
    view.pan({1000, 1000});
    QVERIFY(view.isFitted());
    for (const double scale : {1.1, 2.0, 100.0}) {
        for (const QPointF &distance : {QPointF(1e5, 1e5), QPointF(-1e5, 1e5), QPointF(-1e5, -1e5)}) {
            view.setScale(scale, {400, 250});
            view.pan(distance);
            const QRectF covered = view.toView(QRectF(QPointF(), picture)) & QRectF(QPointF(), window);
            QVERIFY(covered.width() >= std::min(window.width(), picture.width() * scale) / 2 - 1);
            QVERIFY(covered.height() >= std::min(window.height(), picture.height() * scale) / 2 - 1);
        }
    }
    view.setScale(2, {400, 250});
    view.centerOn({300, 200});
    const QPointF before = view.toView(QPointF(300, 200));
    view.pan({-30, 20});
    QCOMPARE(view.toView(QPointF(300, 200)), before + QPointF(-30, 20));
}

void ViewTransformTest::windowChangeKeepsTheMiddle()
{
    ViewTransform view = viewOf(picture, window);
    view.setScale(4, {400, 250});
    view.centerOn({200, 150});
    view.setViewSize(QSizeF(600, 301), 1);
    view.rotate(1);
    QCOMPARE(view.scale(), 4.0);
    QVERIFY(!view.isFitted());
    QVERIFY(distance(view.toView(QPointF(200, 150)), {300, 150.5}) <= 1);
    view.setPictureSize({500, 400}); // Half of the view stays covered.
    QCOMPARE(view.scale(), 4.0);
    QVERIFY(distance(view.toView(QPointF(200, 150)), {300, 150.5}) <= 1);
}

void ViewTransformTest::visibleRegionIsExact_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QPointF>("center");
    QTest::addColumn<QRect>("region");
    QTest::newRow("whole pixels") << 10.0 << QPointF(320, 240) << QRect(280, 215, 80, 50);
    QTest::newRow("cut pixels") << 16.0 << QPointF(320.5, 240.5) << QRect(295, 224, 51, 33);
    QTest::newRow("corner") << 10.0 << QPointF(0, 0) << QRect(0, 0, 40, 25);
    QTest::newRow("1:1") << 1.0 << QPointF(320, 240) << QRect(0, 0, 640, 480);
}

void ViewTransformTest::visibleRegionIsExact()
{
    QFETCH(double, scale);
    QFETCH(QPointF, center);
    QFETCH(QRect, region);
    for (const bool isMirrored : {false, true}) {
        ViewTransform view = viewOf(picture, window);
        view.setScale(scale, {0, 0});
        view.centerOn(center);
        if (isMirrored)
            view.mirrorHorizontally();
        QCOMPARE(view.visibleRegion(), region);
        QCOMPARE(view.isAllVisible(), region.size() == picture);
    }
}

void ViewTransformTest::outputHasThePixelsOfTheScreen_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("turns");
    QTest::addColumn<double>("scale");
    QTest::addColumn<QSize>("size");
    QTest::newRow("fitted") << 1.0 << 0 << 0.0 << QSize(800, 400);
    QTest::newRow("fitted, turned") << 1.0 << 1 << 0.0 << QSize(600, 300);
    QTest::newRow("fitted, sharp screen") << 2.0 << 0 << 0.0 << QSize(1600, 800);
    QTest::newRow("1:1") << 1.0 << 0 << 1.0 << QSize(800, 600);
    QTest::newRow("1:1, turned") << 1.0 << 3 << 1.0 << QSize(600, 800);
    QTest::newRow("enlarged") << 1.0 << 0 << 10.0 << QSize(80, 60);
    QTest::newRow("reduced") << 1.0 << 0 << 0.5 << QSize(800, 500);
}

void ViewTransformTest::outputHasThePixelsOfTheScreen()
{
    QFETCH(double, ratio);
    QFETCH(int, turns);
    QFETCH(double, scale);
    ViewTransform view = viewOf({2000, 1000}, {800, 600}, ratio);
    view.setOrientation({turns, false});
    if (scale > 0) {
        view.setScale(scale, {0, 0});
        view.centerOn({1000, 500});
    }
    QTEST(view.outputSize(view.visibleRegion()), "size");
}

void ViewTransformTest::thinPicturesStayVisible()
{
    for (const QSize &size : {QSize(16384, 1), QSize(16384, 4), QSize(1, 16384), QSize(4, 16384)}) {
        const ViewTransform view = viewOf(size, {1200, 600});
        const QRect place = view.toDevice(QRectF(QPointF(), size));
        QVERIFY(!place.isEmpty() && QRect(0, 0, 1200, 600).contains(place));
        QVERIFY(!view.outputSize(view.visibleRegion()).isEmpty());
    }
}

void ViewTransformTest::emptyViewShowsNothing()
{
    ViewTransform view;
    view.setPictureSize(picture);
    view.zoomIn({10, 10});
    view.pan({5, 5});
    view.rotate(1);
    QVERIFY(view.visibleRegion().isEmpty());
    QVERIFY(view.outputSize({}).isEmpty());
    view.setViewSize(window, 1);
    QVERIFY(view.isFitted());
}

QTEST_APPLESS_MAIN(ViewTransformTest)

#include "ViewTransformTest.moc"
