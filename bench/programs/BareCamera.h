#pragma once

#include "sdk/camerahost/DeviceLibrary.h"
#include "sdk/camerahost/NodeMap.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// A camera that is opened in this process, with nothing between the program and the producer but the C
/// functions of GenTL and the node map. This is the floor for the SDK. Every failure ends the program.
class BareCamera final : public RegisterPort
{
public:
    /// Opens the first camera with this ID.
    BareCamera(const std::string &producerFile, const std::string &deviceId);

    NodeMap &nodes() { return *m_nodes; }

    std::optional<Problem> read(std::uint64_t address, void *data, std::size_t size) override;
    std::optional<Problem> write(std::uint64_t address, const void *data, std::size_t size) override;

    void start(std::size_t buffers);

    /// Waits for an image, asks for its number and puts its buffer back.
    void takeImage();

    void stop();

private:
    template <typename Function, typename... Arguments>
    void require(const char *name, Function function, Arguments... arguments);
    void openDevice(const std::string &deviceId);

    DeviceLibrary m_library;
    GenTL::TL_HANDLE m_system = nullptr;
    GenTL::DEV_HANDLE m_device = nullptr;
    GenTL::PORT_HANDLE m_port = nullptr;
    GenTL::DS_HANDLE m_stream = nullptr;
    GenTL::EVENT_HANDLE m_event = nullptr;
    std::unique_ptr<NodeMap> m_nodes;
    std::vector<std::uint8_t> m_memory;
};
