#include "tools/imageviewer/panel/RegionOfInterest.h"
#include "tools/imageviewer/panel/WhiteBalance.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

Q_DECLARE_METATYPE(RegionAxis)

namespace {

/// An axis of 2448 pixels, sizes 16, 20, ..., offsets 0, 8, ....
RegionAxisLimits usualLimits()
{
    RegionAxisLimits limits;
    limits.extent = 2448;
    limits.minimumSize = 16;
    limits.maximumSize = 2448;
    limits.sizeIncrement = 4;
    limits.offsetIncrement = 8;
    return limits;
}

/// The maxima that a camera reports at a region.
struct Maxima
{
    std::int64_t size;
    std::int64_t offset;
};

bool isAllowed(const RegionAxis &axis, const RegionAxisLimits &limits)
{
    return axis.size >= limits.minimumSize && axis.offset >= limits.minimumOffset
        && axis.offset + axis.size <= limits.extent
        && (axis.size - limits.minimumSize) % limits.sizeIncrement == 0
        && (axis.offset - limits.minimumOffset) % limits.offsetIncrement == 0;
}

} // namespace

class TestRegionOfInterest : public QObject
{
    Q_OBJECT

private slots:
    void limitsDoNotDependOnThePresentRegion_data();
    void limitsDoNotDependOnThePresentRegion();
    void drawnRegionSnaps_data();
    void drawnRegionSnaps();
    void axisWithoutOffsetStartsAtZero();
    void wholeSensorIsTheLargestRegion();
    void unchangedValuesAreNotWritten();
    void everyWriteIsWithinTheLimits();
    void whiteBalanceKeepsTheProportions_data();
    void whiteBalanceKeepsTheProportions();
};

void TestRegionOfInterest::limitsDoNotDependOnThePresentRegion_data()
{
    QTest::addColumn<qint64>("maximumSize");
    QTest::addColumn<qint64>("maximumOffset");
    // The sensor has 2448 pixels; the region starts at 800 and has 640.
    QTest::newRow("each depends on the other") << qint64(1648) << qint64(1808);
    QTest::newRow("only the offset depends") << qint64(2448) << qint64(1808);
    QTest::newRow("only the size depends") << qint64(1648) << qint64(2432);
}

void TestRegionOfInterest::limitsDoNotDependOnThePresentRegion()
{
    QFETCH(qint64, maximumSize);
    QFETCH(qint64, maximumOffset);
    ReportedAxis reported;
    reported.present = {800, 640};
    reported.maximumSize = maximumSize;
    reported.maximumOffset = maximumOffset;
    QCOMPARE(qint64(axisLimits(reported).extent), qint64(2448));
    QCOMPARE(qint64(axisLimits(reported).maximumSize), qint64(2448));
}

void TestRegionOfInterest::drawnRegionSnaps_data()
{
    QTest::addColumn<RegionAxis>("drawn");
    QTest::addColumn<RegionAxis>("snapped");
    QTest::newRow("fits") << RegionAxis{800, 640} << RegionAxis{800, 640};
    QTest::newRow("grows at both ends") << RegionAxis{801, 640} << RegionAxis{800, 644};
    QTest::newRow("too small") << RegionAxis{803, 1} << RegionAxis{800, 16};
    QTest::newRow("ends with the sensor") << RegionAxis{2001, 447} << RegionAxis{2000, 448};
    QTest::newRow("too small at the end") << RegionAxis{2447, 1} << RegionAxis{2432, 16};
    QTest::newRow("beyond the end") << RegionAxis{2000, 9999} << RegionAxis{2000, 448};
    QTest::newRow("everything") << RegionAxis{0, 2448} << RegionAxis{0, 2448};
}

void TestRegionOfInterest::drawnRegionSnaps()
{
    QFETCH(RegionAxis, drawn);
    QFETCH(RegionAxis, snapped);
    const RegionAxis actual = snapAxis(drawn, usualLimits());
    QCOMPARE(qint64(actual.offset), qint64(snapped.offset));
    QCOMPARE(qint64(actual.size), qint64(snapped.size));
}

