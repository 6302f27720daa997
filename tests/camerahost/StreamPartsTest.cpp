// Tests the rules by which a stream is planned and by which the results of a producer are judged.

#include "sdk/camerahost/BufferPlan.h"
#include "sdk/camerahost/ChunkTrailers.h"
#include "sdk/camerahost/EventRule.h"
#include "sdk/camerahost/Picture.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace GenTL;

namespace {

constexpr std::uint32_t mono8 = 0x01080001;
constexpr std::uint32_t mono16 = 0x01100007;
constexpr std::uint32_t mono12p = 0x010C0047;

Picture picture(std::uint32_t width, std::uint32_t height, std::uint32_t format = mono8)
{
    return {width, height, 0, 0, format};
}

std::string textOf(const Picture &picture)
{
    return std::to_string(picture.width) + 'x' + std::to_string(picture.height) + ' '
        + std::to_string(picture.bitsPerPixel()) + " bits";
}

std::string chosen(const Picture &reported, const Picture &configured, std::uint64_t received)
{
    return textOf(choosePicture(reported, configured, received));
}

/// Appends a chunk with its trailer.
void addChunk(std::vector<std::uint8_t> &data, std::uint8_t id, std::size_t length, bool isBigEndian)
{
    data.insert(data.end(), length, 0xAA);
    for (const std::size_t number : {std::size_t(id), length}) {
        for (unsigned byte = 0; byte < 4; ++byte)
            data.push_back(static_cast<std::uint8_t>(number >> 8 * (isBigEndian ? 3 - byte : byte)));
    }
}

} // namespace

TEST(StreamPicture, sizeIncludesPadding)
{
    EXPECT_EQ(picture(3, 2, mono12p).size(), 10U) << "each line starts at a byte";
    EXPECT_EQ(picture(3, 2, mono12p).tightSize(), 9U);
    EXPECT_EQ((Picture{3, 2, 4, 5, mono8}.size()), 19U);
    EXPECT_EQ((Picture{3, 2, 4, 5, mono8}.tightSize()), 19U);
    EXPECT_EQ(picture(3, 2, 0).size(), 0U) << "unknown";
}

TEST(StreamPicture, codesThatAreNotPfncAreUnknown)
{
    for (const std::uint64_t code :
        {std::uint64_t(mono8), std::uint64_t(0x81080001), std::uint64_t(0x02180014)})
        EXPECT_EQ(toPixelFormat(code), code);
    for (const std::uint64_t code : {std::uint64_t(0), std::uint64_t(8), std::uint64_t(0x01000001),
             std::uint64_t(0x03080001), std::uint64_t(0x101080001)})
        EXPECT_EQ(toPixelFormat(code), 0U) << code;
}

TEST(StreamPicture, layoutThatFitsToTheReceivedBytesIsChosen)
{
    const Picture old = picture(8, 4);
    const Picture now = picture(8, 4, mono16);
    EXPECT_EQ(chosen(now, old, 64), "8x4 16 bits");
    EXPECT_EQ(chosen(old, now, 64), "8x4 16 bits") << "only the configured one fits exactly";
    EXPECT_EQ(chosen(old, now, 50), "8x4 8 bits") << "there may be chunks behind the picture";
    EXPECT_EQ(chosen(now, old, 50), "8x4 8 bits") << "the reported one is too large";
    EXPECT_EQ(chosen(now, picture(0, 0, 0), 50), "8x3 16 bits") << "only three lines were received";
    EXPECT_EQ(chosen(now, old, 0), "8x0 16 bits");
    EXPECT_EQ(chosen(picture(8, 4, 0), picture(0, 0, 0), 50), "8x4 0 bits");
    const std::uint32_t huge = Picture::maxLength;
    EXPECT_EQ(chosen(picture(huge, huge, 0x02FF0001), old, 40), "8x4 8 bits");
}

TEST(StreamPlan, sizeIsTheLargestAndAlignedToPages)
{
    BufferNeeds needs;
    needs.cameraSize = 5000;
    EXPECT_EQ(BufferPlan::make(8, needs)->size, 8192U);
    needs.streamSize = 9000;
    EXPECT_EQ(BufferPlan::make(8, needs)->size, 12288U);
    needs.alignment = 5000;
    EXPECT_EQ(BufferPlan::make(8, needs)->alignment, 8192U);
    EXPECT_EQ(BufferPlan::make(8, needs)->size, 16384U);
    needs.alignment = std::uint64_t(1) << 60U;
    EXPECT_EQ(BufferPlan::make(8, needs)->alignment, 1U << 20U);
}

TEST(StreamPlan, sizeIsComputedIfNobodyTellsIt)
{
    BufferNeeds needs;
    EXPECT_FALSE(BufferPlan::make(8, needs));
    needs.picture = picture(100, 400);
    EXPECT_EQ(BufferPlan::make(8, needs)->size, 45056U) << "44000, rounded up";
    needs.streamSize = std::uint64_t(1) << 50U;
    EXPECT_FALSE(BufferPlan::make(8, needs));
}

