#pragma once

#include "sdk/producer/CameraConnection.h"
#include "sdk/producer/Module.h"

/// The port of an open camera, which the handle of DevGetPort identifies.
class RemotePort final : public Module, public Port
{
public:
    explicit RemotePort(std::shared_ptr<CameraConnection> camera) : m_camera(std::move(camera)) { }

    Port *port() override { return this; }

    PortDescription description() const override;
    std::vector<PortUrl> urls() const override { return m_camera->descriptionUrls(); }
    void read(std::uint64_t address, void *data, std::size_t size) override
    {
        m_camera->read(address, data, size);
    }
    void write(std::uint64_t address, const void *data, std::size_t size) override
    {
        m_camera->write(address, data, size);
    }

private:
    const std::shared_ptr<CameraConnection> m_camera;
};
