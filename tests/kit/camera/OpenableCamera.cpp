#include "tests/kit/camera/OpenableCamera.h"

#include <cstring>

using namespace CvxCPP;

namespace {

CvxError giveText(const std::string &text, char *buffer, unsigned &size)
{
    if (buffer)
        std::memcpy(buffer, text.c_str(), text.size() + 1);
    size = unsigned(text.size() + 1);
    return CvxErrorSuccess;
}

} // namespace

OpenableCamera::OpenableCamera(const std::string &id, std::shared_ptr<TestDevice> device)
    : m_id(id), m_device(device ? std::move(device) : std::make_shared<TestDevice>())
{ }

CameraEntry OpenableCamera::entry(const std::shared_ptr<OpenableCamera> &camera)
{
    return CameraEntry::read(camera);
}

std::vector<CvxAccess> OpenableCamera::opened() const
{
    const std::lock_guard lock(m_mutex);
    return m_opened;
}

CvxError OpenableCamera::GetID(char *buffer, unsigned &size, bool extended) const
{
    return giveText(extended ? "test.cti/interface/" + m_id : m_id, buffer, size);
}

CvxError OpenableCamera::GetModel(char *buffer, unsigned &size) const
{
    return giveText("Model of " + m_id, buffer, size);
}

CvxError OpenableCamera::GetName(char *buffer, unsigned &size) const
{
    return giveText("Name of " + m_id, buffer, size);
}

CvxError OpenableCamera::GetSerialNumber(char *buffer, unsigned &size) const
{
    return giveText("Serial of " + m_id, buffer, size);
}

CvxError OpenableCamera::GetUserName(char *buffer, unsigned &size) const
{
    return giveText("", buffer, size);
}

CvxError OpenableCamera::GetInterfaceType(CvxTransportLayerType &type) const
{
    type = CvxTransportLayerGigE;
    return CvxErrorSuccess;
}

CvxError OpenableCamera::GetInterface(std::shared_ptr<Interface> &) const
{
    return CvxErrorNotAvailable;
}

CvxResult OpenableCamera::Open(CvxAccess access, std::shared_ptr<Device> &device)
{
    {
        const std::lock_guard lock(m_mutex);
        m_opened.push_back(access);
    }
    if (onOpen) {
        if (CvxResult result = onOpen(); !result)
            return result;
    }
    device = m_device;
    return {};
}