TEST(StreamPlan, numberOfBuffersIsAtLeastTheMinimum)
{
    BufferNeeds needs;
    needs.cameraSize = 100;
    EXPECT_EQ(BufferPlan::make(2, needs)->buffers, 4U) << "the producer does not tell its minimum";
    EXPECT_EQ(BufferPlan::make(1000, needs)->buffers, StreamRing::maxBuffers);
    needs.minBuffers = 2;
    EXPECT_EQ(BufferPlan::make(2, needs)->buffers, 2U);
    needs.minBuffers = 257;
    EXPECT_FALSE(BufferPlan::make(2, needs));
}

TEST(StreamChunks, areFoundInBothByteOrders)
{
    for (const bool isBigEndian : {false, true}) {
        std::vector<std::uint8_t> data;
        addChunk(data, 1, 100, isBigEndian);
        addChunk(data, 2, 0, isBigEndian);
        addChunk(data, 3, 4, isBigEndian);
        ChunkPositions chunks;
        ASSERT_EQ(findChunks(data.data(), data.size(), chunks), 3U);
        EXPECT_EQ(chunks[0].id, 3U);
        EXPECT_EQ(chunks[0].offset, 116U);
        EXPECT_EQ(chunks[0].length, 4U);
        EXPECT_EQ(chunks[1].id, 2U);
        EXPECT_EQ(chunks[1].length, 0U);
        EXPECT_EQ(chunks[2].id, 1U);
        EXPECT_EQ(chunks[2].offset, 0U);
        EXPECT_EQ(chunks[2].length, 100U);
    }
}

TEST(StreamChunks, onlyTheLastOnesAreKeptIfThereAreTooMany)
{
    std::vector<std::uint8_t> data;
    for (std::uint8_t id = 1; id <= 40; ++id)
        addChunk(data, id, 2, true);
    ChunkPositions chunks;
    ASSERT_EQ(findChunks(data.data(), data.size(), chunks), ImageRecord::maxChunks);
    EXPECT_EQ(chunks.back().id, 9U);
}

TEST(StreamChunks, otherDataHasNone)
{
    std::vector<std::uint8_t> cut;
    addChunk(cut, 1, 100, true);
    cut.erase(cut.begin());
    for (const auto &data : {std::vector<std::uint8_t>(), std::vector<std::uint8_t>(64, 0),
             std::vector<std::uint8_t>(64, 0xFF), std::vector<std::uint8_t>(7, 1), cut}) {
        ChunkPositions chunks;
        EXPECT_EQ(findChunks(data.data(), data.size(), chunks), 0U) << data.size();
    }
}

TEST(StreamEventRule, resultsHaveTheirActions)
{
    const struct
    {
        GC_ERROR code;
        std::size_t size;
        EventAction action;
    } rows[] = {
        {GC_ERR_SUCCESS, 16, EventAction::TakeBuffer},
        {GC_ERR_SUCCESS, 8, EventAction::TakeBuffer},
        {GC_ERR_SUCCESS, 4, EventAction::Pause},
        {GC_ERR_TIMEOUT, 0, EventAction::Continue},
        {GC_ERR_ABORT, 0, EventAction::Continue},
        {GC_ERR_IO, 0, EventAction::PauseAndCheck},
        {GC_ERR_ERROR, 0, EventAction::PauseAndCheck},
        {GC_ERR_BUSY, 0, EventAction::Pause},
        {GC_ERR_INVALID_HANDLE, 0, EventAction::Leave},
        {GC_ERR_NOT_INITIALIZED, 0, EventAction::Leave},
    };
    for (const auto &row : rows)
        EXPECT_EQ(EventRule().next(row.code, row.size), row.action) << row.code;
}

TEST(StreamEventRule, stuckEventIsRegisteredAgainAndThenGivenUp)
{
    EventRule rule;
    int registrations = 0;
    EventAction action = EventAction::Continue;
    for (int result = 0; result < 1000 && action != EventAction::Leave; ++result) {
        action = rule.next(GC_ERR_ABORT, 0);
        registrations += action == EventAction::RegisterAgain ? 1 : 0;
    }
    EXPECT_EQ(action, EventAction::Leave);
    EXPECT_EQ(registrations, 10);
}

TEST(StreamEventRule, onlyResultsInARowCount)
{
    EventRule rule;
    for (int result = 0; result < 100; ++result) {
        EXPECT_EQ(rule.next(GC_ERR_ABORT, 0), EventAction::Continue);
        for (int failure = 0; failure < 9; ++failure)
            EXPECT_EQ(rule.next(GC_ERR_BUSY, 0), EventAction::Pause);
        EXPECT_EQ(rule.next(GC_ERR_TIMEOUT, 0), EventAction::Continue);
    }
    for (int failure = 0; failure < 9; ++failure)
        rule.next(GC_ERR_BUSY, 0);
    EXPECT_EQ(rule.next(GC_ERR_BUSY, 0), EventAction::Leave);
}
