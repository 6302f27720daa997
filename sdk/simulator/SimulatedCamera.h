#pragma once

#include "sdk/producer/OpenCamera.h"
#include "sdk/simulator/CameraModel.h"
#include "sdk/simulator/RegisterFile.h"
#include "sdk/simulator/SimulatedImages.h"

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

/// An open simulated camera.
class SimulatedCamera final : public OpenCamera
{
public:
    /// Opens the camera. Throws GenTlError; see RegisterFile.
    /// @param isConnected Returns false after the camera was disconnected. Called on a thread of its own.
    SimulatedCamera(const std::string &registerFile, GenTL::DEVICE_ACCESS_FLAGS access,
        const CameraModel &model, std::function<bool()> isConnected);
    ~SimulatedCamera() override;

    void read(std::uint64_t address, void *data, std::size_t size) override;
    void write(std::uint64_t address, const void *data, std::size_t size) override;
    std::vector<std::string> descriptionUrls() const override;
    std::uint64_t timestampFrequency() const override { return 1'000'000'000; }
    GenTL::DEVICE_ACCESS_STATUS accessStatus() const override;
    ImageSource *imageSource() override { return &m_images; }
    void setLossHandler(std::function<void()> handler) override;

private:
    void requireConnection();
    void watchConnection();
    void loseCamera();

    const GenTL::DEVICE_ACCESS_FLAGS m_access;
    const CameraModel m_model;
    const std::string m_description;
    RegisterFile m_registers;
    SimulatedImages m_images;
    std::atomic<bool> m_isLost{false};

    const std::function<bool()> m_isConnected;
    std::mutex m_mutex; // Guards the two members below.
    bool m_isClosing = false;
    std::function<void()> m_lossHandler;
    std::condition_variable m_wake; // Signalled after m_isClosing has changed.
    std::thread m_watch; // Waits for the loss of the camera.
};