void TestRegionOfInterest::axisWithoutOffsetStartsAtZero()
{
    ReportedAxis reported;
    reported.present = {0, 1024};
    reported.minimumSize = 1;
    reported.maximumSize = 16384;
    reported.hasOffset = false;
    const RegionAxis snapped = snapAxis({100, 50}, axisLimits(reported));
    QCOMPARE(qint64(snapped.offset), qint64(0));
    QCOMPARE(qint64(snapped.size), qint64(150)); // The drawn lines are still inside.
}

void TestRegionOfInterest::wholeSensorIsTheLargestRegion()
{
    RegionAxisLimits limits = usualLimits();
    limits.extent = limits.maximumSize = 2450; // No multiple of the increment.
    QVERIFY(wholeAxis(limits) == (RegionAxis{0, 2448}));
}

void TestRegionOfInterest::unchangedValuesAreNotWritten()
{
    QVERIFY(axisWrites({8, 64}, {8, 64}).empty());
    QVERIFY(axisWrites({8, 64}, {16, 64}) == (std::vector<RegionWrite>{{RegionPart::Offset, 16}}));
    QVERIFY(axisWrites({0, 64}, {8, 16})
        == (std::vector<RegionWrite>{{RegionPart::Size, 16}, {RegionPart::Offset, 8}}));
}

/// Tries many regions on an axis that refuses everything beyond its limits.
void TestRegionOfInterest::everyWriteIsWithinTheLimits()
{
    QRandomGenerator random(14);
    const RegionAxisLimits limits = usualLimits();
    RegionAxis axis = wholeAxis(limits);
    for (int round = 0; round < 2000; ++round) {
        const int first = random.bounded(2448);
        const RegionAxis drawn{first, 1 + random.bounded(2448 - first)};
        const RegionAxis target = snapAxis(drawn, limits);
        QVERIFY(target.offset <= drawn.offset);
        QVERIFY(target.offset + target.size >= drawn.offset + drawn.size);
        for (const RegionWrite &write : axisWrites(axis, target)) {
            (write.part == RegionPart::Offset ? axis.offset : axis.size) = write.value;
            QVERIFY2(isAllowed(axis, limits),
                qPrintable(QStringLiteral("%1 + %2").arg(axis.offset).arg(axis.size)));
        }
        QVERIFY(axis == target);
    }
}

void TestRegionOfInterest::whiteBalanceKeepsTheProportions_data()
{
    QTest::addColumn<bool>("hasGreen");
    QTest::addColumn<double>("maximum"); // The minimum is 1, and the present factors are 1.5, 1 and 2.
    QTest::addColumn<QVector<double>>("gains");
    QTest::addColumn<QVector<double>>("ratios");
    QTest::newRow("multiplied") << true << 8.0 << QVector<double>{2, 1, 1.5} << QVector<double>{3, 1, 3};
    QTest::newRow("brighter") << true << 8.0 << QVector<double>{1, 1, 0.25} << QVector<double>{3, 2, 1};
    QTest::newRow("darker") << true << 4.0 << QVector<double>{4, 2, 2}
                            << QVector<double>{4, 4.0 / 3, 8.0 / 3};
    QTest::newRow("limited") << true << 2.0 << QVector<double>{4, 1, 0.5} << QVector<double>{2, 1, 1};
    QTest::newRow("fixed green") << false << 8.0 << QVector<double>{2, 0.5, 1} << QVector<double>{6, 1, 4};
}

void TestRegionOfInterest::whiteBalanceKeepsTheProportions()
{
    QFETCH(bool, hasGreen);
    QFETCH(double, maximum);
    QFETCH(QVector<double>, gains);
    QFETCH(QVector<double>, ratios);
    BalanceRatios present{
        BalanceRatio{1.5, 1, maximum}, BalanceRatio{1, 1, maximum}, BalanceRatio{2, 1, maximum}};
    if (!hasGreen)
        present[1].reset();
    const std::array<double, 3> result = balancedRatios(present, {gains[0], gains[1], gains[2]});
    for (std::size_t color = 0; color < result.size(); ++color)
        QCOMPARE(result[color], ratios[static_cast<int>(color)]);
}

QTEST_APPLESS_MAIN(TestRegionOfInterest)
#include "TestRegionOfInterest.moc"
