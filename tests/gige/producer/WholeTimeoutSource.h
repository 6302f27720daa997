#pragma once

#include "sdk/producer/DeviceSource.h"

#include <chrono>
#include <string>
#include <vector>

/// Finds GigE Vision cameras as some vendors' producers do: each search sends one discovery command and waits
/// for answers until its timeout has passed, even if all cameras have answered. Nothing is kept between
/// searches. The IDs of the devices have another form than those of our own producer.
class WholeTimeoutSource final : public DeviceSource
{
public:
    ProducerIdentity identity() const override;

    /// Returns the IPv4 addresses of all network interfaces that are up and support broadcasts.
    std::vector<InterfaceRecord> updateInterfaces() override;

    std::vector<DeviceRecord> updateDevices(
        const std::string &interfaceId, std::chrono::milliseconds timeout) override;
};
