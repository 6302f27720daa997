#include "tests/producer/camera/TestCamera.h"

#include <cstring>
#include <thread>

using namespace GenTL;
namespace Registers = TestCameraRegisters;

namespace {

std::atomic<std::uint64_t> openCameras{0};

} // namespace

void TestGate::open()
{
    {
        const std::lock_guard lock(m_mutex);
        ++m_openings;
    }
    m_opened.notify_all();
}

void TestGate::wait()
{
    std::unique_lock lock(m_mutex);
    m_opened.wait(lock, [this, before = m_openings] { return m_openings != before; });
}

TestCamera::TestCamera(TestGate &gate, DEVICE_ACCESS_STATUS status, bool hasStream)
    : m_gate(gate), m_hasStream(hasStream), m_status(status)
{
    ++openCameras;
}

TestCamera::~TestCamera()
{
    --openCameras;
}

void TestCamera::read(std::uint64_t address, void *data, std::size_t size)
{
    if (address >= Registers::memorySize) {
        const std::uint64_t value = readRegister(address);
        std::memcpy(data, &value, std::min(size, sizeof value));
        return;
    }
    copyMemory(address, size, [&](const char *memory) { std::memcpy(data, memory, size); });
}

void TestCamera::write(std::uint64_t address, const void *data, std::size_t size)
{
    if (address < Registers::memorySize) {
        copyMemory(address, size, [&](char *memory) { std::memcpy(memory, data, size); });
        return;
    }
    std::uint64_t value = 0;
    std::memcpy(&value, data, std::min(size, sizeof value));
    if (address == Registers::fail) {
        m_failure = static_cast<GC_ERROR>(value);
    } else if (address == Registers::lose) {
        m_status = DEVICE_ACCESS_STATUS_NOACCESS;
        m_lossHandler();
    } else if (!m_images.write(address, value)) {
        throw GenTlError(GC_ERR_INVALID_ADDRESS, "There is no register.");
    }
}

std::vector<std::string> TestCamera::descriptionUrls() const
{
    if (!m_hasStream)
        return {};
    return {"Local:test.xml;1A0;2F", "File:///usr/share/cameras/test.zip", "Http://host/test.xml",
        "gopher:test.xml", "local:/folder/test.xml;12;3x", "LOCAL:test.xml;1",
        "Local:v.xml;10;20?SchemaVersion=1.2.3", "File:v.zip?schemaversion=2.4"};
}

std::uint64_t TestCamera::readRegister(std::uint64_t address)
{
    if (address == Registers::openCameras)
        return openCameras;
    if (address == Registers::overlaps)
        return m_overlaps;
    if (address == Registers::gate) {
        m_status = DEVICE_ACCESS_STATUS_CUSTOM_ID;
        m_gate.wait();
        return 0;
    }
    std::uint64_t value = 0;
    return m_images.read(address, value) ? value
                                         : throw GenTlError(GC_ERR_INVALID_ADDRESS, "There is no register.");
}

void TestCamera::copyMemory(std::uint64_t address, std::size_t size, const std::function<void(char *)> &copy)
{
    requireMemory(address, size);
    if (m_accesses.fetch_add(1) != 0)
        ++m_overlaps;
    std::this_thread::yield();
    copy(m_memory.data() + address);
    m_accesses.fetch_sub(1);
}

void TestCamera::requireMemory(std::uint64_t address, std::size_t size) const
{
    if (m_failure)
        throw GenTlError(m_failure, "The access fails.");
    if (size > m_memory.size() - address)
        throw GenTlError(GC_ERR_INVALID_ADDRESS, "There is no memory.");
}
