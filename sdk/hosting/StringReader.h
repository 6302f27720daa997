#pragma once

#include "sdk/hosting/ProducerLibrary.h"

#include <cstdint>
#include <optional>
#include <string>

/// Reads strings from a producer. GenTL needs two calls for a string: the first call returns the size, and
/// the second call returns the bytes. If the string cannot be read, each function returns the problem and
/// does not change the output.
class StringReader
{
public:
    explicit StringReader(const ProducerLibrary &library) : m_library(library) { }

    std::optional<Problem> readInterfaceId(
        GenTL::TL_HANDLE system, std::uint32_t index, std::string &id) const;
    std::optional<Problem> readInterfaceInfo(GenTL::TL_HANDLE system, const std::string &interfaceId,
        GenTL::INTERFACE_INFO_CMD command, std::string &value) const;
    std::optional<Problem> readDeviceId(
        GenTL::IF_HANDLE interface, std::uint32_t index, std::string &id) const;
    std::optional<Problem> readDeviceInfo(GenTL::IF_HANDLE interface, const std::string &deviceId,
        GenTL::DEVICE_INFO_CMD command, std::string &value) const;

private:
    template <typename Query>
    std::optional<Problem> read(const char *call, const Query &query, std::string &value) const;

    const ProducerLibrary &m_library;
};
