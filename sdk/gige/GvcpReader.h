#pragma once

#include "sdk/gvcp/ControlConnection.h"

#include <cstddef>
#include <cstdint>

/// Reads registers of a GigE Vision camera without controlling it, also while another program controls it.
/// Not thread-safe.
class GvcpReader
{
public:
    /// Both addresses are in the byte order of this machine. Throws GenTlError (GC_ERR_IO) if the system
    /// cannot create the socket.
    GvcpReader(std::uint32_t interfaceAddress, std::uint32_t cameraAddress);

    /// Reads any number of bytes at any address. Throws GenTlError: GC_ERR_TIMEOUT if the camera does not
    /// answer, GC_ERR_ACCESS_DENIED, GC_ERR_INVALID_ADDRESS or GC_ERR_IO.
    void read(std::uint64_t address, void *data, std::size_t size);

    /// Returns the number in a register.
    std::uint32_t readRegister(std::uint32_t address);

private:
    void readBlock(std::uint32_t address, std::uint8_t *data, std::size_t size);

    ControlConnection m_connection;
};
