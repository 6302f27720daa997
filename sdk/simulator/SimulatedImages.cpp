#include "sdk/simulator/SimulatedImages.h"

#include "sdk/simulator/AutomaticControl.h"
#include "sdk/simulator/CameraStatus.h"
#include "sdk/simulator/CameraTemperature.h"
#include "sdk/simulator/ChunkTrailer.h"
#include "sdk/simulator/SceneSettings.h"
#include "sdk/simulator/UserSets.h"

#include <cstring>
#include <utility>
#include <vector>

namespace {

using Id = RegisterId;

constexpr std::int64_t idleWait = 1'000'000'000; // Nanoseconds; everything that matters wakes the thread.

} // namespace

SimulatedImages::SimulatedImages(
    RegisterFile &registers, const CameraModel &model, GenTL::DEVICE_ACCESS_FLAGS access)
    : m_registers(registers),
      m_isBigEndianLink(model.isBigEndianLink()),
      m_isController(access != GenTL::DEVICE_ACCESS_READONLY),
      m_sequence(registers),
      m_pictures(model.sensor)
{ }

SimulatedImages::~SimulatedImages()
{
    stop(true);
}

std::size_t SimulatedImages::payloadSize() const
{
    return static_cast<std::size_t>(m_registers.load().integer(Id::PayloadSize));
}

std::optional<std::size_t> SimulatedImages::maxChunks() const
{
    return chunkCount;
}

void SimulatedImages::start(BufferQueue &queue)
{
    m_isStopping = false;
    m_changes.reset();
    m_followed = m_registers.takenImages();
    m_thread = std::thread([this, &queue] { m_isController ? run(queue) : follow(queue); });
}

void SimulatedImages::stop(bool)
{
    m_isStopping = true;
    m_registers.wakeCounter().wake();
    if (m_thread.joinable())
        m_thread.join();
}

void SimulatedImages::cameraLost()
{
    m_isLost = true;
    m_registers.wakeCounter().wake();
}

void SimulatedImages::run(BufferQueue &queue)
{
    while (!m_isStopping) {
        const std::uint32_t wakeCounter = m_registers.wakeCounter().value();
        const std::int64_t now = monotonicNow();
        updateSettings(now);
        const std::optional<std::int64_t> due = m_isLost ? std::nullopt : m_sequence.nextImage();
        const bool isDue = due && *due <= now;
        if (!isDue || !takeImage(queue, now))
            m_registers.wakeCounter().wait(
                wakeCounter, isDue ? now + idleWait : due.value_or(now + idleWait));
    }
}

/// Copies the images that the process which controls the camera takes. If that process ends, there are none.
void SimulatedImages::follow(BufferQueue &queue)
{
    while (!m_isStopping) {
        const std::uint32_t wakeCounter = m_registers.wakeCounter().value();
        const std::optional<TakenImage> image = m_isLost ? std::nullopt : m_registers.latestImage();
        const bool isNew = image && image->number != m_followed;
        // The settings are read after the image, or they could be older.
        if (isNew && updateSettings(monotonicNow()))
            copyImage(queue, *image);
        else
            m_registers.wakeCounter().wait(wakeCounter, monotonicNow() + idleWait);
    }
}

/// Reads the registers if they have changed. Returns false while a change is being stored; the thread is
/// woken afterwards.
bool SimulatedImages::updateSettings(std::int64_t now)
{
    const std::uint32_t changes = m_registers.changes();
    if (m_changes == changes)
        return true;
    const RegisterBank bank = m_registers.load();
    if (changes % 2 != 0 || changes != m_registers.changes()) // Half of a change may have been read.
        return false;
    m_changes = changes;
    if (!hasSameSettings(bank, m_bank))
        m_pictures.update(sceneSettings(bank));
    m_bank = bank;
    m_sequence.update(m_bank, now);
    return true;
}

/// Takes the image that is due. Returns false if the camera runs at full speed and has no buffer.
bool SimulatedImages::takeImage(BufferQueue &queue, std::int64_t now)
{
    const std::optional<BufferQueue::Buffer> buffer = queue.take();
    if (!buffer && m_sequence.isUnlimited())
        return false;
    ++m_started;
    const std::uint64_t frameId = m_sequence.images() + 1;
    m_registers.announceImage(frameId, now);
    if (buffer) {
        const FilledImage image = fill(*buffer, frameId, now);
        m_sequence.imageTaken(now);
        queue.deliver(*buffer, image);
    } else {
        m_sequence.imageTaken(now);
        queue.countUnderrun(1);
    }
    if (m_sequence.isFinished())
        finishAcquisition();
    return true;
}

void SimulatedImages::copyImage(BufferQueue &queue, const TakenImage &image)
{
    const std::uint64_t images = image.number - std::exchange(m_followed, image.number);
    const std::optional<BufferQueue::Buffer> buffer = queue.take();
    m_started += images;
    queue.countUnderrun(buffer ? images - 1 : images); // This thread was too slow for the others.
    if (buffer)
        queue.deliver(*buffer, fill(*buffer, image.frameId, image.time));
}

FilledImage SimulatedImages::describe(std::uint64_t frameId, std::int64_t now) const
{
    FilledImage image;
    image.width = static_cast<std::size_t>(m_bank.integer(Id::Width));
    image.height = static_cast<std::size_t>(m_bank.integer(Id::Height));
    image.offsetX = static_cast<std::size_t>(m_bank.integer(Id::OffsetX));
    image.offsetY = static_cast<std::size_t>(m_bank.integer(Id::OffsetY));
    image.pixelFormat = static_cast<std::uint64_t>(m_bank.integer(Id::PixelFormat));
    image.frameId = frameId;
    image.timestamp = static_cast<std::uint64_t>(timestampAt(m_bank, now));
    return image;
}

FilledImage SimulatedImages::fill(const BufferQueue::Buffer &buffer, std::uint64_t frameId, std::int64_t now)
{
    m_pictures.setTemperature(sensorTemperature(m_bank, now));
    FilledImage image = describe(frameId, now);
    image.dataSize = m_pictures.imageSize() + chunkOverhead(m_bank);
    if (buffer.size < image.dataSize) { // The buffer gets as much of the picture as it holds.
        std::vector<std::uint8_t> picture(m_pictures.imageSize());
        m_pictures.fill(image.frameId, m_sequence.period(), picture.data());
        image.sizeFilled = std::min(buffer.size, picture.size());
        std::memcpy(buffer.data, picture.data(), image.sizeFilled);
        image.isIncomplete = true;
        return image;
    }
    m_pictures.fill(image.frameId, m_sequence.period(), buffer.data);
    image.sizeFilled = image.dataSize;
    image.chunks = writeChunks(m_bank,
        {image.timestamp, m_bank.real(Id::ExposureTime), image.frameId, gainDecibels(m_bank)}, buffer.data,
        m_pictures.imageSize(), m_isBigEndianLink);
    if (m_isController && isAnyAutomaticOn(m_bank)) {
        const Brightness brightness = measureBrightness(m_bank, buffer.data);
        m_registers.update([&](RegisterBank &bank) { adjustAutomatics(bank, brightness); });
    }
    return image;
}

void SimulatedImages::finishAcquisition()
{
    m_registers.update([this](RegisterBank &bank) {
        if (bank.integer(Id::AcquisitionStarts) == m_bank.integer(Id::AcquisitionStarts))
            setAcquisitionActive(bank, false, monotonicNow());
    });
}
