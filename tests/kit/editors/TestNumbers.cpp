#include "tools/kit/editors/NumberSteps.h"
#include "tools/kit/editors/NumberText.h"
#include "tools/kit/editors/SliderScale.h"

#include <QtTest>

#include <limits>

using CvxCPP::NodeRepresentation;

namespace {

constexpr std::int64_t lowest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t highest = std::numeric_limits<std::int64_t>::max();
constexpr NodeRepresentation noWish = NodeRepresentation::Undefined;

/// Exposure times in microseconds, as many cameras have them.
SliderScale exposureScale()
{
    return *SliderScale::create(1, 1e7, noWish);
}

} // namespace

class TestNumbers : public QObject
{
    Q_OBJECT

private slots:
    void integersAreShownAndReadBack_data();
    void integersAreShownAndReadBack();
    void typedIntegersAreUnderstood_data();
    void typedIntegersAreUnderstood();
    void floatsAreShown_data();
    void floatsAreShown();
    void floatsFollowTheLocale();
    void unitsAreWritten();
    void integersSnap_data();
    void integersSnap();
    void integersStepInsideTheirRange();
    void floatsSnap();
    void floatsStep_data();
    void floatsStep();
    void rangeDecidesAboutTheScale_data();
    void rangeDecidesAboutTheScale();
    void scaleReachesBothEnds();
    void scaleGivesShortNumbers();
    void logarithmicScaleContainsZero();
};

void TestNumbers::integersAreShownAndReadBack_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<int>("representation");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, qint64 value, NodeRepresentation representation, const char *text) {
        QTest::newRow(name) << value << static_cast<int>(representation) << QString::fromLatin1(text);
    };
    row("decimal", -5, noWish, "-5");
    row("lowest", lowest, noWish, "-9223372036854775808");
    row("hexadecimal", 0x1F, NodeRepresentation::HexNumber, "0x1F");
    row("all bits", -1, NodeRepresentation::HexNumber, "0xFFFFFFFFFFFFFFFF");
    row("IP address", 0xC0A80102, NodeRepresentation::IPv4Address, "192.168.1.2");
    row("MAC address", 0x02005E100001, NodeRepresentation::MacAddress, "02:00:5E:10:00:01");
}

void TestNumbers::integersAreShownAndReadBack()
{
    QFETCH(qint64, value);
    QFETCH(int, representation);
    QFETCH(QString, text);
    const auto shown = static_cast<NodeRepresentation>(representation);
    QCOMPARE(integerText(value, shown), text);
    QVERIFY(parseInteger(text, shown) == std::int64_t(value));
}

void TestNumbers::typedIntegersAreUnderstood_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("representation");
    QTest::addColumn<qint64>("value"); // -1 if the text is no number.
    const auto row = [](const char *text, NodeRepresentation representation, qint64 value) {
        QTest::newRow(text) << QString::fromLatin1(text) << static_cast<int>(representation) << value;
    };
    row(" 1 024 ", noWish, 1024);
    row("0xff", noWish, 255);
    row("256", NodeRepresentation::HexNumber, 256);
    row("abc", noWish, -1);
    row("", noWish, -1);
    row("1.5", noWish, -1);
    row("9223372036854775808", noWish, -1);
    row("10.0.0.256", NodeRepresentation::IPv4Address, -1);
    row("10.0.1", NodeRepresentation::IPv4Address, -1);
}

void TestNumbers::typedIntegersAreUnderstood()
{
    QFETCH(QString, text);
    QFETCH(int, representation);
    QFETCH(qint64, value);
    QCOMPARE(qint64(parseInteger(text, static_cast<NodeRepresentation>(representation)).value_or(-1)), value);
}

void TestNumbers::floatsAreShown_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    const auto row
        = [](double value, const char *text) { QTest::newRow(text) << value << QString::fromLatin1(text); };
    row(0, "0");
    row(8000, "8000");
    row(1e7, "10000000");
    row(123456789.5, "123456790");
    row(static_cast<double>(0.1F), "0.1");
    row(29.99999, "29.99999");
    row(1.6129032258064517, "1.612903");
    row(0.00123456789, "0.001234568");
    row(-2.5, "-2.5");
    row(1e-9, "1e-09");
    row(1e300, "1e+300");
}

void TestNumbers::floatsAreShown()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    QCOMPARE(floatText(value), text);
}

void TestNumbers::floatsFollowTheLocale()
{
    QLocale::setDefault(QLocale(QLocale::German));
    const QString shown = floatText(1234.5);
    const auto comma = parseFloat(QStringLiteral("1234,5"));
    const auto point = parseFloat(QStringLiteral("1234.5"));
    const auto neither = parseFloat(QStringLiteral("12a"));
    QLocale::setDefault(QLocale::c());
    QCOMPARE(shown, QStringLiteral("1234,5"));
    QVERIFY(comma == 1234.5);
    QVERIFY(point == 1234.5);
    QVERIFY(!neither);
}

void TestNumbers::unitsAreWritten()
{
    QCOMPARE(unitText("us"), QStringLiteral("µs"));
    QCOMPARE(unitText("furlong"), QStringLiteral("furlong"));
}

void TestNumbers::integersSnap_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<qint64>("minimum");
    QTest::addColumn<qint64>("maximum");
    QTest::addColumn<qint64>("increment");
    QTest::addColumn<qint64>("snapped");
    const auto row
        = [](const char *name, qint64 value, qint64 minimum, qint64 maximum, qint64 increment,
              qint64 snapped) { QTest::newRow(name) << value << minimum << maximum << increment << snapped; };
    row("down", 21, 16, 100, 4, 20);
    row("up in the middle", 22, 16, 100, 4, 24);
    row("below", 3, 16, 100, 4, 16);
    row("above", 101, 16, 99, 4, 96);
    row("everything", highest, lowest, highest, 1, highest);
    row("coarse", 0, lowest, highest, highest, -1);
    row("empty", 7, 5, 5, 3, 5);
}

