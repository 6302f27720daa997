// This file defines the device source of a producer whose only camera has many features. Its registers are
// memory, so an access takes no time. The description is the file "ManyFeatures.xml" in the producer's
// folder.

#include "bench/camera/ManyFeatures.h"
#include "sdk/producer/DeviceSource.h"
#include "sdk/producer/OpenCamera.h"

#include <cstring>

using namespace GenTL;

namespace {

class ManyFeaturesCamera final : public OpenCamera
{
public:
    explicit ManyFeaturesCamera(DEVICE_ACCESS_FLAGS access)
        : m_status(access == DEVICE_ACCESS_READONLY ? DEVICE_ACCESS_STATUS_OPEN_READONLY
                                                    : DEVICE_ACCESS_STATUS_OPEN_READWRITE)
    { }

    void read(std::uint64_t address, void *data, std::size_t size) override
    {
        std::memcpy(data, m_registers.data() + checked(address, size), size);
    }

    void write(std::uint64_t address, const void *data, std::size_t size) override
    {
        std::memcpy(m_registers.data() + checked(address, size), data, size);
    }

    std::vector<std::string> descriptionUrls() const override { return {"File:ManyFeatures.xml"}; }
    std::uint64_t timestampFrequency() const override { return 0; }
    DEVICE_ACCESS_STATUS accessStatus() const override { return m_status; }
    ImageSource *imageSource() override { return nullptr; }
    void setLossHandler(std::function<void()>) override { }

private:
    std::size_t checked(std::uint64_t address, std::size_t size) const
    {
        if (address > m_registers.size() || size > m_registers.size() - address)
            throw GenTlError(GC_ERR_INVALID_ADDRESS, "There is no register.");
        return address;
    }

    const DEVICE_ACCESS_STATUS m_status;
    std::vector<std::uint8_t> m_registers = registersOfManyFeatures(manyFeatures);
};

class ManyFeaturesSource final : public DeviceSource
{
public:
    ProducerIdentity identity() const override
    {
        return {"ManyFeatures", "Bench", "ManyFeatures", "1.0", TLTypeCustomName, "Many features"};
    }

    std::vector<InterfaceRecord> updateInterfaces() override
    {
        return {{"memory", "Memory", TLTypeCustomName}};
    }

    std::vector<DeviceRecord> updateDevices(const std::string &, std::chrono::milliseconds) override
    {
        return {{"MANY-FEATURES", "Bench", "ManyFeatures", TLTypeCustomName, "Many features", "", "1",
            DEVICE_ACCESS_STATUS_READWRITE, ""}};
    }

    std::unique_ptr<OpenCamera> openCamera(
        const std::string &, const std::string &, DEVICE_ACCESS_FLAGS access) override
    {
        return std::make_unique<ManyFeaturesCamera>(access);
    }
};

} // namespace

std::unique_ptr<DeviceSource> createDeviceSource(const std::filesystem::path &)
{
    return std::make_unique<ManyFeaturesSource>();
}
