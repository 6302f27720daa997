#include "sdk/aravis/AravisCamera.h"

#include <chrono>
#include <cstdio>
#include <cstring>
#include <limits>
#include <thread>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr std::uint64_t ticksPerSecond = 1'000'000'000; // libaravis converts time stamps to nanoseconds.

std::string hexadecimal(std::uint64_t number)
{
    char text[sizeof "FFFFFFFFFFFFFFFF"];
    std::snprintf(text, sizeof text, "%llX", static_cast<unsigned long long>(number));
    return text;
}

// Locked while a handler is connected, because the thread that calls the handler runs already. GLib has a
// lock too, but ThreadSanitizer does not know that lock.
std::mutex connectionMutex;

/// Returns the size for a call of libaravis.
guint32 toAravisSize(std::size_t size)
{
    if (size > std::numeric_limits<guint32>::max())
        throw GenTlError(GenTL::GC_ERR_INVALID_PARAMETER, "A register access of this size is not possible.");
    return static_cast<guint32>(size);
}

/// Waits until the thread that reports the loss of the camera does not use the object any more. That thread
/// must not release the last reference, because it would wait for its own end.
void awaitSoleOwnership(ArvDevice *device)
{
    const auto end = std::chrono::steady_clock::now() + 1s;
    const volatile guint &references = G_OBJECT(device)->ref_count;
    while (g_atomic_int_get(&references) > 1 && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(1ms);
}

} // namespace

AravisCamera::AravisCamera(GObjectPointer<ArvDevice> device, std::string name, ChunkByteOrder byteOrder)
    : m_name(std::move(name)),
      m_device(std::move(device)),
      m_images(
          *m_device, byteOrder, [this] { prepareStream(); }, [this] { requireConnection(); })
{
    const std::lock_guard lock(connectionMutex);
    g_signal_connect(m_device.get(), "control-lost", G_CALLBACK(&AravisCamera::handleControlLost), this);
}

AravisCamera::~AravisCamera()
{
    m_images.stop(true);
    awaitSoleOwnership(m_device.get());
}

void AravisCamera::read(std::uint64_t address, void *data, std::size_t size)
{
    requireConnection();
    if (address < descriptionAddress)
        return readRegisters(address, data, size);
    const std::string_view text = description();
    const std::uint64_t offset = address - descriptionAddress;
    if (offset > text.size() || size > text.size() - offset)
        throw GenTlError(GenTL::GC_ERR_INVALID_ADDRESS, "The register description ends before this address.");
    std::memcpy(data, text.data() + offset, size);
}

void AravisCamera::write(std::uint64_t address, const void *data, std::size_t size)
{
    requireConnection();
    if (address >= descriptionAddress)
        throw GenTlError(GenTL::GC_ERR_ACCESS_DENIED, "The register description cannot be written.");
    writeRegisters(address, data, size);
}

std::vector<std::string> AravisCamera::descriptionUrls() const
{
    return {"Local:camera.xml;" + hexadecimal(descriptionAddress) + ';' + hexadecimal(description().size())};
}

std::uint64_t AravisCamera::timestampFrequency() const
{
    return ticksPerSecond;
}

GenTL::DEVICE_ACCESS_STATUS AravisCamera::accessStatus() const
{
    const std::lock_guard lock(m_lossMutex);
    return m_isLost ? GenTL::DEVICE_ACCESS_STATUS_NOACCESS : GenTL::DEVICE_ACCESS_STATUS_OPEN_READWRITE;
}

void AravisCamera::setLossHandler(std::function<void()> handler)
{
    {
        const std::lock_guard lock(m_lossMutex);
        if (!m_isLost) {
            m_lossHandler = std::move(handler);
            return;
        }
    }
    handler();
}

void AravisCamera::readRegisters(std::uint64_t address, void *data, std::size_t size)
{
    AravisError error;
    if (!arv_device_read_memory(device(), address, toAravisSize(size), data, error.receiver()))
        fail(error, address, "read");
}

void AravisCamera::writeRegisters(std::uint64_t address, const void *data, std::size_t size)
{
    AravisError error;
    void *const unchanged = const_cast<void *>(data); // libaravis only reads the data.
    if (!arv_device_write_memory(device(), address, toAravisSize(size), unchanged, error.receiver()))
        fail(error, address, "written");
}

void AravisCamera::fail(const AravisError &error, std::uint64_t address, const char *verb)
{
    if (error.isDisconnected())
        noteLoss();
    throw error.toGenTl("Register 0x" + hexadecimal(address) + " of " + m_name + " cannot be " + verb);
}

/// Called by a thread of libaravis, or by the thread that waits for a register.
void AravisCamera::handleControlLost(ArvDevice *, void *self)
{
    connectionMutex.lock();
    connectionMutex.unlock(); // The object is complete now.
    static_cast<AravisCamera *>(self)->noteLoss();
}

void AravisCamera::noteLoss()
{
    std::function<void()> handler;
    {
        const std::lock_guard lock(m_lossMutex);
        m_isLost = true;
        handler = std::exchange(m_lossHandler, nullptr);
    }
    if (handler)
        handler();
}

/// A lost camera would answer only after seconds, if at all.
void AravisCamera::requireConnection() const
{
    const std::lock_guard lock(m_lossMutex);
    if (m_isLost)
        throw GenTlError(GenTL::GC_ERR_IO, "The connection to " + m_name + " is lost.");
}

std::string_view AravisCamera::description() const
{
    std::size_t size = 0;
    const char *const text = arv_device_get_genicam_xml(device(), &size);
    return {text ? text : "", text ? size : 0};
}
