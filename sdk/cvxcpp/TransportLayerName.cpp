#include "sdk/cvxcpp/TransportLayerName.h"

#include <string>

namespace {

/// Returns only the ASCII letters and digits of the name, in lower case: both "GigE Vision" and
/// "GigE-Vision" become "gigevision".
std::string plainName(std::string_view name)
{
    std::string plain;
    for (const char character : name) {
        if (character >= 'A' && character <= 'Z')
            plain += static_cast<char>(character - 'A' + 'a');
        else if ((character >= 'a' && character <= 'z') || (character >= '0' && character <= '9'))
            plain += character;
    }
    return plain;
}

} // namespace

CvxCPP::CvxTransportLayerType transportLayerType(std::string_view name)
{
    struct Entry
    {
        std::string_view name;
        CvxCPP::CvxTransportLayerType type;
    };
    static constexpr Entry entries[] = {
        {"gev", CvxCPP::CvxTransportLayerGigE},
        {"gige", CvxCPP::CvxTransportLayerGigE},
        {"gigevision", CvxCPP::CvxTransportLayerGigE},
        {"cl", CvxCPP::CvxTransportLayerCameraLink},
        {"cameralink", CvxCPP::CvxTransportLayerCameraLink},
        {"iidc", CvxCPP::CvxTransportLayerIIDC},
        {"ieee1394", CvxCPP::CvxTransportLayerIIDC},
        {"1394", CvxCPP::CvxTransportLayerIIDC},
        {"firewire", CvxCPP::CvxTransportLayerIIDC},
        {"uvc", CvxCPP::CvxTransportLayerUVC},
        {"usbvideoclass", CvxCPP::CvxTransportLayerUVC},
        {"cxp", CvxCPP::CvxTransportLayerCoaXPress},
        {"coaxpress", CvxCPP::CvxTransportLayerCoaXPress},
        {"clhs", CvxCPP::CvxTransportLayerCameraLinkHS},
        {"cameralinkhs", CvxCPP::CvxTransportLayerCameraLinkHS},
        {"u3v", CvxCPP::CvxTransportLayerUSB},
        {"usb", CvxCPP::CvxTransportLayerUSB},
        {"usb3", CvxCPP::CvxTransportLayerUSB},
        {"usbvision", CvxCPP::CvxTransportLayerUSB},
        {"usb3vision", CvxCPP::CvxTransportLayerUSB},
        {"ethernet", CvxCPP::CvxTransportLayerEthernet},
        {"pci", CvxCPP::CvxTransportLayerPCI},
        {"pcie", CvxCPP::CvxTransportLayerPCI},
        {"pciexpress", CvxCPP::CvxTransportLayerPCI},
        {"custom", CvxCPP::CvxTransportLayerCustom},
        {"mixed", CvxCPP::CvxTransportLayerMixed},
    };
    const std::string plain = plainName(name);
    for (const Entry &entry : entries) {
        if (entry.name == plain)
            return entry.type;
    }
    return CvxCPP::CvxTransportLayerUnknown;
}
