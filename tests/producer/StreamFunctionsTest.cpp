// These tests check the stream of the test producer's camera: acquisition, information, chunks.

#include "tests/producer/CameraSession.h"

using namespace GenTL;

class StreamFunctions : public CameraSession
{
protected:
    StreamFunctions()
    {
        openStream();
        event = registerEvent(stream, EVENT_NEW_BUFFER);
    }

    /// Lets the camera fill one buffer and returns it.
    BUFFER_HANDLE nextBuffer()
    {
        writeRegister(Registers::deliver, 1);
        BUFFER_HANDLE buffer = nullptr;
        EXPECT_EQ(fetch(event, &buffer), GC_ERR_SUCCESS);
        return buffer;
    }

    std::uint64_t bufferSize(BUFFER_HANDLE buffer, BUFFER_INFO_CMD command) const
    {
        return readLong(bufferInfo(buffer, command), INFO_DATATYPE_SIZET);
    }
    std::uint64_t bufferNumber(BUFFER_HANDLE buffer, BUFFER_INFO_CMD command) const
    {
        return readLong(bufferInfo(buffer, command), INFO_DATATYPE_UINT64);
    }
    bool bufferFlag(BUFFER_HANDLE buffer, BUFFER_INFO_CMD command) const
    {
        return readBool(bufferInfo(buffer, command));
    }

    EVENT_HANDLE event = nullptr;
};

