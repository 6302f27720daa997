#pragma once

#include "CvxCPP/Device.h"
#include "tests/kit/camera/TestDevice.h"
#include "tools/kit/camera/CameraEntry.h"

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

/// A camera whose Open() returns the device of the test.
class OpenableCamera : public CvxCPP::Camera
{
public:
    explicit OpenableCamera(const std::string &id, std::shared_ptr<TestDevice> device = {});

    /// Called by Open() without a lock, so it may block. A result with an error makes Open() fail. Set it
    /// before the camera is opened.
    std::function<CvxCPP::CvxResult()> onOpen;

    /// Returns the camera as a list contains it.
    static CameraEntry entry(const std::shared_ptr<OpenableCamera> &camera);

    TestDevice &device() { return *m_device; }
    std::vector<CvxCPP::CvxAccess> opened() const; ///< The accesses of all calls of Open().

    CvxCPP::CvxError GetID(char *buffer, unsigned &size, bool extended) const override;
    CvxCPP::CvxError GetModel(char *buffer, unsigned &size) const override;
    CvxCPP::CvxError GetName(char *buffer, unsigned &size) const override;
    CvxCPP::CvxError GetSerialNumber(char *buffer, unsigned &size) const override;
    CvxCPP::CvxError GetUserName(char *buffer, unsigned &size) const override;
    CvxCPP::CvxError GetInterfaceType(CvxCPP::CvxTransportLayerType &type) const override;
    CvxCPP::CvxError GetInterface(std::shared_ptr<CvxCPP::Interface> &iface) const override;
    CvxCPP::CvxResult Open(CvxCPP::CvxAccess access, std::shared_ptr<CvxCPP::Device> &device) override;

private:
    const std::string m_id;
    const std::shared_ptr<TestDevice> m_device;
    mutable std::mutex m_mutex;
    std::vector<CvxCPP::CvxAccess> m_opened;
};
