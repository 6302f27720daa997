#pragma once

#include "sdk/aravis/AravisCamera.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

/// Where a GigE Vision camera is found. IPv4 addresses are in the byte order of this machine.
struct CameraPlace
{
    std::string name; ///< The camera's name in the texts of errors.
    std::uint32_t interfaceAddress = 0; ///< Address of this machine.
    std::uint32_t cameraAddress = 0;
};

/// Opens a camera. Throws GenTlError: GC_ERR_ACCESS_DENIED if another program controls the camera;
/// the text then names the program's IP address if the camera reports it. Throws GC_ERR_TIMEOUT if the
/// camera does not answer, and GC_ERR_IO.
/// @param access DEVICE_ACCESS_READONLY, DEVICE_ACCESS_CONTROL or DEVICE_ACCESS_EXCLUSIVE.
std::unique_ptr<OpenCamera> openGigECamera(const CameraPlace &place, GenTL::DEVICE_ACCESS_FLAGS access);

/// A GigE Vision camera that this process controls.
class GigECamera final : public AravisCamera
{
public:
    /// Takes the control over the camera. Throws GenTlError.
    explicit GigECamera(const CameraPlace &place);

    /// Denies other programs even to read the camera. Throws GenTlError.
    void takeExclusiveAccess();

    std::vector<std::string> descriptionUrls() const override { return m_urls; }
    bool isBigEndian() const override { return true; }

protected:
    void readRegisters(std::uint64_t address, void *data, std::size_t size) override;
    void writeRegisters(std::uint64_t address, const void *data, std::size_t size) override;
    void prepareStream() override;

private:
    void writeRegister(std::uint32_t address, const std::uint8_t *data);

    std::vector<std::string> m_urls;
    bool m_canWriteMemory = false; // If not, the camera only permits to write single registers.
    std::atomic<bool> m_isPacketSizeChosen{false}; // By the consumer or by an earlier negotiation.
};