void TestNumbers::integersSnap()
{
    QFETCH(qint64, value);
    QFETCH(qint64, minimum);
    QFETCH(qint64, maximum);
    QFETCH(qint64, increment);
    QTEST(qint64(nearestValue(std::int64_t(value), IntegerRange{minimum, maximum, increment})), "snapped");
}

void TestNumbers::integersStepInsideTheirRange()
{
    QCOMPARE(qint64(steppedValue(20, 3, IntegerRange{16, 100, 4})), 32);
    QCOMPARE(qint64(steppedValue(20, -3, IntegerRange{16, 100, 4})), 16);
    QCOMPARE(qint64(steppedValue(highest - 1, 10, IntegerRange())), qint64(highest));
    QCOMPARE(qint64(steppedValue(lowest + 1, -10, IntegerRange())), qint64(lowest));
}

void TestNumbers::floatsSnap()
{
    QCOMPARE(nearestValue(1.3, FloatRange{0, 10, 0.5}), 1.5);
    QCOMPARE(nearestValue(99.0, FloatRange{0, 10.2, 0.5}), 10.0);
    QCOMPARE(nearestValue(99.0, FloatRange{0, 10.2, 0}), 10.2);
}

void TestNumbers::floatsStep_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("steps");
    QTest::addColumn<double>("maximum"); // The minimum is 1.
    QTest::addColumn<double>("increment");
    QTest::addColumn<bool>("isLogarithmic");
    QTest::addColumn<double>("result");
    QTest::newRow("logarithmic") << 8000.0 << 1 << 1e7 << 0.0 << true << 8100.0;
    QTest::newRow("to whole steps") << 8003.0 << 1 << 1e7 << 0.0 << true << 8100.0;
    QTest::newRow("down over a decade") << 1000.0 << -1 << 1e7 << 0.0 << true << 990.0;
    QTest::newRow("up over a decade") << 990.0 << 1 << 1e7 << 0.0 << true << 1000.0;
    QTest::newRow("no rest") << 1.1 << 1 << 1e7 << 0.0 << true << 1.2;
    QTest::newRow("increment is larger") << 50.0 << 1 << 1e7 << 20.0 << true << 61.0;
    QTest::newRow("linear") << 3.0 << 2 << 37.0 << 0.0 << false << 3.4;
    QTest::newRow("at the end") << 36.9 << 5 << 37.0 << 0.0 << false << 37.0;
}

void TestNumbers::floatsStep()
{
    QFETCH(double, value);
    QFETCH(int, steps);
    QFETCH(double, maximum);
    QFETCH(double, increment);
    QFETCH(bool, isLogarithmic);
    QFETCH(double, result);
    // Not fuzzy: a rest would be written to the camera.
    QVERIFY(steppedValue(value, steps, FloatRange{1, maximum, increment}, isLogarithmic) == result);
}

void TestNumbers::rangeDecidesAboutTheScale_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("representation");
    QTest::addColumn<QString>("scale");
    const auto row
        = [](double minimum, double maximum, NodeRepresentation representation, const char *scale) {
              QTest::addRow("%g to %g", minimum, maximum)
                  << minimum << maximum << static_cast<int>(representation) << QString::fromLatin1(scale);
          };
    row(1, 1e7, noWish, "logarithmic");
    row(1, 100, noWish, "linear");
    row(1, 101, NodeRepresentation::Logarithmic, "logarithmic");
    row(0, 36, noWish, "linear");
    row(-10, 10, NodeRepresentation::Logarithmic, "linear");
    row(5, 5, noWish, "none");
    row(std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max(), noWish, "none");
}

void TestNumbers::rangeDecidesAboutTheScale()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(int, representation);
    const auto scale = SliderScale::create(minimum, maximum, static_cast<NodeRepresentation>(representation));
    QTEST(!scale                     ? QStringLiteral("none")
            : scale->isLogarithmic() ? QStringLiteral("logarithmic")
                                     : QStringLiteral("linear"),
        "scale");
}

void TestNumbers::scaleReachesBothEnds()
{
    for (const SliderScale &scale : {exposureScale(), *SliderScale::create(-3.3, 7.7, noWish)}) {
        const double first = scale.value(0);
        const double last = scale.value(SliderScale::positions);
        QCOMPARE(scale.position(first), 0);
        QCOMPARE(scale.position(last), SliderScale::positions);
        QCOMPARE(scale.position(first - 1), 0);
        QCOMPARE(scale.position(last * 2), SliderScale::positions);
        for (int position = 1; position < SliderScale::positions; ++position)
            QVERIFY(qAbs(scale.position(scale.value(position)) - position) <= 1);
    }
    QCOMPARE(exposureScale().position(std::sqrt(1e7)), SliderScale::positions / 2);
}

void TestNumbers::scaleGivesShortNumbers()
{
    QCOMPARE(floatText(exposureScale().value(500)), QStringLiteral("3160"));
    QCOMPARE(floatText(SliderScale::create(0, 36, noWish)->value(333)), QStringLiteral("11.99"));
}

void TestNumbers::logarithmicScaleContainsZero()
{
    const auto scale = SliderScale::create(0, 1000, NodeRepresentation::Logarithmic);
    QCOMPARE(scale->value(0), 0.0);
    QCOMPARE(scale->position(0), 0);
    QCOMPARE(scale->value(500), 1.0);
}

QTEST_APPLESS_MAIN(TestNumbers)
#include "TestNumbers.moc"
