#include "sdk/cvxcpp/TransportLayerName.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

using namespace CvxCPP;

TEST(TransportLayerNameTest, everySpellingMapsToItsTransportLayer)
{
    const std::pair<CvxTransportLayerType, std::vector<const char *>> names[] = {
        {CvxTransportLayerGigE, {"GEV", "gev", "GIGE", "GigEVision", "GigE Vision", "GigE-Vision"}},
        {CvxTransportLayerCameraLink, {"CL", "Camera Link"}},
        {CvxTransportLayerIIDC, {"IIDC", "IEEE 1394", "1394", "FireWire"}},
        {CvxTransportLayerUVC, {"UVC", "USB Video Class"}},
        {CvxTransportLayerCoaXPress, {"CXP", "CoaXPress"}},
        {CvxTransportLayerCameraLinkHS, {"CLHS", "CameraLink HS"}},
        {CvxTransportLayerUSB, {"U3V", "USB", "USB3", "USB Vision", "USB3 Vision", "USB3Vision"}},
        {CvxTransportLayerEthernet, {"Ethernet"}},
        {CvxTransportLayerPCI, {"PCI", "PCIe", "PCI Express"}},
        {CvxTransportLayerCustom, {"Custom"}},
        {CvxTransportLayerMixed, {"Mixed"}},
        {CvxTransportLayerUnknown, {"", "-", "Orvelle Link", "GEVA", "GEVZ", "geva", "gevz", "GEV0", "GEV9"}},
    };
    for (const auto &[type, spellings] : names) {
        for (const char *name : spellings)
            EXPECT_EQ(transportLayerType(name), type) << name;
    }
}
