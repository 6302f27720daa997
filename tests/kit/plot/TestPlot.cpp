#include "tools/kit/plot/DurationScale.h"
#include "tools/kit/plot/Plot.h"

#include <QtTest>

#include <qwt_scale_widget.h>

namespace {

constexpr QRgb firstCurve = 0xff2196f3;
constexpr QRgb secondCurve = 0xfff59e0b;
constexpr QSize paperSize(600, 300);

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

/// Returns true if a colour is about the same, as antialiasing and the blending of a thin line allow.
bool isLike(QRgb first, QRgb second)
{
    constexpr int tolerance = 40;
    return std::abs(qRed(first) - qRed(second)) < tolerance
        && std::abs(qGreen(first) - qGreen(second)) < tolerance
        && std::abs(qBlue(first) - qBlue(second)) < tolerance;
}

/// Returns the rectangle of all pixels of about this colour.
QRect placeOf(const QImage &image, QRgb colour)
{
    QRect place;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isLike(image.pixel(x, y), colour))
                place |= QRect(x, y, 1, 1);
        }
    }
    return place;
}

} // namespace

class TestPlot : public QObject
{
    Q_OBJECT

private slots:
    void durationIsWrittenAsExactlyAsTheStepNeeds_data();
    void durationIsWrittenAsExactlyAsTheStepNeeds();
    void stepOfADurationIsPleasant_data();
    void stepOfADurationIsPleasant();
    void axisOfDurationsHasWholeSteps();
    void paperShowsCurvesAndLines();
    void pointThatIsNoNumberMakesAGap();
    void legendNamesSeveralCurves();
    void expectedValueHasTheColourOfItsCurve();
    void removedCurvesAndLinesAreGone();
};

void TestPlot::durationIsWrittenAsExactlyAsTheStepNeeds_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<double>("step");
    QTest::addColumn<QString>("text");
    QTest::newRow("fraction") << 0.25 << 0.05 << "0.25 s"_s;
    QTest::newRow("zero") << 0.0 << 10.0 << "0:00"_s;
    QTest::newRow("seconds") << 90.0 << 30.0 << "1:30"_s;
    QTest::newRow("before now") << -45.0 << 15.0 << "−0:45"_s;
    QTest::newRow("seconds of hours") << 3725.0 << 5.0 << "1:02:05"_s;
    QTest::newRow("minutes") << 300.0 << 60.0 << "5 min"_s;
    QTest::newRow("whole hour") << 7200.0 << 600.0 << "2 h"_s;
    QTest::newRow("hour and minutes") << 5400.0 << 1800.0 << "1 h 30 min"_s;
    QTest::newRow("hours") << 64800.0 << 21600.0 << "18 h"_s;
    QTest::newRow("days") << 259200.0 << 86400.0 << "3 d"_s;
    QTest::newRow("rounding error") << 59.9999999 << 30.0 << "1:00"_s;
}

void TestPlot::durationIsWrittenAsExactlyAsTheStepNeeds()
{
    QFETCH(double, seconds);
    QFETCH(double, step);
    QTEST(durationText(seconds, step), "text");
}

void TestPlot::stepOfADurationIsPleasant_data()
{
    QTest::addColumn<double>("minStep");
    QTest::addColumn<double>("step");
    QTest::newRow("fraction") << 0.13 << 0.2;
    QTest::newRow("second") << 0.7 << 1.0;
    QTest::newRow("half minute") << 16.0 << 30.0;
    QTest::newRow("quarter of an hour") << 601.0 << 900.0;
    QTest::newRow("hours") << 7201.0 << 10800.0;
    QTest::newRow("week") << 2.5 * 86400 << 7.0 * 86400;
    QTest::newRow("weeks") << 8.0 * 86400 << 14.0 * 86400;
}

void TestPlot::stepOfADurationIsPleasant()
{
    QFETCH(double, minStep);
    QTEST(durationStep(minStep), "step");
}

