// These tests check the states of announced buffers and the queues between them.

#include "tests/producer/BufferPoolTest.h"

using namespace GenTL;

TEST_F(BufferPoolTest, bufferGoesFromTheConsumerThroughBothQueuesAndBack)
{
    announce("a");
    EXPECT_EQ(state('a'), "uo");
    queue("a");
    EXPECT_EQ(state('a'), "qo");
    EXPECT_EQ(take(), '-') << "not started";
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    EXPECT_EQ(take(), 'a');
    EXPECT_EQ(state('a'), "fo");
    pool.giveBack(taken['a']);
    EXPECT_EQ(state('a'), "qo");
    EXPECT_EQ(take(), 'a');
    deliver('a');
    EXPECT_EQ(state('a'), "qn");
    EXPECT_EQ(fetch(), 'a');
    EXPECT_EQ(state('a'), "un");
    EXPECT_EQ(fetch(), '-');
    queue("a");
    EXPECT_EQ(state('a'), "qo");
}

TEST_F(BufferPoolTest, onlyTheConsumersBuffersCanBeQueuedAndRevoked)
{
    announce("uiof");
    queue("fo");
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    EXPECT_EQ(take(), 'f');
    EXPECT_EQ(take(), 'o');
    deliver('o');
    queue("i");
    for (const char letter : {'i', 'o', 'f'}) {
        EXPECT_EQ(pool.queue(handles[letter]), GC_ERR_RESOURCE_IN_USE) << letter;
        EXPECT_EQ(pool.revoke(handles[letter], nullptr, nullptr), GC_ERR_BUSY) << letter;
    }
    void *memoryOutput = nullptr;
    void *userPointer = this;
    EXPECT_EQ(pool.revoke(handles['u'], &memoryOutput, &userPointer), GC_ERR_SUCCESS);
    EXPECT_EQ(memoryOutput, &memory['u']);
    EXPECT_EQ(userPointer, nullptr);
    for (void *const handle : {handles['u'], static_cast<void *>(nullptr), static_cast<void *>(this)}) {
        EXPECT_EQ(pool.queue(handle), GC_ERR_INVALID_HANDLE);
        EXPECT_EQ(pool.revoke(handle, nullptr, nullptr), GC_ERR_INVALID_HANDLE);
        EXPECT_EQ(pool.parts(handle), GC_ERR_INVALID_HANDLE);
    }
}

