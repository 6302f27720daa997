// These tests check how filled buffers reach the consumer: the new-buffer event, its waits and its end.

#include "tests/producer/BufferPoolTest.h"

#include <future>

using namespace GenTL;

TEST_F(BufferPoolTest, filledBuffersWaitForAnEvent)
{
    pool.unregisterEvent();
    announce("ab");
    queue("ab");
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    take();
    deliver('a');
    event = pool.registerEvent();
    EXPECT_EQ(pool.fired(*event), 1U);
    take();
    deliver('b');
    EXPECT_EQ(pool.fired(*event), 2U);
    EXPECT_EQ(fetch(), 'a');
    pool.unregisterEvent();
    EXPECT_EQ(state('b'), "un") << "discarded with the event";
}

TEST_F(BufferPoolTest, fetchThatFailsLeavesTheBuffer)
{
    announce("a");
    queue("a");
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    take();
    deliver('a');
    char data[15];
    std::size_t size = sizeof data;
    EXPECT_EQ(pool.fetch(*event, data, &size, 0), GC_ERR_BUFFER_TOO_SMALL);
    size = 0;
    EXPECT_EQ(pool.fetch(*event, nullptr, &size, 0), GC_ERR_SUCCESS) << "without output, only removes it";
    EXPECT_EQ(size, 16U);
    EXPECT_EQ(fetch(), '-');
}

TEST_F(BufferPoolTest, killEndsExactlyOneFetch)
{
    std::vector<std::future<GC_ERROR>> waits;
    for (int i = 0; i < 3; ++i)
        waits.push_back(std::async(std::launch::async, [this] { return fetchCode(60000); }));
    pool.kill(*event);
    announce("ab");
    queue("ab");
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    take();
    take();
    deliver('a');
    deliver('b');
    std::map<GC_ERROR, int> codes;
    for (std::future<GC_ERROR> &wait : waits)
        ++codes[wait.get()];
    EXPECT_EQ(codes, (std::map<GC_ERROR, int>{{GC_ERR_ABORT, 1}, {GC_ERR_SUCCESS, 2}}));
}

TEST_F(BufferPoolTest, killWithoutAWaitEndsTheNextFetch)
{
    announce("a");
    queue("a");
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    take();
    deliver('a');
    pool.kill(*event);
    EXPECT_EQ(fetchCode(0), GC_ERR_ABORT);
    EXPECT_EQ(fetch(), 'a');
    pool.kill(*event);
    pool.unregisterEvent();
    event = pool.registerEvent();
    EXPECT_EQ(fetchCode(0), GC_ERR_TIMEOUT) << "forgotten with the event";
}

TEST_F(BufferPoolTest, unregisteringEndsAllFetches)
{
    std::vector<std::future<GC_ERROR>> waits;
    for (const std::uint64_t timeout : {std::uint64_t(60000), GENTL_INFINITE})
        waits.push_back(std::async(std::launch::async, [this, timeout, state = event] {
            std::size_t size = 0;
            return pool.fetch(*state, nullptr, &size, timeout);
        }));
    pool.unregisterEvent();
    event = pool.registerEvent();
    for (std::future<GC_ERROR> &wait : waits)
        EXPECT_EQ(wait.get(), GC_ERR_ABORT);
    EXPECT_EQ(fetchCode(1), GC_ERR_TIMEOUT);
}

TEST_F(BufferPoolTest, imagesPassBetweenTwoThreads)
{
    constexpr std::uint64_t images = 2000;
    announce("abc");
    queue("abc");
    EXPECT_EQ(start(images), GC_ERR_SUCCESS);
    std::thread source([this] {
        for (image.frameId = 0; image.frameId < images;) {
            const auto buffer = pool.take();
            if (!buffer) {
                std::this_thread::yield();
                continue;
            }
            pool.deliver(*buffer, image);
            ++image.frameId;
        }
    });
    for (std::uint64_t frame = 0; frame < images; ++frame) {
        const char letter = fetch(60000);
        std::uint64_t found = 0;
        INFO_DATATYPE type = INFO_DATATYPE_UNKNOWN;
        std::size_t size = sizeof found;
        ASSERT_EQ(pool.info(handles[letter], BUFFER_INFO_FRAMEID, InfoOutput(&type, &found, &size)),
            GC_ERR_SUCCESS);
        ASSERT_EQ(found, frame);
        queue(std::string(1, letter));
    }
    source.join();
    EXPECT_FALSE(pool.counts().isAcquiring);
}
