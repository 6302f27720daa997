#pragma once

#include "sdk/aravis/AravisError.h"
#include "sdk/aravis/AravisImages.h"
#include "sdk/aravis/GObjectPointer.h"
#include "sdk/producer/OpenCamera.h"

#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

/// A camera that libaravis has opened and controls. The destructor releases the camera, so that the next
/// program can control it at once. If the camera is gone, the destructor may take five seconds, because
/// libaravis waits for answers.
class AravisCamera : public OpenCamera
{
public:
    /// The address at which the port offers the register description that libaravis has read. It is far
    /// beyond the registers of any camera. descriptionUrls() contains it if the camera does not report where
    /// in its own registers the description lies.
    static constexpr std::uint64_t descriptionAddress = 0xF000000000000000;

    /// @param name The camera's name in the texts of errors.
    AravisCamera(GObjectPointer<ArvDevice> device, std::string name, ChunkByteOrder byteOrder);
    ~AravisCamera() override;

    void read(std::uint64_t address, void *data, std::size_t size) final;
    void write(std::uint64_t address, const void *data, std::size_t size) final;
    std::vector<std::string> descriptionUrls() const override;
    std::uint64_t timestampFrequency() const override;
    GenTL::DEVICE_ACCESS_STATUS accessStatus() const override;
    ImageSource *imageSource() override { return &m_images; }
    void setLossHandler(std::function<void()> handler) override;

protected:
    /// Accesses registers of the camera. A derived class adds the rules of its protocol.
    virtual void readRegisters(std::uint64_t address, void *data, std::size_t size);
    virtual void writeRegisters(std::uint64_t address, const void *data, std::size_t size);

    /// Called at each start of the stream, before the stream is set up.
    virtual void prepareStream() { }

    ArvDevice *device() const { return m_device.get(); }
    const std::string &name() const { return m_name; }

    /// Throws the error of a register access.
    /// @param verb "read" or "written".
    [[noreturn]] void fail(const AravisError &error, std::uint64_t address, const char *verb);

private:
    static void handleControlLost(ArvDevice *device, void *self);
    void noteLoss();
    void requireConnection() const;
    std::string_view description() const;

    const std::string m_name;

    mutable std::mutex m_lossMutex; // Guards the next two members.
    bool m_isLost = false;
    std::function<void()> m_lossHandler;

    // The device is declared after what its thread uses, and before the stream, which uses the device.
    const GObjectPointer<ArvDevice> m_device;
    AravisImages m_images;
};
