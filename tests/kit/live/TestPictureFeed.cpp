#include "tests/kit/live/LiveImage.h"
#include "tools/kit/live/PictureFeed.h"

#include <QtTest>

#include <atomic>
#include <thread>

namespace {

constexpr int bound = 10000; // Milliseconds.

/// An image of 4 x 2 pixels that knows whether another thread has read its size.
class ObservedImage : public LiveImage
{
public:
    explicit ObservedImage(std::uint64_t frameId) : LiveImage(frameId, 4, 2, 0) { }

    const CvxCPP::ImageInfo &GetInfo() const override
    {
        if (std::this_thread::get_id() != m_owner)
            isReadElsewhere = true;
        return LiveImage::GetInfo();
    }

    mutable std::atomic<bool> isReadElsewhere = false;

private:
    const std::thread::id m_owner = std::this_thread::get_id();
};

/// A feed, and what it has reported.
struct FeedTest
{
    FeedTest()
    {
        QObject::connect(&feed, &PictureFeed::rendered, &feed,
            [this](const ShownPicture &picture) { pictures.append(picture); });
        QObject::connect(&feed, &PictureFeed::pictureSizeChanged, &feed,
            [this](const QSize &size) { sizes.append(size); });
    }

    /// Requests the whole picture of this size.
    void request(const QSize &size, const DisplaySettings &settings = {})
    {
        feed.setRequest({size, QRect(QPoint(), size), size, settings});
    }

    /// Delivers an image and waits for its picture.
    void show(std::uint64_t frameId)
    {
        const int count = pictures.size();
        feed.take(LiveImage::make(frameId));
        QVERIFY(QTest::qWaitFor([this, count] { return pictures.size() > count; }, bound));
    }

    /// Waits until the feed has handled everything that was called before, because the thread of the feed
    /// then renders another picture.
    void settle()
    {
        const int count = pictures.size();
        request({4, 2});
        QVERIFY(QTest::qWaitFor([this, count] { return pictures.size() > count; }, bound));
    }

    std::uint64_t lastId() const { return pictures.last().image->GetInfo().frameId; }

    PictureFeed feed;
    QVector<ShownPicture> pictures;
    QVector<QSize> sizes;
};

QRgb grey(int value)
{
    return qRgb(value, value, value);
}

} // namespace

class TestPictureFeed : public QObject
{
    Q_OBJECT

private slots:
    void firstImageAsksForItsRequest();
    void rendersOnlyTheRequestedRegion();
    void newestImageWinsUntilAccepted();
    void requestRendersThePresentImageAgain();
    void frozenImageStays();
    void imageOfAnotherSizeWaitsForItsRequest();
    void nothingIsRenderedWhileNothingIsVisible();
    void clearForgetsEverything();
    void shownPixelsAreNotOverwritten();
    void imagesAreReleased();
};

void TestPictureFeed::firstImageAsksForItsRequest()
{
    FeedTest test;
    test.feed.take(LiveImage::make(7));
    QTRY_COMPARE_WITH_TIMEOUT(test.sizes, QVector<QSize>{QSize(4, 2)}, bound);
    QVERIFY(test.pictures.isEmpty());
    QVERIFY(!test.feed.image());
    test.request({4, 2});
    QTRY_COMPARE_WITH_TIMEOUT(test.pictures.size(), 1, bound);
    const ShownPicture &picture = test.pictures[0];
    QCOMPARE(picture.pixels.size(), QSize(4, 2));
    QCOMPARE(picture.pixels.pixel(3, 1), grey(7));
    QCOMPARE(picture.pictureSize, QSize(4, 2));
    QCOMPARE(picture.image, test.feed.image());
    QCOMPARE(test.feed.shownCount(), std::uint64_t(1));
    QCOMPARE(test.feed.skippedCount(), std::uint64_t(0));
}

void TestPictureFeed::rendersOnlyTheRequestedRegion()
{
    FeedTest test;
    // The region is larger than the picture and is cut to it.
    test.feed.setRequest({QSize(4, 2), QRect(2, 0, 9, 9), QSize(1, 1), {}});
    test.show(3);
    QCOMPARE(test.pictures[0].region, QRect(2, 0, 2, 2));
    QCOMPARE(test.pictures[0].pixels.size(), QSize(1, 1));
}

void TestPictureFeed::newestImageWinsUntilAccepted()
{
    FeedTest test;
    test.request({4, 2});
    test.show(1);
    constexpr std::uint64_t last = 2000;
    bool hasWoken = false; // The thread of the feed, although it could not render.
    for (std::uint64_t id = 2; id <= last; ++id) {
        const auto image = std::make_shared<ObservedImage>(id);
        test.feed.take(image);
        hasWoken = hasWoken || image->isReadElsewhere;
    }
    QVERIFY(!hasWoken);
    QCOMPARE(test.feed.skippedCount(), last - 2); // The last one still waits.
    QCOMPARE(test.feed.shownCount(), std::uint64_t(1));
    test.feed.accept();
    QTRY_COMPARE_WITH_TIMEOUT(test.pictures.size(), 2, bound);
    QCOMPARE(test.lastId(), last);
    QCOMPARE(test.feed.shownCount(), std::uint64_t(2));
    QCOMPARE(test.feed.skippedCount(), last - 2);
}