void TestPlot::axisOfDurationsHasWholeSteps()
{
    Plot plot;
    plot.setHorizontalAxis(Plot::Axis::Duration, "Time"_s);
    plot.setSamples(plot.addCurve({}), {{0, 1}, {100, 2}});
    const QwtScaleDiv &scale = plot.axisScaleDiv(QwtPlot::xBottom);
    QCOMPARE(scale.upperBound(), 100.0); // The axis ends with the data.
    const QList<double> ticks = scale.ticks(QwtScaleDiv::MajorTick);
    QVERIFY(ticks.size() > 2);
    for (const double tick : ticks)
        QCOMPARE(std::fmod(tick, 15), 0.0);
    QCOMPARE(plot.axisScaleDraw(QwtPlot::xBottom)->label(30).text(), "0:30"_s);
}

void TestPlot::paperShowsCurvesAndLines()
{
    Plot plot;
    plot.setHorizontalAxis(Plot::Axis::Numbers, "Position"_s);
    plot.setVerticalAxis("Sharpness"_s);
    plot.setSamples(plot.addCurve("Left"_s), {{0, 1}, {5, 2}, {10, 1}});
    plot.setSamples(plot.addCurve("Right"_s), {{0, 5}, {10, 5}});
    const QImage before = plot.paper(paperSize);
    QCOMPARE(before.size(), paperSize);
    QCOMPARE(before.pixel(0, 0), qRgb(255, 255, 255));
    const QRect first = placeOf(before, firstCurve);
    const QRect second = placeOf(before, secondCurve);
    QVERIFY(first.width() > paperSize.width() / 2);
    QVERIFY(first.height() > second.height());
    QVERIFY(first.bottom() > second.bottom());

    plot.setLimit(0, 3, "Limit"_s);
    plot.setMoment(0, 5, "Now"_s);
    const QImage after = plot.paper(paperSize);
    QVERIFY(after != before);
    plot.setLimit(0, 4, "Limit"_s); // Replaces the line.
    plot.removeLines();
    QCOMPARE(plot.paper(paperSize), before);
}

void TestPlot::pointThatIsNoNumberMakesAGap()
{
    Plot plot;
    plot.setHorizontalAxis(Plot::Axis::Numbers, {});
    plot.setSamples(plot.addCurve({}), {{0, 1}, {3, 1}, {5, qQNaN()}, {7, 1}, {10, 1}});
    const QImage paper = plot.paper(paperSize);
    const QRect whole = placeOf(paper, firstCurve);
    QVERIFY(whole.width() > paperSize.width() / 2);
    const QRect middle(whole.left() + whole.width() * 4 / 10, 0, whole.width() * 2 / 10, paper.height());
    QVERIFY(placeOf(paper.copy(middle), firstCurve).isEmpty());
}

void TestPlot::legendNamesSeveralCurves()
{
    Plot plot;
    plot.addCurve("Left"_s);
    QVERIFY(!plot.legend());
    plot.addCurve("Right"_s);
    QVERIFY(plot.legend());
}

void TestPlot::expectedValueHasTheColourOfItsCurve()
{
    Plot plot;
    plot.setHorizontalAxis(Plot::Axis::Numbers, {});
    plot.setSamples(plot.addCurve({}), {{0, 0}, {10, 10}});
    plot.setSamples(plot.addCurve({}), {{4, 1}, {5, 1}});
    const int before = placeOf(plot.paper(paperSize), secondCurve).width();
    plot.setExpected(1, 40, "Final value"_s);
    QVERIFY(plot.axisScaleDiv(QwtPlot::yLeft).contains(40)); // The axis includes the line.
    QCOMPARE(plot.axisScaleDiv(QwtPlot::xBottom).upperBound(), 10.0);
    QVERIFY(placeOf(plot.paper(paperSize), secondCurve).width() > 5 * before);
    plot.removeLines();
    QCOMPARE(placeOf(plot.paper(paperSize), secondCurve).width(), before);
}

void TestPlot::removedCurvesAndLinesAreGone()
{
    Plot plot;
    plot.resize(paperSize);
    plot.setSamples(plot.addCurve({}), {{0, 0}, {10, 10}});
    QVERIFY(!placeOf(plot.grab().toImage(), firstCurve).isEmpty());
    plot.removeCurves();
    QVERIFY(placeOf(plot.grab().toImage(), firstCurve).isEmpty());
    QCOMPARE(plot.addCurve({}), 0); // Numbers and colours begin again.
}

QTEST_MAIN(TestPlot)
#include "TestPlot.moc"
