#pragma once

#include "sdk/camerahost/DeviceLibrary.h"
#include "sdk/camerahost/InfoNumber.h"

#include <cstdint>

/// Asks a producer about one filled buffer. A command that the producer does not support is not repeated for
/// the following buffers.
class BufferInfo
{
public:
    /// Commands that the producer does not support, as bits. Belongs to the stream.
    using Unsupported = std::uint32_t;

    BufferInfo(const DeviceLibrary &library, GenTL::DS_HANDLE stream, GenTL::BUFFER_HANDLE buffer,
        Unsupported &unsupported)
        : m_library(library), m_stream(stream), m_buffer(buffer), m_unsupported(unsupported)
    { }

    InfoNumber read(GenTL::BUFFER_INFO_CMD command) const;

    /// Returns the number, or 0 if the producer does not tell it.
    std::uint64_t number(GenTL::BUFFER_INFO_CMD command) const { return read(command).valueOr(0); }

    /// Returns the number of parts of a multi-part buffer, or 0 if the producer knows no parts.
    std::uint32_t parts() const;

    /// Returns a number about one part, or 0 if the producer does not tell it.
    std::uint64_t partNumber(std::uint32_t part, GenTL::BUFFER_PART_INFO_CMD command) const;

private:
    const DeviceLibrary &m_library;
    GenTL::DS_HANDLE m_stream;
    GenTL::BUFFER_HANDLE m_buffer;
    Unsupported &m_unsupported;
};
