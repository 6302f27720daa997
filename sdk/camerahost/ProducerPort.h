#pragma once

#include "sdk/camerahost/DeviceLibrary.h"
#include "sdk/camerahost/RegisterPort.h"

#include <cstdint>

/// The registers of an opened camera, accessed through its producer.
class ProducerPort : public RegisterPort
{
public:
    ProducerPort(const DeviceLibrary &library, GenTL::PORT_HANDLE port) : m_library(library), m_port(port) { }

    std::optional<Problem> read(std::uint64_t address, void *data, std::size_t size) override;
    std::optional<Problem> write(std::uint64_t address, const void *data, std::size_t size) override;

    /// Returns the number of accesses that have succeeded.
    std::uint64_t successes() const { return m_successes; }

    /// Returns the number of accesses that have failed in a way that a lost camera causes.
    std::uint64_t lossFailures() const { return m_lossFailures; }

private:
    std::optional<Problem> count(std::optional<Problem> problem);

    const DeviceLibrary &m_library;
    const GenTL::PORT_HANDLE m_port;
    std::uint64_t m_successes = 0;
    std::uint64_t m_lossFailures = 0;
};
