#pragma once

#include "tests/producer/camera/TestCameraRegisters.h"
#include "tests/producer/camera/TestImages.h"

#include <array>
#include <atomic>
#include <condition_variable>

/// Lets threads wait until it is opened.
class TestGate
{
public:
    void open();
    void wait();

private:
    std::mutex m_mutex; // Guards the members below.
    std::condition_variable m_opened;
    std::uint64_t m_openings = 0;
};

/// A camera that a test controls by registers; see TestCameraRegisters.h.
class TestCamera final : public OpenCamera
{
public:
    /// @param hasStream Whether the camera has a stream and a clock.
    TestCamera(TestGate &gate, GenTL::DEVICE_ACCESS_STATUS status, bool hasStream);
    ~TestCamera() override;

    void read(std::uint64_t address, void *data, std::size_t size) override;
    void write(std::uint64_t address, const void *data, std::size_t size) override;
    std::vector<std::string> descriptionUrls() const override;
    bool isBigEndian() const override { return !m_hasStream; }
    std::uint64_t timestampFrequency() const override { return m_hasStream ? 1000 : 0; }
    GenTL::DEVICE_ACCESS_STATUS accessStatus() const override { return m_status; }
    ImageSource *imageSource() override { return m_hasStream ? &m_images : nullptr; }
    void setLossHandler(std::function<void()> handler) override { m_lossHandler = std::move(handler); }

private:
    std::uint64_t readRegister(std::uint64_t address);
    void copyMemory(std::uint64_t address, std::size_t size, const std::function<void(char *)> &copy);
    void requireMemory(std::uint64_t address, std::size_t size) const;

    TestGate &m_gate;
    const bool m_hasStream;
    std::atomic<GenTL::DEVICE_ACCESS_STATUS> m_status;
    std::function<void()> m_lossHandler;
    std::array<char, TestCameraRegisters::memorySize> m_memory{};
    std::atomic<int> m_accesses{0}; // Accesses to the memory that are running.
    std::atomic<std::uint64_t> m_overlaps{0};
    GenTL::GC_ERROR m_failure = GenTL::GC_ERR_SUCCESS;
    TestImages m_images;
};
