#include "tests/sdk/support/SystemTest.h"

using namespace CvxCPP;

class CameraTextTest : public SystemTest
{
protected:
    /// The only camera of a producer with this script.
    std::shared_ptr<Camera> cameraOf(const std::string &script)
    {
        addProducer("maker", script);
        start();
        const Cameras found = list();
        EXPECT_EQ(found.size(), 1U);
        return found.at(0);
    }
};

TEST_F(CameraTextTest, IsWhatTheProducerTells)
{
    const auto camera = cameraOf("interface if|Net|GEV\ndevice if|D1|Vendor|Model|Serial|Name|GEV\n");
    EXPECT_EQ(plainId(*camera), "D1");
    EXPECT_EQ(extendedId(*camera), "maker.cti/if/D1");
    EXPECT_EQ(modelOf(*camera), "Model");
    EXPECT_EQ(nameOf(*camera), "Name");
    EXPECT_EQ(serialOf(*camera), "Serial");
}

TEST_F(CameraTextTest, IsEmptyWhereTheProducerTellsNothing)
{
    const auto camera = cameraOf("interface if|Net|GEV\ndevice if|D1\n");
    EXPECT_EQ(modelOf(*camera), "");
    EXPECT_EQ(nameOf(*camera), "");
    EXPECT_EQ(serialOf(*camera), "");
}

TEST_F(CameraTextTest, InvalidBytesAreReplacedAndNotDropped)
{
    const auto camera = cameraOf("interface i\xFF|Net|GEV\ndevice i\xFF|D\xFE|V|M\xC3|S\x80|\xFFN\xFF|GEV\n");
    EXPECT_EQ(plainId(*camera), "D\xEF\xBF\xBD");
    EXPECT_EQ(extendedId(*camera), "maker.cti/i\xEF\xBF\xBD/D\xEF\xBF\xBD");
    EXPECT_EQ(modelOf(*camera), "M\xEF\xBF\xBD");
    EXPECT_EQ(serialOf(*camera), "S\xEF\xBF\xBD");
    EXPECT_EQ(nameOf(*camera), "\xEF\xBF\xBDN\xEF\xBF\xBD");
    EXPECT_EQ(feature(*interfaceOf(list(), 0), "DeviceUpdateList")->RunCommand(), CvxErrorSuccess);
}

TEST_F(CameraTextTest, CamerasThatDifferInInvalidBytesOnlyAreBothThere)
{
    addProducer("a", "interface if|Net|GEV\ndevice if|\xFE\ndevice if|\xFF\n");
    start();
    EXPECT_EQ(list().size(), 2U);
}

TEST_F(CameraTextTest, ControlCharactersAndQuotesComeThrough)
{
    const auto camera
        = cameraOf("interface if|Net|GEV\ndevice if|a\"b\\c\t\x01{}[],:|V|\x1b[31m|S|\xE2\x82\xAC|GEV\n");
    EXPECT_EQ(plainId(*camera), "a\"b\\c\t\x01{}[],:");
    EXPECT_EQ(modelOf(*camera), "\x1b[31m");
    EXPECT_EQ(nameOf(*camera), "\xE2\x82\xAC");
}

TEST_F(CameraTextTest, OneOddCharacterInAnOrdinaryTextIsEnough)
{
    const auto camera = cameraOf("interface if|Net|GEV\ndevice if|a\"b|V|c\\d|e\tf|g\x7Fh|GEV\n");
    EXPECT_EQ(plainId(*camera), "a\"b");
    EXPECT_EQ(modelOf(*camera), "c\\d");
    EXPECT_EQ(serialOf(*camera), "e\tf");
    EXPECT_EQ(nameOf(*camera), "g\x7Fh");
}

TEST_F(CameraTextTest, AnAbsurdlyLongOneIsLeftOutAndReported)
{
    const auto camera
        = cameraOf("interface if|Net|GEV\ndevice if|D|V|" + std::string(1 << 20, 'm') + "|S|N|GEV\n");
    EXPECT_EQ(modelOf(*camera), "");
    EXPECT_EQ(serialOf(*camera), "S");
    EXPECT_EQ(countReports("IFGetDeviceInfo"), 1U);
}

TEST_F(CameraTextTest, IsReadWithTwoCalls)
{
    const auto camera = cameraOf("interface if|Net|GEV\ndevice if|D1|V|abc|S|N|GEV\n");
    unsigned size = 99;
    ASSERT_EQ(camera->GetModel(nullptr, size), CvxErrorSuccess);
    EXPECT_EQ(size, 4U) << "with the closing NUL";
    char buffer[8] = {'x', 'x', 'x', 'x', 'x', 'x', 'x', 'x'};
    size = 3;
    EXPECT_EQ(camera->GetModel(buffer, size), CvxErrorBufferTooSmall);
    EXPECT_EQ(buffer[3], 'x');
    size = 8;
    EXPECT_EQ(camera->GetModel(buffer, size), CvxErrorSuccess);
    EXPECT_EQ(size, 4U);
    EXPECT_STREQ(buffer, "abc");
    EXPECT_EQ(buffer[4], 'x');
}

TEST_F(CameraTextTest, TheFileNameInAnExtendedIdIsValidText)
{
    setScript("m\xFF", cameras(1));
    std::filesystem::copy_file(TEST_PRODUCER, ctiPath("m\xFF.cti"));
    start();
    EXPECT_EQ(listIds(), std::vector<std::string>{"m\xEF\xBF\xBD.cti/net0/A1"});
}

struct Transport
{
    std::string ofInterface, ofDevice;
    CvxTransportLayerType type;
};

class TransportTest : public CameraTextTest, public testing::WithParamInterface<Transport>
{ };

TEST_P(TransportTest, IsTheDevicesElseTheInterfaces)
{
    const auto camera = cameraOf(
        "interface if|Net|" + GetParam().ofInterface + "\ndevice if|D|V|M|S|N|" + GetParam().ofDevice + "\n");
    CvxTransportLayerType type = CvxTransportLayerMixed;
    EXPECT_EQ(camera->GetInterfaceType(type), CvxErrorSuccess);
    EXPECT_EQ(type, GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(Types, TransportTest,
    testing::Values(Transport{"GEV", "U3V", CvxTransportLayerUSB},
        Transport{"GEV", "", CvxTransportLayerGigE},
        Transport{"CXP", "Maker's own", CvxTransportLayerCoaXPress},
        Transport{"", "GigEVision", CvxTransportLayerGigE},
        Transport{"Maker's", "own", CvxTransportLayerUnknown},
        Transport{"GEV", "Custom", CvxTransportLayerCustom}));
