#include "tools/imageviewer/measuring/ContrastHandle.h"
#include "tools/imageviewer/measuring/HistogramWidget.h"
#include "tools/imageviewer/measuring/PictureRules.h"
#include "tools/imageviewer/measuring/PlotAxis.h"
#include "tools/imageviewer/measuring/ProfileWidget.h"
#include "tools/imageviewer/measuring/StatisticsTable.h"

#include <QClipboard>
#include <QLabel>
#include <QMouseEvent>
#include <QtTest>

#include <algorithm>
#include <cmath>

namespace {

using C = MeasuredComponent;
using Counts = std::vector<std::uint64_t>;

ComponentHistogram component(C name, const Counts &counts, double dark = 0, double bright = 0)
{
    std::uint64_t pixels = 0;
    for (const std::uint64_t count : counts)
        pixels += count;
    return {name, counts, pixels, dark, bright};
}

Histogram histogramOf(const std::vector<ComponentHistogram> &components)
{
    return {0, static_cast<double>(components[0].counts.size() - 1), 1, components};
}

/// Returns counts of 101 values with one pixel from `first` to `last`.
Counts countsBetween(std::size_t first, std::size_t last)
{
    Counts counts(101);
    for (std::size_t i = first; i <= last; ++i)
        counts[i] = 1;
    return counts;
}

void movePointer(QWidget &widget, const QPointF &position)
{
    QMouseEvent event(QEvent::MouseMove, position, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

void dragHandle(ContrastHandle &handle, const QPoint &by)
{
    const QPoint center = handle.rect().center();
    QTest::mousePress(&handle, Qt::LeftButton, {}, center);
    QMouseEvent move(QEvent::MouseMove, center + by, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&handle, &move);
}

/// A histogram of 0 to 100 with its handles. The plot is 200 pixels wide.
struct HistogramTest
{
    HistogramTest()
    {
        QObject::connect(&widget, &HistogramWidget::curveChanged, &widget, [this] { ++changes; });
        widget.resize(220, 190);
        widget.show();
        const QList<ContrastHandle *> handles = widget.findChildren<ContrastHandle *>();
        black = handles[0];
        white = handles[1];
        middle = handles[2];
    }

    HistogramWidget widget;
    int changes = 0;
    ContrastHandle *black;
    ContrastHandle *white;
    ContrastHandle *middle;
};

} // namespace

class TestMeasuringWidgets : public QObject
{
    Q_OBJECT

private slots:
    void contrastFitsTheHistogram_data();
    void contrastFitsTheHistogram();
    void curveGivesBrightness();
    void ticksAreRoundNumbers_data();
    void ticksAreRoundNumbers();
    void keysMoveTheHandles();
    void mouseDragsTheHandles();
    void clippedPixelsAreShown_data();
    void clippedPixelsAreShown();
    void valueUnderThePointerIsShown();
    void histogramIsDrawnInItsColors();
    void profileShowsValuesUnderThePointer();
    void statisticsAreCopiedAsText();
};

void TestMeasuringWidgets::contrastFitsTheHistogram_data()
{
    QTest::addColumn<QVector<double>>("expected"); // Black and white.
    QTest::addColumn<int>("row");
    QTest::newRow("grey") << QVector<double>{0.2, 0.6} << 0;
    QTest::newRow("few pixels outside are left out") << QVector<double>{0.4, 0.5} << 1;
    QTest::newRow("all colors, with gains") << QVector<double>{0.2, 0.9} << 2;
    QTest::newRow("white is at most the highest value") << QVector<double>{0.4, 1} << 3;
    QTest::newRow("chroma does not count") << QVector<double>{0.3, 0.4} << 4;
    QTest::newRow("one value") << QVector<double>{0, 1} << 5;
}

void TestMeasuringWidgets::contrastFitsTheHistogram()
{
    QFETCH(QVector<double>, expected);
    QFETCH(int, row);
    Counts outliers(101);
    outliers[0] = outliers[100] = 1;
    outliers[40] = outliers[50] = 1000;
    const std::vector<Histogram> histograms = {histogramOf({component(C::Grey, countsBetween(20, 60))}),
        histogramOf({component(C::Grey, outliers)}),
        histogramOf({component(C::Red, countsBetween(10, 30)), component(C::Green, countsBetween(30, 70)),
            component(C::Blue, countsBetween(50, 90))}),
        histogramOf({component(C::Red, countsBetween(20, 80))}),
        histogramOf(
            {component(C::Luma, countsBetween(30, 40)), component(C::ChromaRed, countsBetween(0, 100))}),
        histogramOf({component(C::Grey, countsBetween(50, 50))})};
    const ContrastCurve curve
        = fittedContrast(histograms[static_cast<std::size_t>(row)], {2, 1, 1}, {0.9, 0.95, 1.7});
    QVERIFY(qFuzzyCompare(1 + curve.black, 1 + expected[0]));
    QVERIFY(qFuzzyCompare(curve.white, expected[1]));
    QCOMPARE(curve.gamma, 1.7);
}

void TestMeasuringWidgets::curveGivesBrightness()
{
    const ContrastCurve curve{0.2, 0.6, 2};
    QCOMPARE(curve.brightness(0.1), 0.0);
    QCOMPARE(curve.brightness(0.7), 1.0);
    QCOMPARE(curve.brightness(0.3), 0.5); // A quarter of the way, and gamma 2.
    QVERIFY(qFuzzyCompare(gammaForMiddle(curve.brightness(0.4)), 2.0));
}

void TestMeasuringWidgets::ticksAreRoundNumbers_data()
{
    QTest::addColumn<double>("lowest");
    QTest::addColumn<double>("highest");
    QTest::addColumn<int>("count");
    QTest::addColumn<QVector<double>>("expected");
    QTest::newRow("12 bits") << 0.0 << 4095.0 << 5 << QVector<double>{0, 2000, 4000};
    QTest::newRow("8 bits") << 0.0 << 255.0 << 7 << QVector<double>{0, 50, 100, 150, 200, 250};
    QTest::newRow("signed") << -128.0 << 127.0 << 4 << QVector<double>{-100, 0, 100};
    QTest::newRow("small") << 0.25 << 1.25 << 6 << QVector<double>{0.4, 0.6, 0.8, 1.0, 1.2};
    QTest::newRow("empty") << 3.0 << 3.0 << 6 << QVector<double>{};
}

void TestMeasuringWidgets::ticksAreRoundNumbers()
{
    QFETCH(double, lowest);
    QFETCH(double, highest);
    QFETCH(int, count);
    QFETCH(QVector<double>, expected);
    const QVector<double> ticks = PlotAxis{lowest, highest}.ticks(count);
    QCOMPARE(ticks.size(), expected.size());
    for (int i = 0; i < ticks.size(); ++i)
        QVERIFY(std::abs(ticks[i] - expected[i]) < 1e-9);
}

void TestMeasuringWidgets::keysMoveTheHandles()
{
    HistogramTest test;
    QTest::keyClick(test.black, Qt::Key_PageUp);
    QTest::keyClick(test.black, Qt::Key_Left);
    QTest::keyClick(test.white, Qt::Key_Down);
    QTest::keyClick(test.middle, Qt::Key_Up);
    QVERIFY(qFuzzyCompare(test.widget.curve().black, 0.009));
    QVERIFY(qFuzzyCompare(test.widget.curve().white, 0.999));
    QVERIFY(test.widget.curve().gamma > 1);
    QCOMPARE(test.changes, 4);
    for (int i = 0; i < 200; ++i) // Black stays below white.
        QTest::keyClick(test.black, Qt::Key_PageUp);
    QVERIFY(test.widget.curve().black < test.widget.curve().white);
    for (ContrastHandle *const handle : {test.black, test.white, test.middle})
        QTest::keyClick(handle, Qt::Key_Delete);
    QVERIFY(test.widget.curve().isNeutral());
}

void TestMeasuringWidgets::mouseDragsTheHandles()
{
    HistogramTest test;
    dragHandle(*test.black, {50, 7}); // A quarter of the plot; the height has no effect.
    QVERIFY(std::abs(test.widget.curve().black - 0.25) < 0.01);
    QCOMPARE(test.black->geometry().center().x(), 60);
    dragHandle(*test.white, {500, 0});
    QCOMPARE(test.widget.curve().white, 1.0);
    dragHandle(*test.middle, {0, -20});
    QVERIFY(test.widget.curve().gamma > 1);
    dragHandle(*test.middle, {0, 60});
    QVERIFY(test.widget.curve().gamma < 1);
    QTest::mouseDClick(test.middle, Qt::LeftButton);
    QCOMPARE(test.widget.curve().gamma, 1.0);
}

void TestMeasuringWidgets::clippedPixelsAreShown_data()
{
    QTest::addColumn<double>("dark");
    QTest::addColumn<double>("bright");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << 0.0 << 0.0 << "0 % underexposed, 0 % overexposed";
    QTest::newRow("few") << 0.003 << 0.0123 << "0.30 % underexposed, 1.2 % overexposed";
    QTest::newRow("one pixel is not nothing") << 1e-7 << 0.5 << "< 0.01 % underexposed, 50 % overexposed";
}

void TestMeasuringWidgets::clippedPixelsAreShown()
{
    QFETCH(double, dark);
    QFETCH(double, bright);
    QFETCH(QString, text);
    HistogramWidget widget;
    // The highest share of all components counts.
    widget.setHistogram(histogramOf({component(C::Red, {1, 1}, dark, 0), component(C::Green, {1, 1}),
        component(C::Blue, {1, 1}, 0, bright)}));
    QCOMPARE(widget.clipText(), text);
}

void TestMeasuringWidgets::valueUnderThePointerIsShown()
{
    HistogramTest test;
    Histogram histogram = histogramOf({component(C::Red, Counts(100)), component(C::Blue, Counts(100))});
    histogram.lowest = -50;
    histogram.components[0].counts[25] = 1234;
    histogram.components[1].counts[25] = 7;
    test.widget.setHistogram(histogram);
    QVERIFY(test.widget.pointerText().isEmpty());
    movePointer(test.widget, {10 + 51, 80}); // Each bin is two pixels wide.
    QCOMPARE(test.widget.pointerText(), QStringLiteral("Value -25\n1,234 Red, 7 Blue"));
    movePointer(test.widget, {5, 80});
    QVERIFY(test.widget.pointerText().isEmpty());
}

void TestMeasuringWidgets::histogramIsDrawnInItsColors()
{
    HistogramTest test;
    test.widget.setHistogram(
        histogramOf({component(C::Red, countsBetween(10, 30)), component(C::Blue, countsBetween(70, 90))}));
    const auto colorAt = [&test](double share) {
        const QImage image = test.widget.grab().toImage();
        return image.pixelColor(static_cast<int>(10 + share * 200), image.height() * 5 / 6);
    };
    QVERIFY(colorAt(0.2).red() > colorAt(0.2).blue() + 20);
    QVERIFY(colorAt(0.8).blue() > colorAt(0.8).red() + 20);
    const QColor background = colorAt(0.55);
    QVERIFY(background.lightness() < 40);

    // A rare value is only visible in the logarithmic histogram.
    Counts counts = countsBetween(40, 70);
    counts[20] = 100000;
    test.widget.setHistogram(histogramOf({component(C::Red, counts)}));
    QCOMPARE(colorAt(0.6), background);
    test.widget.setLogarithmic(true);
    QImage image = test.widget.grab().toImage();
    QVERIFY(image.pixelColor(130, 160).red() > 60);
}

void TestMeasuringWidgets::profileShowsValuesUnderThePointer()
{
    ProfileWidget widget;
    widget.resize(300, 160);
    widget.setProfile(LineProfile{});
    QVERIFY(!widget.profile()); // A profile without pixels is none.
    LineProfile profile;
    profile.curves = {{C::Red, {0, 2, 4}, {100, 300, 500}}, {C::Green, {1, 3}, {200, 400}}};
    widget.setProfile(profile);
    movePointer(widget, {200, 50});
    QCOMPARE(widget.pointerText(), QStringLiteral("Pixel 3\nRed 500, Green 400"));
    movePointer(widget, {299, 50});
    QVERIFY(widget.pointerText().isEmpty());
}

void TestMeasuringWidgets::statisticsAreCopiedAsText()
{
    StatisticsTable table;
    table.setStatistics({{C::Red, 1234567, 12, 4095, 1234.5678, 9.125}, {C::Blue, 2, 0.25, 1.5, 0.875, 0.5}});
    table.copy();
    QCOMPARE(QGuiApplication::clipboard()->text(),
        QStringLiteral("Component\tMinimum\tMaximum\tMean\tStd. deviation\tPixels\n"
                       "Red\t12\t4095\t1234.57\t9.13\t1234567\n"
                       "Blue\t0.250\t1.500\t0.875\t0.500\t2\n"));
    const QList<QLabel *> cells = table.findChildren<QLabel *>();
    QVERIFY(std::any_of(cells.begin(), cells.end(),
        [](const QLabel *cell) { return cell->text() == QStringLiteral("1,234,567"); }));
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    TestMeasuringWidgets test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestMeasuringWidgets.moc"
