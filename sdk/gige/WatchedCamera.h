#pragma once

#include "sdk/gige/GvcpReader.h"
#include "sdk/producer/OpenCamera.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

/// A GigE Vision camera that another program may control. It can be read, but has no stream, which needs
/// control. Nothing is ever written to the camera.
class WatchedCamera final : public OpenCamera
{
public:
    /// Reads where the description lies. Both addresses are in the byte order of this machine. Throws
    /// GenTlError.
    WatchedCamera(std::uint32_t interfaceAddress, std::uint32_t cameraAddress);

    void read(std::uint64_t address, void *data, std::size_t size) override;
    void write(std::uint64_t address, const void *data, std::size_t size) override;
    std::vector<std::string> descriptionUrls() const override { return m_urls; }
    bool isBigEndian() const override { return true; }
    std::uint64_t timestampFrequency() const override { return m_timestampFrequency; }
    GenTL::DEVICE_ACCESS_STATUS accessStatus() const override;
    ImageSource *imageSource() override { return nullptr; }
    void setLossHandler(std::function<void()> handler) override { m_lossHandler = std::move(handler); }

private:
    void noteTimeout();

    GvcpReader m_reader;
    const std::vector<std::string> m_urls;
    const std::uint64_t m_timestampFrequency;
    int m_timeouts = 0; // Since the last answer.
    std::atomic<bool> m_isLost{false};
    std::function<void()> m_lossHandler;
};
