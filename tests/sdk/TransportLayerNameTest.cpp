#include "sdk/cvxcpp/TransportLayerName.h"

#include <gtest/gtest.h>
#include <string>

using namespace CvxCPP;

struct TransportName
{
    const char *name;
    CvxTransportLayerType type;
};

class TransportLayerNameTest : public testing::TestWithParam<TransportName>
{ };

TEST_P(TransportLayerNameTest, GivesTheTechnology)
{
    EXPECT_EQ(transportLayerType(GetParam().name), GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(AsTheStandardWritesThem, TransportLayerNameTest,
    testing::Values(TransportName{"GEV", CvxTransportLayerGigE},
        TransportName{"CL", CvxTransportLayerCameraLink}, TransportName{"IIDC", CvxTransportLayerIIDC},
        TransportName{"UVC", CvxTransportLayerUVC}, TransportName{"CXP", CvxTransportLayerCoaXPress},
        TransportName{"CLHS", CvxTransportLayerCameraLinkHS}, TransportName{"U3V", CvxTransportLayerUSB},
        TransportName{"Ethernet", CvxTransportLayerEthernet}, TransportName{"PCI", CvxTransportLayerPCI},
        TransportName{"Custom", CvxTransportLayerCustom}, TransportName{"Mixed", CvxTransportLayerMixed}));

INSTANTIATE_TEST_SUITE_P(AsProducersWriteThem, TransportLayerNameTest,
    testing::Values(TransportName{"GigEVision", CvxTransportLayerGigE},
        TransportName{"GigE Vision", CvxTransportLayerGigE}, TransportName{"gev", CvxTransportLayerGigE},
        TransportName{"GIGE", CvxTransportLayerGigE},
        TransportName{"Camera Link", CvxTransportLayerCameraLink},
        TransportName{"CameraLink HS", CvxTransportLayerCameraLinkHS},
        TransportName{"USB3 Vision", CvxTransportLayerUSB}, TransportName{"USB3Vision", CvxTransportLayerUSB},
        TransportName{"USB Video Class", CvxTransportLayerUVC},
        TransportName{"CoaXPress", CvxTransportLayerCoaXPress},
        TransportName{"IEEE 1394", CvxTransportLayerIIDC},
        TransportName{"PCI Express", CvxTransportLayerPCI}));

INSTANTIATE_TEST_SUITE_P(Unknown, TransportLayerNameTest,
    testing::Values(TransportName{"", CvxTransportLayerUnknown},
        TransportName{"GEVA", CvxTransportLayerUnknown}, TransportName{"GEVZ", CvxTransportLayerUnknown},
        TransportName{"geva", CvxTransportLayerUnknown}, TransportName{"gevz", CvxTransportLayerUnknown},
        TransportName{"GEV0", CvxTransportLayerUnknown}, TransportName{"GEV9", CvxTransportLayerUnknown},
        TransportName{"Orvelle Link", CvxTransportLayerUnknown},
        TransportName{"-", CvxTransportLayerUnknown}));