TEST_F(StreamFunctions, startAndStopCheckTheirArguments)
{
    EXPECT_EQ(start(), GC_ERR_INVALID_BUFFER) << "no buffer is announced";
    queueBuffer(63);
    EXPECT_EQ(start(), GC_ERR_BUFFER_TOO_SMALL);
    writeRegister(Registers::payloadSize, 63);
    writeRegister(Registers::minBuffers, 2);
    EXPECT_EQ(start(), GC_ERR_INVALID_BUFFER);
    writeRegister(Registers::minBuffers, 1);
    EXPECT_EQ(start(0), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(producer.DSStartAcquisition(stream, 1, 1), GC_ERR_NOT_IMPLEMENTED);
    EXPECT_EQ(producer.DSStopAcquisition(stream, ACQ_STOP_FLAGS_DEFAULT), GC_ERR_RESOURCE_IN_USE);
    writeRegister(Registers::startFailure, static_cast<std::uint64_t>(GC_ERR_IO));
    EXPECT_EQ(start(), GC_ERR_IO);
    EXPECT_EQ(session.lastError().second, "The camera does not start.");
    EXPECT_EQ(producer.DSStopAcquisition(stream, ACQ_STOP_FLAGS_DEFAULT), GC_ERR_RESOURCE_IN_USE);
    writeRegister(Registers::startFailure, 0);
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    EXPECT_EQ(start(), GC_ERR_RESOURCE_IN_USE);
    EXPECT_EQ(producer.DSStopAcquisition(stream, 2), GC_ERR_NOT_IMPLEMENTED);
    EXPECT_EQ(producer.DSStopAcquisition(stream, ACQ_STOP_FLAGS_KILL), GC_ERR_SUCCESS);
    EXPECT_EQ(producer.DSStopAcquisition(stream, ACQ_STOP_FLAGS_KILL), GC_ERR_RESOURCE_IN_USE);
}

TEST_F(StreamFunctions, stopEndsTheImageInProgress)
{
    const BUFFER_HANDLE buffer = queueBuffer();
    for (const ACQ_STOP_FLAGS flags : {ACQ_STOP_FLAGS_DEFAULT, ACQ_STOP_FLAGS_KILL}) {
        EXPECT_EQ(start(), GC_ERR_SUCCESS);
        writeRegister(Registers::take, 1);
        EXPECT_TRUE(bufferFlag(buffer, BUFFER_INFO_IS_ACQUIRING));
        EXPECT_EQ(producer.DSStopAcquisition(stream, flags), GC_ERR_SUCCESS);
        BUFFER_HANDLE found = nullptr;
        EXPECT_EQ(fetch(event, &found), GC_ERR_SUCCESS);
        EXPECT_EQ(found, buffer);
        EXPECT_EQ(bufferFlag(buffer, BUFFER_INFO_IS_INCOMPLETE), flags == ACQ_STOP_FLAGS_KILL);
        EXPECT_EQ(producer.DSQueueBuffer(stream, buffer), GC_ERR_SUCCESS);
    }
}

TEST_F(StreamFunctions, sourceIsToldOfQueuedBuffersWhileItRuns)
{
    const BUFFER_HANDLE buffer = queueBuffer();
    EXPECT_EQ(readRegister(Registers::queuedNotices), 0U);
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    EXPECT_EQ(nextBuffer(), buffer);
    EXPECT_EQ(producer.DSQueueBuffer(stream, buffer), GC_ERR_SUCCESS);
    EXPECT_EQ(readRegister(Registers::queuedNotices), 1U);
    EXPECT_EQ(nextBuffer(), buffer);
    EXPECT_EQ(producer.DSFlushQueue(stream, ACQ_QUEUE_UNQUEUED_TO_INPUT), GC_ERR_SUCCESS);
    EXPECT_EQ(readRegister(Registers::queuedNotices), 2U);
    EXPECT_EQ(nextBuffer(), buffer);
    EXPECT_EQ(producer.DSStopAcquisition(stream, ACQ_STOP_FLAGS_DEFAULT), GC_ERR_SUCCESS);
    EXPECT_EQ(producer.DSQueueBuffer(stream, buffer), GC_ERR_SUCCESS);
    EXPECT_EQ(readRegister(Registers::queuedNotices), 2U);
}

TEST_F(StreamFunctions, streamReportsItsState)
{
    announceBuffer();
    queueBuffer();
    queueBuffer();
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    nextBuffer();
    writeRegister(Registers::deliver, 10); // One finds a buffer.
    const std::pair<STREAM_INFO_CMD, std::uint64_t> numbers[]
        = {{STREAM_INFO_NUM_DELIVERED, 1}, {STREAM_INFO_NUM_UNDERRUN, 9}, {STREAM_INFO_NUM_STARTED, 11}};
    for (const auto &[command, value] : numbers)
        EXPECT_EQ(readLong(streamInfo(command), INFO_DATATYPE_UINT64), value) << command;
    const std::pair<STREAM_INFO_CMD, std::uint64_t> sizes[] = {{STREAM_INFO_NUM_ANNOUNCED, 3},
        {STREAM_INFO_NUM_QUEUED, 0}, {STREAM_INFO_NUM_AWAIT_DELIVERY, 1}, {STREAM_INFO_PAYLOAD_SIZE, 64},
        {STREAM_INFO_BUF_ANNOUNCE_MIN, 1}, {STREAM_INFO_BUF_ALIGNMENT, 1}};
    for (const auto &[command, value] : sizes)
        EXPECT_EQ(readLong(streamInfo(command), INFO_DATATYPE_SIZET), value) << command;
    EXPECT_EQ(readString(streamInfo(STREAM_INFO_ID)), streamId());
    EXPECT_EQ(readString(streamInfo(STREAM_INFO_TLTYPE)), TLTypeGEVName);
    EXPECT_TRUE(readBool(streamInfo(STREAM_INFO_IS_GRABBING)));
    EXPECT_TRUE(readBool(streamInfo(STREAM_INFO_DEFINES_PAYLOADSIZE)));
    EXPECT_EQ(codeOf(streamInfo(STREAM_INFO_NUM_CHUNKS_MAX)), GC_ERR_NOT_AVAILABLE);
    writeRegister(Registers::maxChunks, 3);
    EXPECT_EQ(readLong(streamInfo(STREAM_INFO_NUM_CHUNKS_MAX), INFO_DATATYPE_SIZET), 3U);
    for (const STREAM_INFO_CMD command : {-1, 14, 15, 1000})
        EXPECT_EQ(codeOf(streamInfo(command)), GC_ERR_NOT_IMPLEMENTED) << command;
    EXPECT_EQ(producer.DSStopAcquisition(stream, ACQ_STOP_FLAGS_DEFAULT), GC_ERR_SUCCESS);
    EXPECT_FALSE(readBool(streamInfo(STREAM_INFO_IS_GRABBING)));

    EXPECT_EQ(producer.DSClose(stream), GC_ERR_SUCCESS);
    openStream();
    for (const auto &[command, value] : numbers)
        EXPECT_EQ(readLong(streamInfo(command), INFO_DATATYPE_UINT64), 0U) << "a new stream counts anew";
}

TEST_F(StreamFunctions, filledBufferDescribesItsPicture)
{
    queueBuffer();
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    const BUFFER_HANDLE buffer = nextBuffer();
    const std::pair<BUFFER_INFO_CMD, std::uint64_t> sizes[]
        = {{BUFFER_INFO_SIZE, 64}, {BUFFER_INFO_SIZE_FILLED, 8}, {BUFFER_INFO_WIDTH, 4},
            {BUFFER_INFO_HEIGHT, 2}, {BUFFER_INFO_XOFFSET, 3}, {BUFFER_INFO_YOFFSET, 5},
            {BUFFER_INFO_XPADDING, 6}, {BUFFER_INFO_YPADDING, 7}, {BUFFER_INFO_IMAGEOFFSET, 1},
            {BUFFER_INFO_PAYLOADTYPE, PAYLOAD_TYPE_IMAGE}, {BUFFER_INFO_DELIVERED_IMAGEHEIGHT, 2},
            {BUFFER_INFO_DELIVERED_CHUNKPAYLOADSIZE, 0}, {BUFFER_INFO_DATA_SIZE, 8}};
    for (const auto &[command, value] : sizes)
        EXPECT_EQ(bufferSize(buffer, command), value) << command;
    const std::pair<BUFFER_INFO_CMD, std::uint64_t> numbers[]
        = {{BUFFER_INFO_TIMESTAMP, 1500}, {BUFFER_INFO_TIMESTAMP_NS, 1'500'000'000}, {BUFFER_INFO_FRAMEID, 1},
            {BUFFER_INFO_PIXELFORMAT, 0x01080001},
            {BUFFER_INFO_PIXELFORMAT_NAMESPACE, PIXELFORMAT_NAMESPACE_PFNC_32BIT},
            {BUFFER_INFO_CHUNKLAYOUTID, 0}};
    for (const auto &[command, value] : numbers)
        EXPECT_EQ(bufferNumber(buffer, command), value) << command;
    const std::pair<BUFFER_INFO_CMD, bool> flags[]
        = {{BUFFER_INFO_NEW_DATA, true}, {BUFFER_INFO_IS_QUEUED, false}, {BUFFER_INFO_IS_ACQUIRING, false},
            {BUFFER_INFO_IS_INCOMPLETE, false}, {BUFFER_INFO_IMAGEPRESENT, true},
            {BUFFER_INFO_DATA_LARGER_THAN_BUFFER, false}, {BUFFER_INFO_CONTAINS_CHUNKDATA, false}};
    for (const auto &[command, value] : flags)
        EXPECT_EQ(bufferFlag(buffer, command), value) << command;
    const std::pair<BUFFER_INFO_CMD, void *> pointers[]
        = {{BUFFER_INFO_BASE, memory[0].get()}, {BUFFER_INFO_USER_PTR, this}};
    for (const auto &[command, value] : pointers)
        EXPECT_EQ(readLong(bufferInfo(buffer, command), INFO_DATATYPE_PTR),
            reinterpret_cast<std::uintptr_t>(value));
    EXPECT_EQ(readString(bufferInfo(buffer, BUFFER_INFO_TLTYPE)), TLTypeGEVName);
    EXPECT_EQ(readNumber(bufferInfo(buffer, BUFFER_INFO_PIXEL_ENDIANNESS), INFO_DATATYPE_INT32),
        PIXELENDIANNESS_LITTLE);
    EXPECT_EQ(codeOf(bufferInfo(buffer, BUFFER_INFO_FILENAME)), GC_ERR_NO_DATA);
    for (const BUFFER_INFO_CMD command : {-1, BUFFER_INFO_IS_COMPOSITE, 1000})
        EXPECT_EQ(codeOf(bufferInfo(buffer, command)), GC_ERR_NOT_IMPLEMENTED) << command;
    EXPECT_EQ(std::string(memory[0].get(), 8), std::string(8, 1));
}

TEST_F(StreamFunctions, bufferWithoutPictureDoesNotDescribeOne)
{
    const BUFFER_HANDLE buffer = queueBuffer();
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    const auto expectNoPicture = [&] {
        for (const BUFFER_INFO_CMD command : {BUFFER_INFO_WIDTH, BUFFER_INFO_HEIGHT, BUFFER_INFO_XOFFSET,
                 BUFFER_INFO_YOFFSET, BUFFER_INFO_XPADDING, BUFFER_INFO_YPADDING, BUFFER_INFO_IMAGEOFFSET,
                 BUFFER_INFO_PIXELFORMAT, BUFFER_INFO_PIXELFORMAT_NAMESPACE,
                 BUFFER_INFO_DELIVERED_IMAGEHEIGHT, BUFFER_INFO_PIXEL_ENDIANNESS})
            EXPECT_EQ(codeOf(bufferInfo(buffer, command)), GC_ERR_NO_DATA) << command;
        EXPECT_FALSE(bufferFlag(buffer, BUFFER_INFO_IMAGEPRESENT));
    };
    expectNoPicture();
    EXPECT_EQ(bufferSize(buffer, BUFFER_INFO_PAYLOADTYPE), PAYLOAD_TYPE_UNKNOWN);
    EXPECT_EQ(nextBuffer(), buffer);
    EXPECT_TRUE(bufferFlag(buffer, BUFFER_INFO_IMAGEPRESENT));
    EXPECT_EQ(producer.DSQueueBuffer(stream, buffer), GC_ERR_SUCCESS);
    expectNoPicture();
    EXPECT_EQ(bufferSize(buffer, BUFFER_INFO_SIZE_FILLED), 0U) << "0 again after queueing";
    EXPECT_EQ(bufferSize(buffer, BUFFER_INFO_DATA_SIZE), 0U);
    writeRegister(Registers::width, 0);
    EXPECT_EQ(nextBuffer(), buffer);
    expectNoPicture();
}

TEST_F(StreamFunctions, incompleteAndTooLargeImagesAreMarked)
{
    queueBuffer();
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    writeRegister(Registers::isIncomplete, 1);
    writeRegister(Registers::dataSize, 65);
    const BUFFER_HANDLE buffer = nextBuffer();
    EXPECT_TRUE(bufferFlag(buffer, BUFFER_INFO_IS_INCOMPLETE));
    EXPECT_TRUE(bufferFlag(buffer, BUFFER_INFO_DATA_LARGER_THAN_BUFFER));
}

TEST_F(StreamFunctions, chunksAreListed)
{
    const BUFFER_HANDLE buffer = queueBuffer();
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    std::size_t count = 0;
    EXPECT_EQ(producer.DSGetBufferChunkData(stream, buffer, nullptr, &count), GC_ERR_NO_DATA);
    writeRegister(Registers::chunks, 2);
    EXPECT_EQ(nextBuffer(), buffer);
    EXPECT_TRUE(bufferFlag(buffer, BUFFER_INFO_CONTAINS_CHUNKDATA));
    EXPECT_EQ(bufferSize(buffer, BUFFER_INFO_DELIVERED_CHUNKPAYLOADSIZE), 24U) << "with their trailers";
    EXPECT_EQ(producer.DSGetBufferChunkData(stream, buffer, nullptr, &count), GC_ERR_SUCCESS);
    EXPECT_EQ(count, 2U);
    SINGLE_CHUNK_DATA chunks[3] = {};
    count = 1;
    EXPECT_EQ(producer.DSGetBufferChunkData(stream, buffer, chunks, &count), GC_ERR_BUFFER_TOO_SMALL);
    count = 3;
    EXPECT_EQ(producer.DSGetBufferChunkData(stream, buffer, chunks, &count), GC_ERR_SUCCESS);
    EXPECT_EQ(count, 2U);
    EXPECT_EQ(chunks[1].ChunkID, 101U);
    EXPECT_EQ(chunks[1].ChunkOffset, 12);
    EXPECT_EQ(chunks[1].ChunkLength, 4U);
    EXPECT_EQ(producer.DSGetBufferChunkData(stream, buffer, chunks, nullptr), GC_ERR_INVALID_PARAMETER);
}

TEST_F(StreamFunctions, chunksOutsideTheBufferAreRefused)
{
    const BUFFER_HANDLE buffer = queueBuffer();
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    writeRegister(Registers::chunks, 1);
    std::size_t count = 0;
    const std::tuple<std::int64_t, std::uint64_t, GC_ERROR> expected[]
        = {{60, 4, GC_ERR_SUCCESS}, {61, 4, GC_ERR_PARSING_CHUNK_DATA}, {64, 1, GC_ERR_PARSING_CHUNK_DATA},
            {65, 0, GC_ERR_PARSING_CHUNK_DATA}, {-1, 1, GC_ERR_PARSING_CHUNK_DATA},
            {60, UINT64_MAX - 30, GC_ERR_PARSING_CHUNK_DATA}};
    for (const auto &[offset, length, code] : expected) {
        writeRegister(Registers::chunkOffset, static_cast<std::uint64_t>(offset));
        writeRegister(Registers::chunkLength, length);
        EXPECT_EQ(nextBuffer(), buffer);
        EXPECT_EQ(producer.DSGetBufferChunkData(stream, buffer, nullptr, &count), code) << offset;
        EXPECT_EQ(producer.DSQueueBuffer(stream, buffer), GC_ERR_SUCCESS);
    }
}

TEST_F(StreamFunctions, buffersHaveNoParts)
{
    const BUFFER_HANDLE buffer = announceBuffer();
    std::uint32_t count = 0;
    EXPECT_EQ(producer.DSGetNumBufferParts(stream, buffer, &count), GC_ERR_NO_DATA);
    EXPECT_EQ(producer.DSGetNumBufferParts(stream, nullptr, &count), GC_ERR_INVALID_HANDLE);
    EXPECT_EQ(producer.DSGetNumBufferParts(stream, buffer, nullptr), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(codeOf(infoCall(producer.DSGetBufferPartInfo, stream, buffer, 0, BUFFER_PART_INFO_BASE)),
        GC_ERR_NO_DATA);
}

TEST_F(StreamFunctions, bufferBelongsToItsStreamOnly)
{
    BUFFER_HANDLE buffer = nullptr;
    EXPECT_EQ(producer.DSAllocAndAnnounceBuffer(stream, 64, nullptr, &buffer), GC_ERR_SUCCESS);
    EXPECT_EQ(codeOf(bufferInfo(buffer, BUFFER_INFO_BASE)), GC_ERR_SUCCESS);
    EXPECT_EQ(producer.DSClose(stream), GC_ERR_SUCCESS);
    openStream();
    EXPECT_EQ(codeOf(bufferInfo(buffer, BUFFER_INFO_BASE)), GC_ERR_INVALID_HANDLE);
    EXPECT_EQ(producer.DSQueueBuffer(stream, buffer), GC_ERR_INVALID_HANDLE);
    EXPECT_EQ(
        codeOf(infoCall(producer.DSGetBufferInfo, buffer, buffer, BUFFER_INFO_BASE)), GC_ERR_INVALID_HANDLE);
}
