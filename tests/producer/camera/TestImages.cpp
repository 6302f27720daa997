#include "tests/producer/camera/TestImages.h"

#include "tests/producer/camera/TestCameraRegisters.h"

#include <algorithm>
#include <cstring>

namespace Registers = TestCameraRegisters;

TestImages::TestImages()
    : m_settings{{Registers::payloadSize, 64}, {Registers::minBuffers, 1}, {Registers::maxChunks, 0},
        {Registers::startFailure, 0}, {Registers::width, 4}, {Registers::chunks, 0},
        {Registers::chunkOffset, 8}, {Registers::chunkLength, 4}, {Registers::isIncomplete, 0},
        {Registers::dataSize, 8}}
{ }

bool TestImages::read(std::uint64_t address, std::uint64_t &value) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_settings.find(address);
    if (address == Registers::queuedNotices)
        value = m_notices;
    else if (address == Registers::isStarted)
        value = m_queue ? 1 : 0;
    else if (found != m_settings.end())
        value = found->second;
    else
        return false;
    return true;
}

bool TestImages::write(std::uint64_t address, std::uint64_t value)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_settings.find(address);
    if (found != m_settings.end())
        found->second = value;
    else if (address == Registers::deliver)
        for (; value > 0; --value)
            deliver();
    else if (address == Registers::take)
        take();
    else if (address == Registers::giveBack)
        giveBack();
    else
        return false;
    return true;
}

std::size_t TestImages::payloadSize() const
{
    return setting(Registers::payloadSize);
}

std::size_t TestImages::minBuffers() const
{
    return setting(Registers::minBuffers);
}

std::optional<std::size_t> TestImages::maxChunks() const
{
    const std::size_t chunks = setting(Registers::maxChunks);
    return chunks > 0 ? std::optional(chunks) : std::nullopt;
}

void TestImages::start(BufferQueue &queue)
{
    if (const auto code = static_cast<GenTL::GC_ERROR>(setting(Registers::startFailure)))
        throw GenTlError(code, "The camera does not start.");
    const std::lock_guard lock(m_mutex);
    m_queue = &queue;
}

void TestImages::stop(bool isImmediate)
{
    const std::lock_guard lock(m_mutex);
    if (m_kept) {
        FilledImage image = nextImage();
        image.isIncomplete = isImmediate;
        m_queue->deliver(*m_kept, image);
        m_kept.reset();
    }
    m_queue = nullptr;
}

void TestImages::bufferQueued()
{
    const std::lock_guard lock(m_mutex);
    ++m_notices;
}

std::uint64_t TestImages::startedImages() const
{
    const std::lock_guard lock(m_mutex);
    return m_frames;
}

std::uint64_t TestImages::lostImages() const
{
    const std::lock_guard lock(m_mutex);
    return m_frames / 10; // Every tenth image counts as lost, although it is delivered.
}

std::uint64_t TestImages::setting(std::uint64_t address) const
{
    const std::lock_guard lock(m_mutex);
    return m_settings.at(address);
}

/// Returns what is reported for the next image. Every number is different.
FilledImage TestImages::nextImage()
{
    FilledImage image;
    image.sizeFilled = 8;
    image.dataSize = m_settings[Registers::dataSize];
    image.imageOffset = 1;
    image.width = m_settings[Registers::width];
    image.height = 2;
    image.offsetX = 3;
    image.offsetY = 5;
    image.paddingX = 6;
    image.paddingY = 7;
    image.pixelFormat = 0x01080001;
    image.frameId = ++m_frames;
    image.timestamp = 1500 * m_frames;
    image.isIncomplete = m_settings[Registers::isIncomplete] != 0;
    const std::uint64_t length = m_settings[Registers::chunkLength];
    for (std::uint64_t i = 0; i < m_settings[Registers::chunks]; ++i)
        image.chunks.push_back(
            {100 + i, static_cast<std::ptrdiff_t>(m_settings[Registers::chunkOffset] + length * i), length});
    return image;
}

void TestImages::deliver()
{
    if (!m_kept)
        m_kept = m_queue ? m_queue->take() : std::nullopt;
    const FilledImage image = nextImage();
    if (m_kept) {
        std::memset(m_kept->data, static_cast<int>(image.frameId), image.sizeFilled);
        m_queue->deliver(*m_kept, image);
    } else if (m_queue) {
        m_queue->countUnderrun(1);
    }
    m_kept.reset();
}

void TestImages::take()
{
    m_kept = m_queue->take();
}

void TestImages::giveBack()
{
    m_queue->giveBack(*m_kept);
    m_kept.reset();
}
