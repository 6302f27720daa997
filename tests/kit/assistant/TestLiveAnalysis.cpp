#include "sdk/testing/Gate.h"
#include "tests/kit/live/LiveImage.h"
#include "tools/kit/assistant/LiveAnalysis.h"

#include <QThread>
#include <QtTest>

#include <mutex>

using CvxCPP::Image;
using CvxScripted::Gate;

namespace {

constexpr int bound = 10000; // Milliseconds.
constexpr double maxRate = 1000;

/// An analysis that returns the frame ID of each image, and what it has delivered.
struct AnalysisTest
{
    LiveAnalysis::Deliver analyse(const std::shared_ptr<const Image> &image)
    {
        if (QThread::currentThread() == QCoreApplication::instance()->thread())
            wasOnGuiThread = true;
        if (beforeResult)
            beforeResult();
        return [this, id = int(image->GetInfo().frameId)] {
            wasDeliveredElsewhere |= QThread::currentThread() != QCoreApplication::instance()->thread();
            delivered.append(id);
        };
    }

    std::function<void()> beforeResult; ///< Called on the thread of the analysis.
    std::atomic<bool> wasOnGuiThread = false;
    bool wasDeliveredElsewhere = false;
    QVector<int> delivered;
    LiveAnalysis analysis{
        [this](const std::shared_ptr<const Image> &image) { return analyse(image); }, maxRate};
};

} // namespace

class TestLiveAnalysis : public QObject
{
    Q_OBJECT

private slots:
    void analysesTheNewestImageOnAnotherThread();
    void repeatAnalysesTheLastImageAgain();
    void clearForgetsImageAndResult();
    void emptyResultIsNotDelivered();
};

void TestLiveAnalysis::analysesTheNewestImageOnAnotherThread()
{
    Gate gate;
    AnalysisTest test;
    test.beforeResult = [&gate] { gate.pass(); };
    test.analysis.take(LiveImage::make(1));
    QVERIFY(gate.waitForArrival());
    for (std::uint64_t id = 2; id <= 50; ++id)
        test.analysis.take(LiveImage::make(id)); // Dropped except for the last one.
    gate.open();
    QTRY_COMPARE_WITH_TIMEOUT(test.delivered, (QVector<int>{1, 50}), bound);
    QVERIFY(!test.wasOnGuiThread);
    QVERIFY(!test.wasDeliveredElsewhere);
}

void TestLiveAnalysis::repeatAnalysesTheLastImageAgain()
{
    AnalysisTest test;
    test.analysis.repeat(); // There is nothing to analyse yet.
    test.analysis.take(LiveImage::make(3));
    QTRY_COMPARE_WITH_TIMEOUT(test.delivered, QVector<int>{3}, bound);
    test.analysis.repeat();
    QTRY_COMPARE_WITH_TIMEOUT(test.delivered, (QVector<int>{3, 3}), bound);
}

void TestLiveAnalysis::clearForgetsImageAndResult()
{
    Gate gate;
    AnalysisTest test;
    test.beforeResult = [&gate] { gate.pass(); };
    auto image = LiveImage::make(1);
    const std::weak_ptr<const Image> first = image;
    test.analysis.take(std::exchange(image, nullptr));
    QVERIFY(gate.waitForArrival());
    test.analysis.clear(); // While the image is analysed.
    gate.open();
    QTRY_VERIFY_WITH_TIMEOUT(first.expired(), bound);
    test.analysis.repeat(); // There is no image any more.
    test.analysis.take(LiveImage::make(2));
    QTRY_COMPARE_WITH_TIMEOUT(test.delivered, QVector<int>{2}, bound);
}

void TestLiveAnalysis::emptyResultIsNotDelivered()
{
    int delivered = 0;
    LiveAnalysis analysis(
        [&](const std::shared_ptr<const Image> &image) {
            return image->GetInfo().frameId == 1 ? LiveAnalysis::Deliver() : [&] { ++delivered; };
        },
        maxRate);
    analysis.take(LiveImage::make(1));
    analysis.take(LiveImage::make(2));
    QTRY_COMPARE_WITH_TIMEOUT(delivered, 1, bound);
}

QTEST_GUILESS_MAIN(TestLiveAnalysis)
#include "TestLiveAnalysis.moc"
