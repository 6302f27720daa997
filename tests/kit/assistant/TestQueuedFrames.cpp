#include "tests/kit/live/LiveImage.h"
#include "tools/kit/assistant/QueuedFrames.h"

#include <QtTest>

#include <thread>

using namespace CvxCPP;

namespace {

using std::chrono_literals::operator""ms;
using std::chrono_literals::operator""s;

/// Returns the frame IDs of the images that wait.
QVector<int> waitingIds(QueuedFrames &frames)
{
    QVector<int> ids;
    std::shared_ptr<const Image> image;
    while (frames.next(0ms, image))
        ids.append(int(image->GetInfo().frameId));
    return ids;
}

} // namespace

class TestQueuedFrames : public QObject
{
    Q_OBJECT

private slots:
    void keepsTheNewestImagesInOrder();
    void discardedImagesAreReleased();
    void nextWaitsForAnImage();
    void closeEndsEveryNext();
};

void TestQueuedFrames::keepsTheNewestImagesInOrder()
{
    QueuedFrames frames(3);
    auto oldest = LiveImage::make(1);
    const std::weak_ptr<const Image> released = oldest;
    frames.take(std::exchange(oldest, nullptr));
    for (std::uint64_t id = 2; id <= 4; ++id)
        frames.take(LiveImage::make(id));
    QVERIFY(released.expired());
    QCOMPARE(waitingIds(frames), (QVector<int>{2, 3, 4}));
    std::shared_ptr<const Image> image;
    QCOMPARE(frames.next(1ms, image).code, CvxErrorTimeout);
}

void TestQueuedFrames::discardedImagesAreReleased()
{
    QueuedFrames frames(3);
    auto image = LiveImage::make(1);
    const std::weak_ptr<const Image> released = image;
    frames.take(std::exchange(image, nullptr));
    frames.discard();
    QVERIFY(released.expired());
    frames.take(LiveImage::make(2));
    QCOMPARE(waitingIds(frames), QVector<int>{2});
}

void TestQueuedFrames::nextWaitsForAnImage()
{
    QueuedFrames frames(3);
    std::thread stream([&] { frames.take(LiveImage::make(7)); });
    std::shared_ptr<const Image> image;
    const CvxResult result = frames.next(30s, image);
    stream.join();
    QCOMPARE(result.code, CvxErrorSuccess);
    QCOMPARE(image->GetInfo().frameId, std::uint64_t(7));
}

void TestQueuedFrames::closeEndsEveryNext()
{
    QueuedFrames frames(3);
    std::thread other([&] { frames.close(); });
    std::shared_ptr<const Image> image;
    const CvxResult result = frames.next(30s, image);
    other.join();
    QCOMPARE(result.code, CvxErrorClosed);
    frames.take(LiveImage::make(1));
    QCOMPARE(frames.next(30s, image).code, CvxErrorClosed);
}

QTEST_GUILESS_MAIN(TestQueuedFrames)
#include "TestQueuedFrames.moc"
