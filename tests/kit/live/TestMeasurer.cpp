#include "tests/kit/live/LiveImage.h"
#include "tools/kit/live/Measurer.h"

#include <QtTest>

namespace {

constexpr int bound = 10000; // Milliseconds.
const MeasureRequest statisticsRequest{false, std::nullopt, true, std::nullopt};

/// A measurer, and what it has reported.
struct MeasurerTest
{
    MeasurerTest()
    {
        QObject::connect(&measurer, &Measurer::measured, &measurer,
            [this](const Measurements &measurements) { results.append(measurements); });
    }

    Measurer measurer;
    QVector<Measurements> results;
};

} // namespace

class TestMeasurer : public QObject
{
    Q_OBJECT

private slots:
    void measuresTheNewestImage();
    void newRequestMeasuresThePresentImage();
    void frozenImageIsMeasuredInsteadOfTheStream();
    void nothingIsMeasuredWithoutRequest();
    void clearForgetsTheImages();
};

void TestMeasurer::measuresTheNewestImage()
{
    MeasurerTest test;
    test.measurer.setRequest(statisticsRequest);
    for (std::uint64_t id = 1; id <= 50; ++id)
        test.measurer.take(LiveImage::make(id));
    QTRY_VERIFY_WITH_TIMEOUT(!test.results.isEmpty() && test.results.last().frameId == 50, bound);
    QCOMPARE(test.results.last().statistics.at(0).mean, 50.0);
    QVERIFY(test.results.size() < 50); // Most others were not measured.
}

void TestMeasurer::newRequestMeasuresThePresentImage()
{
    MeasurerTest test;
    test.measurer.take(LiveImage::make(9));
    test.measurer.setRequest(statisticsRequest);
    QTRY_COMPARE_WITH_TIMEOUT(test.results.size(), 1, bound);
    test.measurer.setRequest({false, std::nullopt, false, MeasuredLine{0, 0, 3, 0}});
    QTRY_COMPARE_WITH_TIMEOUT(test.results.size(), 2, bound);
    QCOMPARE(test.results[1].frameId, std::uint64_t(9));
    QVERIFY(test.results[1].statistics.empty());
    QCOMPARE(test.results[1].profile->curves.at(0).values, (std::vector<double>{9, 9, 9, 9}));
}

void TestMeasurer::frozenImageIsMeasuredInsteadOfTheStream()
{
    MeasurerTest test;
    test.measurer.setFrozenImage(LiveImage::make(1));
    test.measurer.setRequest(statisticsRequest);
    QTRY_COMPARE_WITH_TIMEOUT(test.results.size(), 1, bound);
    test.measurer.take(LiveImage::make(2));
    test.measurer.setRequest(statisticsRequest);
    QTRY_COMPARE_WITH_TIMEOUT(test.results.size(), 2, bound);
    QCOMPARE(test.results[1].frameId, std::uint64_t(1));
    test.measurer.setFrozenImage({});
    QTRY_COMPARE_WITH_TIMEOUT(test.results.size(), 3, bound);
    QCOMPARE(test.results[2].frameId, std::uint64_t(2));
}

void TestMeasurer::nothingIsMeasuredWithoutRequest()
{
    MeasurerTest test;
    test.measurer.take(LiveImage::make(1));
    test.measurer.setRequest({});
    test.measurer.take(LiveImage::make(2));
    test.measurer.setRequest(statisticsRequest);
    QTRY_VERIFY_WITH_TIMEOUT(!test.results.isEmpty(), bound);
    QCOMPARE(test.results[0].frameId, std::uint64_t(2));
}

void TestMeasurer::clearForgetsTheImages()
{
    MeasurerTest test;
    auto image = LiveImage::make(1);
    const std::weak_ptr<const CvxCPP::Image> first = image;
    test.measurer.setRequest(statisticsRequest);
    test.measurer.take(image);
    image.reset();
    QTRY_COMPARE_WITH_TIMEOUT(test.results.size(), 1, bound);
    test.measurer.clear();
    QVERIFY(first.expired());
    test.measurer.setRequest(statisticsRequest);
    test.measurer.take(LiveImage::make(2));
    QTRY_COMPARE_WITH_TIMEOUT(test.results.size(), 2, bound);
    QCOMPARE(test.results[1].frameId, std::uint64_t(2));
}

QTEST_GUILESS_MAIN(TestMeasurer)
#include "TestMeasurer.moc"
