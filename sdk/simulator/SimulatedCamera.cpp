#include "sdk/simulator/SimulatedCamera.h"

#include "sdk/simulator/CameraStatus.h"
#include "sdk/simulator/RegisterAccess.h"
#include "sdk/simulator/RegisterDescription.h"

#include <chrono>
#include <cstdio>
#include <cstring>
#include <utility>

namespace {

constexpr std::chrono::milliseconds watchInterval{200};

bool isWithin(std::uint64_t address, std::size_t size, std::uint64_t start, std::size_t length)
{
    return address >= start && address - start <= length && size <= length - (address - start);
}

} // namespace

SimulatedCamera::SimulatedCamera(const std::string &registerFile, GenTL::DEVICE_ACCESS_FLAGS access,
    const CameraModel &model, std::function<bool()> isConnected)
    : m_access(access),
      m_model(model),
      m_description(registerDescription(model)),
      m_registers(registerFile, access, model),
      m_images(m_registers, model, access),
      m_isConnected(std::move(isConnected)),
      m_watch([this] { watchConnection(); })
{
    if (access != GenTL::DEVICE_ACCESS_READONLY)
        m_registers.update(endSession); // A killed user may have left a running acquisition behind.
}

SimulatedCamera::~SimulatedCamera()
{
    m_images.stop(true);
    {
        const std::lock_guard lock(m_mutex);
        m_isClosing = true;
    }
    m_wake.notify_all();
    m_watch.join();
    if (m_access != GenTL::DEVICE_ACCESS_READONLY && !m_isLost)
        m_registers.update(endSession);
}

void SimulatedCamera::requireConnection()
{
    if (m_isLost || m_registers.hasRestarted())
        throw GenTlError(GenTL::GC_ERR_IO, "The camera does not answer any more");
}

void SimulatedCamera::read(std::uint64_t address, void *data, std::size_t size)
{
    requireConnection();
    if (isWithin(address, size, registersAddress, registersSize)) {
        RegisterBank bank = m_registers.load();
        updateStatus(bank, monotonicNow());
        std::memcpy(data, bank.bytes() + (address - registersAddress), size);
    } else if (isWithin(address, size, descriptionAddress, m_description.size())) {
        std::memcpy(data, m_description.data() + (address - descriptionAddress), size);
    } else {
        throw GenTlError(GenTL::GC_ERR_INVALID_ADDRESS, "There is no register at this address");
    }
}

void SimulatedCamera::write(std::uint64_t address, const void *data, std::size_t size)
{
    requireConnection();
    if (m_access == GenTL::DEVICE_ACCESS_READONLY)
        throw GenTlError(GenTL::GC_ERR_ACCESS_DENIED, "The camera was opened for reading only");
    if (!isWithin(address, size, registersAddress, registersSize))
        throw GenTlError(GenTL::GC_ERR_INVALID_ADDRESS, "There is no register at this address");
    writeRegisters(m_registers, m_model, address - registersAddress, data, size);
    if (m_registers.hasRestarted())
        m_wake.notify_all();
}

std::vector<std::string> SimulatedCamera::descriptionUrls() const
{
    char places[64];
    std::snprintf(places, sizeof places, ";%llX;%zX", static_cast<unsigned long long>(descriptionAddress),
        m_description.size());
    return {"Local:" + registerDescriptionName(m_model) + places};
}

GenTL::DEVICE_ACCESS_STATUS SimulatedCamera::accessStatus() const
{
    if (m_isLost || m_registers.hasRestarted())
        return GenTL::DEVICE_ACCESS_STATUS_NOACCESS;
    return m_access == GenTL::DEVICE_ACCESS_READONLY ? GenTL::DEVICE_ACCESS_STATUS_OPEN_READONLY
                                                     : GenTL::DEVICE_ACCESS_STATUS_OPEN_READWRITE;
}

void SimulatedCamera::setLossHandler(std::function<void()> handler)
{
    const std::lock_guard lock(m_mutex);
    m_lossHandler = std::move(handler);
}

void SimulatedCamera::watchConnection()
{
    std::unique_lock lock(m_mutex);
    while (!m_isClosing) {
        lock.unlock();
        const bool isLost = m_registers.hasRestarted() || !m_isConnected();
        lock.lock();
        if (!isLost) {
            m_wake.wait_for(lock, watchInterval);
            continue;
        }
        const std::function<void()> handler = m_lossHandler;
        lock.unlock();
        loseCamera();
        if (handler)
            handler();
        return;
    }
}

void SimulatedCamera::loseCamera()
{
    m_isLost = true;
    m_images.cameraLost();
    m_registers.close(); // Whoever finds the camera again shall be able to open it.
}
