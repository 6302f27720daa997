#include "sdk/gige/WatchedCamera.h"

#include "sdk/gige/DescriptionUrls.h"

namespace {

constexpr int maxTimeouts = 2; // Timeouts in a row; every command was sent several times by then.

std::vector<std::string> urlsOf(GvcpReader &reader)
{
    return readDescriptionUrls(
        [&reader](std::uint64_t address, void *data, std::size_t size) { reader.read(address, data, size); });
}

std::uint64_t timestampFrequencyOf(GvcpReader &reader)
{
    constexpr std::uint32_t highRegister = 0x093C, lowRegister = 0x0940;
    return std::uint64_t{reader.readRegister(highRegister)} << 32 | reader.readRegister(lowRegister);
}

} // namespace

WatchedCamera::WatchedCamera(std::uint32_t interfaceAddress, std::uint32_t cameraAddress)
    : m_reader(interfaceAddress, cameraAddress),
      m_urls(urlsOf(m_reader)),
      m_timestampFrequency(timestampFrequencyOf(m_reader))
{ }

void WatchedCamera::read(std::uint64_t address, void *data, std::size_t size)
{
    if (m_isLost)
        throw GenTlError(GenTL::GC_ERR_IO, "The connection to the camera is lost.");
    try {
        m_reader.read(address, data, size);
        m_timeouts = 0;
    } catch (const GenTlError &error) {
        if (error.code() == GenTL::GC_ERR_TIMEOUT)
            noteTimeout();
        throw;
    }
}

void WatchedCamera::write(std::uint64_t, const void *, std::size_t)
{
    throw GenTlError(
        GenTL::GC_ERR_ACCESS_DENIED, "The camera was opened only to be watched, so it cannot be changed.");
}

GenTL::DEVICE_ACCESS_STATUS WatchedCamera::accessStatus() const
{
    return m_isLost ? GenTL::DEVICE_ACCESS_STATUS_NOACCESS : GenTL::DEVICE_ACCESS_STATUS_OPEN_READONLY;
}

void WatchedCamera::noteTimeout()
{
    if (++m_timeouts < maxTimeouts)
        return;
    m_isLost = true;
    if (m_lossHandler)
        m_lossHandler();
}
