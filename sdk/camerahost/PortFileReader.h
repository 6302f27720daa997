#pragma once

#include "sdk/camerahost/DescriptionText.h"
#include "sdk/camerahost/DeviceLibrary.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <variant>

/// Reads a file that is in the registers of a camera. Tolerates cameras that refuse large blocks, odd sizes,
/// or the bytes at the end.
class PortFileReader
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    /// `library` and `port` must exist as long as the reader.
    PortFileReader(const DeviceLibrary &library, GenTL::PORT_HANDLE port, TimePoint deadline)
        : m_library(library), m_port(port), m_deadline(deadline)
    { }

    /// Returns `length` bytes. Bytes after the last one that the camera has are 0.
    std::variant<std::string, DescriptionProblem> read(std::uint64_t address, std::size_t length);

private:
    std::optional<Problem> readBlock(
        std::uint64_t address, char *data, std::size_t size, std::size_t &done) const;
    std::optional<Problem> readAligned(
        std::uint64_t address, char *data, std::size_t size, std::size_t &done) const;

    const DeviceLibrary &m_library;
    GenTL::PORT_HANDLE m_port;
    TimePoint m_deadline;
};

/// Returns a problem as part of a sentence, for example "GCReadPort failed with error -1010 (no link)".
std::string toText(const Problem &problem);