TEST_F(BufferPoolTest, announcingChecksItsArguments)
{
    announce("a");
    BUFFER_HANDLE handle = nullptr;
    std::uint8_t byte = 0;
    EXPECT_EQ(pool.announce(&memory['a'], 4, nullptr, &handle), GC_ERR_RESOURCE_IN_USE);
    EXPECT_EQ(pool.announce(nullptr, 4, nullptr, &handle), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(pool.announce(&byte, 1, nullptr, nullptr), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(pool.announce(&byte, 0, nullptr, &handle), GC_ERR_INVALID_BUFFER);
    EXPECT_EQ(pool.allocate(0, nullptr, &handle), GC_ERR_INVALID_BUFFER);
    EXPECT_EQ(pool.allocate(SIZE_MAX, nullptr, &handle), GC_ERR_OUT_OF_MEMORY);
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    EXPECT_EQ(pool.announce(&byte, 1, nullptr, &handle), GC_ERR_BUSY);
    EXPECT_EQ(pool.allocate(1, nullptr, &handle), GC_ERR_BUSY);
    pool.stop();
    EXPECT_EQ(pool.allocate(1, this, &handle), GC_ERR_SUCCESS);
    void *memoryOutput = this;
    void *userPointer = nullptr;
    EXPECT_EQ(pool.revoke(handle, &memoryOutput, &userPointer), GC_ERR_SUCCESS);
    EXPECT_EQ(memoryOutput, nullptr) << "the memory is the pool's";
    EXPECT_EQ(userPointer, this);
}

TEST_F(BufferPoolTest, buffersAreListedInTheOrderOfAnnouncing)
{
    announce("abc");
    queue("b");
    EXPECT_EQ(pool.revoke(handles['a'], nullptr, nullptr), GC_ERR_SUCCESS);
    BUFFER_HANDLE handle = nullptr;
    for (const auto &[index, letter] : {std::pair(0U, 'b'), {1U, 'c'}}) {
        EXPECT_EQ(pool.handleAt(index, &handle), GC_ERR_SUCCESS);
        EXPECT_EQ(letterOf(handle), letter);
    }
    EXPECT_EQ(pool.handleAt(2, &handle), GC_ERR_INVALID_INDEX);
    EXPECT_EQ(pool.handleAt(0, nullptr), GC_ERR_INVALID_PARAMETER);
}

TEST_F(BufferPoolTest, flushMovesBuffersBetweenTheQueues)
{
    struct Row
    {
        ACQ_QUEUE_TYPE operation;
        const char *states; // States of the buffers u, i, o and f.
        const char
            *drained; // Input pool / output queue, after the buffer that is being filled was delivered.
    };
    const Row rows[] = {
        {ACQ_QUEUE_INPUT_TO_OUTPUT, "uo qo qn fo", "/oif"},
        {ACQ_QUEUE_OUTPUT_DISCARD, "uo qo un fo", "i/f"},
        {ACQ_QUEUE_ALL_TO_INPUT, "qo qo qo fo", "iouf/"},
        {ACQ_QUEUE_UNQUEUED_TO_INPUT, "qo qo qn fo", "iu/of"},
        {ACQ_QUEUE_ALL_DISCARD, "uo uo un fo", "/f"},
    };
    announce("uiof");
    for (const Row &row : rows) {
        queue("fo");
        EXPECT_EQ(start(), GC_ERR_SUCCESS);
        EXPECT_EQ(take(), 'f');
        EXPECT_EQ(take(), 'o');
        deliver('o');
        queue("i");
        EXPECT_EQ(pool.flush(row.operation), GC_ERR_SUCCESS);
        EXPECT_EQ(state('u') + ' ' + state('i') + ' ' + state('o') + ' ' + state('f'), row.states);
        deliver('f');
        EXPECT_EQ(drain(), row.drained) << row.operation;
        for (const auto &[letter, buffer] : taken)
            if (state(letter) == "fo")
                pool.giveBack(buffer);
        pool.stop();
        EXPECT_EQ(pool.flush(ACQ_QUEUE_ALL_DISCARD), GC_ERR_SUCCESS);
    }
    EXPECT_EQ(pool.flush(5), GC_ERR_NOT_IMPLEMENTED);
    EXPECT_EQ(pool.flush(-1), GC_ERR_NOT_IMPLEMENTED);
}

TEST_F(BufferPoolTest, acquisitionEndsAfterTheRequestedImages)
{
    announce("abc");
    queue("abc");
    EXPECT_EQ(start(2), GC_ERR_SUCCESS);
    EXPECT_EQ(take(), 'a');
    pool.giveBack(taken['a']); // Does not count.
    EXPECT_EQ(take(), 'b');
    EXPECT_EQ(take(), 'c');
    EXPECT_EQ(take(), '-');
    pool.countUnderrun(1); // Not an underrun, because no more images are wanted.
    deliver('b');
    EXPECT_TRUE(pool.counts().isAcquiring);
    deliver('c');
    EXPECT_FALSE(pool.counts().isAcquiring);
    EXPECT_EQ(pool.counts().underruns, 0U);
    EXPECT_EQ(start(), GC_ERR_RESOURCE_IN_USE) << "the stop is missing";
    pool.stop();
    EXPECT_EQ(fetch(), 'b') << "the stop moves nothing";
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    EXPECT_EQ(pool.counts().fetched, 0U) << "counted since the start";
    EXPECT_EQ(fetch(), 'c');
    EXPECT_EQ(pool.counts().fetched, 1U);
}

TEST_F(BufferPoolTest, startChecksTheBuffers)
{
    EXPECT_EQ(pool.start(1, 1, 16), GC_ERR_INVALID_BUFFER);
    announce("ab");
    EXPECT_EQ(pool.start(0, 1, 16), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(pool.start(1, 3, 16), GC_ERR_INVALID_BUFFER);
    EXPECT_EQ(pool.start(1, 2, 17), GC_ERR_BUFFER_TOO_SMALL);
    EXPECT_EQ(pool.start(1, 2, 16), GC_ERR_SUCCESS);
}

TEST_F(BufferPoolTest, countsFollowTheBuffers)
{
    announce("abcd");
    queue("abc");
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    take();
    take();
    deliver('a');
    pool.countUnderrun(3);
    const BufferPool::Counts counts = pool.counts();
    EXPECT_EQ(counts.announced, 4U);
    EXPECT_EQ(counts.queued, 2U) << "one that waits and one that is being filled";
    EXPECT_EQ(counts.awaitingDelivery, 1U);
    EXPECT_EQ(counts.fetched, 0U);
    EXPECT_EQ(counts.underruns, 3U);
    pool.stop();
    pool.countUnderrun(1);
    EXPECT_EQ(pool.counts().underruns, 3U);
}