void TestPictureFeed::requestRendersThePresentImageAgain()
{
    FeedTest test;
    test.request({4, 2});
    test.show(100);
    DisplaySettings settings;
    settings.curve.white = 0.2;
    test.request({4, 2}, settings); // Without accept().
    QTRY_COMPARE_WITH_TIMEOUT(test.pictures.size(), 2, bound);
    QCOMPARE(test.pictures[1].pixels.pixel(0, 0), grey(255));
    QCOMPARE(test.lastId(), std::uint64_t(100));
    QCOMPARE(test.feed.shownCount(), std::uint64_t(1)); // It is the same image.
}

void TestPictureFeed::frozenImageStays()
{
    FeedTest test;
    test.request({4, 2});
    test.show(1);
    test.feed.take(LiveImage::make(2)); // Waits for accept().
    test.feed.setFrozen(true);
    test.feed.take(LiveImage::make(3));
    test.feed.accept();
    test.settle();
    QVERIFY(test.feed.isFrozen());
    QCOMPARE(test.lastId(), std::uint64_t(1));
    QCOMPARE(test.feed.image()->GetInfo().frameId, std::uint64_t(1));
    QCOMPARE(test.feed.skippedCount(), std::uint64_t(1)); // 2 was not shown; 3 is not counted.
    test.feed.setFrozen(false);
    test.feed.accept();
    test.show(4);
    QCOMPARE(test.lastId(), std::uint64_t(4));
    QCOMPARE(test.feed.shownCount(), std::uint64_t(2));
}

void TestPictureFeed::imageOfAnotherSizeWaitsForItsRequest()
{
    FeedTest test;
    test.request({4, 2});
    test.show(1);
    test.feed.take(LiveImage::make(2, 8, 6));
    QTRY_COMPARE_WITH_TIMEOUT(test.sizes, QVector<QSize>{QSize(8, 6)}, bound);
    test.request({4, 2}); // Made before the new size was known.
    QTRY_COMPARE_WITH_TIMEOUT(test.sizes.size(), 2, bound);
    test.feed.take(LiveImage::make(3, 8, 6)); // Its size is known already.
    test.request({8, 6});
    QTRY_COMPARE_WITH_TIMEOUT(test.pictures.size(), 2, bound);
    QCOMPARE(test.pictures[1].pixels.size(), QSize(8, 6));
    QCOMPARE(test.lastId(), std::uint64_t(3));
    QCOMPARE(test.sizes.size(), 2);
}

void TestPictureFeed::nothingIsRenderedWhileNothingIsVisible()
{
    FeedTest test;
    test.feed.setRequest({QSize(4, 2), QRect(), QSize(), {}});
    test.feed.take(LiveImage::make(1));
    test.feed.take(LiveImage::make(2));
    QCOMPARE(test.feed.skippedCount(), std::uint64_t(1));
    test.request({4, 2});
    QTRY_COMPARE_WITH_TIMEOUT(test.pictures.size(), 1, bound);
    QCOMPARE(test.lastId(), std::uint64_t(2));
    QCOMPARE(test.feed.shownCount(), std::uint64_t(1));
}

void TestPictureFeed::clearForgetsEverything()
{
    FeedTest test;
    test.request({4, 2});
    test.show(1);
    test.feed.take(LiveImage::make(2));
    test.feed.setFrozen(true);
    test.feed.clear();
    QVERIFY(!test.feed.image());
    QVERIFY(!test.feed.isFrozen());
    QCOMPARE(test.feed.shownCount() + test.feed.skippedCount(), std::uint64_t(0));
    test.show(3); // Without accept().
    QCOMPARE(test.lastId(), std::uint64_t(3));
}

void TestPictureFeed::shownPixelsAreNotOverwritten()
{
    FeedTest test;
    test.request({4, 2});
    for (std::uint64_t id = 1; id <= 8; ++id) {
        test.show(id); // The test keeps all pictures.
        test.feed.accept();
    }
    for (int i = 0; i < 8; ++i)
        QCOMPARE(test.pictures[i].pixels.pixel(0, 0), grey(i + 1));

    // Pictures that nobody keeps use the same few pieces of memory.
    QSet<const uchar *> memory;
    for (std::uint64_t id = 1; id <= 20; ++id) {
        test.pictures.clear();
        test.show(id);
        memory.insert(test.pictures[0].pixels.constBits());
        test.feed.accept();
    }
    QVERIFY(memory.size() <= 3);
}

void TestPictureFeed::imagesAreReleased()
{
    FeedTest test;
    test.request({4, 2});
    auto image = LiveImage::make(1);
    const std::weak_ptr<const CvxCPP::Image> first = image;
    test.feed.take(image);
    image.reset();
    QTRY_COMPARE_WITH_TIMEOUT(test.pictures.size(), 1, bound);
    test.feed.accept();
    test.show(2);
    test.pictures.clear();
    QTRY_VERIFY_WITH_TIMEOUT(first.expired(), bound);
    test.feed.clear();
    QVERIFY(!test.feed.image());
}

QTEST_GUILESS_MAIN(TestPictureFeed)
#include "TestPictureFeed.moc"
