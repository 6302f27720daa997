#include "sdk/simulator/AcquisitionSequence.h"

#include "sdk/simulator/FeatureLimits.h"

#include <algorithm>

using Id = RegisterId;

namespace {

std::uint64_t imageLimit(const RegisterBank &bank)
{
    switch (bank.integer(Id::AcquisitionMode)) {
    case singleFrame:
        return 1;
    case multiFrame:
        return static_cast<std::uint64_t>(bank.integer(Id::AcquisitionFrameCount));
    default:
        return 0;
    }
}

/// Returns the time that a triggered image takes.
std::int64_t imageTime(const RegisterBank &bank)
{
    double seconds = bank.real(Id::ExposureTime) / 1e6;
    if (isLineScan(bank))
        seconds = static_cast<double>(bank.integer(Id::Height))
            / (bank.isOn(Id::AcquisitionLineRateEnable) ? bank.real(Id::AcquisitionLineRate) : 1 / seconds);
    return std::max(static_cast<std::int64_t>(seconds * 1e9), transferTime(bank));
}

} // namespace

AcquisitionSequence::AcquisitionSequence(const RegisterFile &registers)
    : m_startTrigger(registers, acquisitionStartTrigger),
      m_frameTrigger(registers, frameStartTrigger),
      m_lineTrigger(registers, lineStartTrigger)
{ }

void AcquisitionSequence::update(const RegisterBank &bank, std::int64_t now)
{
    const bool isStartChanged = m_startTrigger.update(bank);
    const bool isFrameChanged = m_frameTrigger.update(bank);
    const bool isLineChanged = m_lineTrigger.update(bank);
    m_imageLimit = imageLimit(bank);
    m_lines = static_cast<std::uint32_t>(bank.integer(Id::Height));
    m_imageTime = imageTime(bank);
    m_clock.setPeriod(imagePeriod(bank), now);
    if (isFrameChanged || isLineChanged || !hasTriggers()) { // Otherwise, a taken trigger keeps its image.
        m_frameStart.reset();
        m_imageEnd.reset();
    }
    m_isActive = bank.isOn(Id::AcquisitionActive);
    const bool isStartOutdated = isStartChanged && m_images == 0 && m_readyTime > now;
    if (m_isActive && (isStartOutdated || m_starts != bank.integer(Id::AcquisitionStarts)))
        restart(now);
    m_starts = bank.integer(Id::AcquisitionStarts);
}

void AcquisitionSequence::restart(std::int64_t now)
{
    m_clock.restart(now);
    m_images = 0;
    m_readyTime = now;
    m_isStarted = false;
    m_frameStart.reset();
    m_imageEnd.reset();
}

std::optional<std::int64_t> AcquisitionSequence::nextImage()
{
    if (!m_isActive || isFinished())
        return std::nullopt;
    if (!m_imageEnd && takeStart() && takeFrame())
        m_imageEnd = takeLines();
    return m_imageEnd;
}

bool AcquisitionSequence::takeStart()
{
    if (m_isStarted || !m_startTrigger.isOn())
        return true;
    const std::optional<std::int64_t> start = m_startTrigger.take(1, m_readyTime);
    if (!start)
        return false;
    m_isStarted = true;
    m_readyTime = *start;
    m_clock.restart(*start);
    return true;
}

bool AcquisitionSequence::takeFrame()
{
    if (!m_frameStart)
        m_frameStart = m_frameTrigger.isOn() ? m_frameTrigger.take(1, m_readyTime) : m_clock.nextImage();
    return m_frameStart.has_value();
}

std::optional<std::int64_t> AcquisitionSequence::takeLines()
{
    if (m_lineTrigger.isOn())
        return m_lineTrigger.take(m_lines, *m_frameStart);
    return m_frameTrigger.isOn() ? *m_frameStart + m_imageTime : *m_frameStart;
}

void AcquisitionSequence::imageTaken(std::int64_t now)
{
    ++m_images;
    m_readyTime = m_imageEnd.value_or(now) + 1;
    m_frameStart.reset();
    m_imageEnd.reset();
    m_clock.imageTaken(now);
    m_frameTrigger.discard(); // The camera does not notice triggers while it takes an image.
}
