#include "tests/simulator/TestCamera.h"

#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>

namespace {

constexpr std::chrono::seconds patience{20}; // Only a hang takes that long.

std::filesystem::path newFolder()
{
    std::string name = std::filesystem::temp_directory_path() / "simulated-camera-XXXXXX";
    return mkdtemp(name.data());
}

} // namespace

TestFolder::TestFolder() : m_path(newFolder()) { }

TestFolder::~TestFolder()
{
    std::filesystem::remove_all(m_path);
}

CameraModel smallModel(const SensorKeys &keys, const std::string &tlType)
{
    DeviceRecord record;
    record.id = "camera";
    record.vendor = "Vendor";
    record.model = "Model";
    record.serial = "1";
    record.userName = "Name";
    record.version = "1.0";
    record.tlType = tlType;
    SensorKeys small = keys;
    small.width = keys.width.value_or(64);
    small.height = keys.height.value_or(48);
    return cameraModel(record, small);
}

TestQueue::TestQueue(std::size_t buffers, std::size_t bufferSize)
{
    for (std::size_t i = 0; i < buffers; ++i) {
        m_buffers.emplace_back(bufferSize);
        m_free.push_back(i);
    }
}

std::optional<BufferQueue::Buffer> TestQueue::take()
{
    const std::lock_guard lock(m_mutex);
    if (m_free.empty())
        return std::nullopt;
    std::vector<std::uint8_t> &buffer = m_buffers[m_free.front()];
    m_free.pop_front();
    return Buffer{&buffer, buffer.data(), buffer.size()};
}

void TestQueue::deliver(const Buffer &buffer, const FilledImage &image)
{
    const std::lock_guard lock(m_mutex);
    const auto *const data = static_cast<std::vector<std::uint8_t> *>(buffer.handle);
    m_images.emplace_back(static_cast<std::size_t>(data - m_buffers.data()), image);
    m_delivered.notify_all();
}

void TestQueue::giveBack(const Buffer &buffer)
{
    const std::lock_guard lock(m_mutex);
    const auto *const data = static_cast<std::vector<std::uint8_t> *>(buffer.handle);
    m_free.push_back(static_cast<std::size_t>(data - m_buffers.data()));
}

TestQueue::Image TestQueue::next(ImageSource &source)
{
    std::unique_lock lock(m_mutex);
    if (!m_delivered.wait_for(lock, patience, [this] { return !m_images.empty(); })) {
        ADD_FAILURE() << "no image";
        return {};
    }
    const auto [buffer, info] = m_images.front();
    m_images.pop_front();
    Image image{info, m_buffers[buffer]};
    m_free.push_back(buffer);
    lock.unlock();
    source.bufferQueued();
    return image;
}

bool TestQueue::hasImage()
{
    const std::lock_guard lock(m_mutex);
    return !m_images.empty();
}

TestCamera::TestCamera(const TestFolder &folder, const CameraModel &model, GenTL::DEVICE_ACCESS_FLAGS access)
    : m_camera(folder.file("registers"), access, model, [this] { return m_isConnected.load(); })
{
    m_camera.setLossHandler([this] {
        const std::lock_guard lock(m_mutex);
        m_isLost = true;
        m_lost.notify_all();
    });
}

RegisterBank TestCamera::bank()
{
    RegisterBank bank;
    m_camera.read(registersAddress, bank.bytes(), registersSize);
    return bank;
}

GenTL::GC_ERROR TestCamera::set(RegisterId id, std::int64_t value, std::size_t element)
{
    const RegisterInfo &info = registerInfo(id);
    try {
        m_camera.write(
            registersAddress + info.offset + element * info.elementSize(), &value, info.valueSize());
        return GenTL::GC_ERR_SUCCESS;
    } catch (const GenTlError &error) {
        return error.code();
    }
}

GenTL::GC_ERROR TestCamera::setReal(RegisterId id, double value, std::size_t element)
{
    std::int64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return set(id, bits, element);
}

bool TestCamera::waitForLoss()
{
    std::unique_lock lock(m_mutex);
    return m_lost.wait_for(lock, patience, [this] { return m_isLost; });
}
