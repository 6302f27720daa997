#pragma once

#include "sdk/simulator/SimulatedCamera.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <mutex>
#include <string>
#include <vector>

constexpr GenTL::DEVICE_ACCESS_FLAGS watch = GenTL::DEVICE_ACCESS_READONLY;
constexpr GenTL::DEVICE_ACCESS_FLAGS control = GenTL::DEVICE_ACCESS_CONTROL;

/// A folder that is removed with the object.
class TestFolder
{
public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder &) = delete;
    TestFolder &operator=(const TestFolder &) = delete;

    std::string file(const std::string &name) const { return m_path / name; }
    bool isEmpty() const { return std::filesystem::is_empty(m_path); }

private:
    const std::filesystem::path m_path;
};

/// Returns the model of a camera with a small sensor.
CameraModel smallModel(const SensorKeys &keys = {}, const std::string &tlType = GenTL::TLTypeU3VName);

/// Buffers of a consumer that are always filled in order.
class TestQueue final : public BufferQueue
{
public:
    struct Image
    {
        FilledImage info;
        std::vector<std::uint8_t> data;
    };

    /// Every buffer has `bufferSize` bytes.
    TestQueue(std::size_t buffers, std::size_t bufferSize);

    std::optional<Buffer> take() override;
    void deliver(const Buffer &buffer, const FilledImage &image) override;
    void giveBack(const Buffer &buffer) override;
    void countUnderrun(std::uint64_t images) override { m_underruns += images; }

    /// Waits for the next image and puts its buffer back. Fails the test after 20 s without image.
    Image next(ImageSource &source);

    /// Returns true if an image has arrived that next() has not returned.
    bool hasImage();
    std::uint64_t underruns() const { return m_underruns; }

private:
    std::vector<std::vector<std::uint8_t>> m_buffers;
    std::atomic<std::uint64_t> m_underruns{0};
    std::mutex m_mutex; // Guards the members below.
    std::condition_variable m_delivered;
    std::deque<std::size_t> m_free;
    std::deque<std::pair<std::size_t, FilledImage>> m_images;
};

/// A camera that is open in this process, with access to its registers by their names in the code.
class TestCamera
{
public:
    /// The registers are in a file of the folder.
    TestCamera(const TestFolder &folder, const CameraModel &model,
        GenTL::DEVICE_ACCESS_FLAGS access = GenTL::DEVICE_ACCESS_CONTROL);

    SimulatedCamera &camera() { return m_camera; }
    ImageSource &images() { return *m_camera.imageSource(); }

    std::int64_t integer(RegisterId id, std::size_t element = 0) { return bank().integer(id, element); }
    double real(RegisterId id, std::size_t element = 0) { return bank().real(id, element); }

    /// Each of these functions writes a register and returns the error code.
    GenTL::GC_ERROR set(RegisterId id, std::int64_t value, std::size_t element = 0);
    GenTL::GC_ERROR setReal(RegisterId id, double value, std::size_t element = 0);
    GenTL::GC_ERROR execute(RegisterId command, std::size_t element = 0) { return set(command, 1, element); }

    /// Waits until the camera was lost; returns false after 20 s.
    bool waitForLoss();

    void disconnect() { m_isConnected = false; }

private:
    RegisterBank bank();

    std::atomic<bool> m_isConnected{true};
    std::mutex m_mutex; // Guards m_isLost.
    std::condition_variable m_lost;
    bool m_isLost = false;
    SimulatedCamera m_camera; // Declared last, because its thread uses the other members.
};
