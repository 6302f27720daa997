#include "tests/sdk/support/SystemTest.h"

using namespace CvxCPP;
using namespace std::chrono_literals;

class FeatureTest : public SystemTest
{
protected:
    /// The interface "net0" of a producer with that many cameras.
    std::shared_ptr<Interface> interfaceWith(int count)
    {
        options.pollInterval = 1h;
        addProducer("maker", cameras(count));
        start();
        return interfaceOf(list(), 0);
    }
};

TEST_F(FeatureTest, ThereAreFourAndNoOther)
{
    const auto interface = interfaceWith(1);
    for (const char *name : {"DeviceUpdateList", "DeviceSelector", "DeviceID", "DeviceVendorName"})
        EXPECT_TRUE(feature(*interface, name)) << name;
    std::shared_ptr<Feature> none;
    for (const char *name : {"", "deviceid", "DeviceModelName", "DeviceID "})
        EXPECT_EQ(interface->GetFeatureByName(name, none), CvxErrorNotFound) << name;
    EXPECT_EQ(interface->GetFeatureByName(nullptr, none), CvxErrorInvalidParameter);
    EXPECT_FALSE(none);
}

TEST_F(FeatureTest, TheSelectorPicksTheDeviceThatTheTextsSpeakOf)
{
    const auto interface = interfaceWith(3);
    const auto selector = feature(*interface, "DeviceSelector");
    const auto id = feature(*interface, "DeviceID");
    const auto vendor = feature(*interface, "DeviceVendorName");
    long min = 7, max = 7;
    ASSERT_EQ(selector->GetRange(min, max), CvxErrorSuccess);
    EXPECT_EQ(min, 0);
    EXPECT_EQ(max, 2);
    for (long index = 0; index < 3; ++index) {
        ASSERT_EQ(selector->SetValue(index), CvxErrorSuccess);
        EXPECT_EQ(valueOf(*id), "A" + std::to_string(index + 1));
        EXPECT_EQ(valueOf(*vendor), "Orvelle");
    }
    std::string text = "before";
    EXPECT_EQ(id->GetValue(text), CvxErrorSuccess);
    EXPECT_EQ(text, "A3");
    EXPECT_EQ(selector->SetValue(-1), CvxErrorInvalidParameter);
    EXPECT_EQ(selector->SetValue(3), CvxErrorInvalidParameter);
    EXPECT_EQ(valueOf(*id), "A3") << "a refused value changes nothing";
}

TEST_F(FeatureTest, CallsThatDoNotSuitTheTypeAreRefused)
{
    const auto interface = interfaceWith(1);
    long min = 0, max = 0;
    unsigned size = 0;
    for (const char *name : {"DeviceSelector", "DeviceID", "DeviceVendorName"})
        EXPECT_EQ(feature(*interface, name)->RunCommand(), CvxErrorWrongType) << name;
    for (const char *name : {"DeviceUpdateList", "DeviceID", "DeviceVendorName"}) {
        EXPECT_EQ(feature(*interface, name)->GetRange(min, max), CvxErrorWrongType) << name;
        EXPECT_EQ(feature(*interface, name)->SetValue(0), CvxErrorWrongType) << name;
    }
    for (const char *name : {"DeviceUpdateList", "DeviceSelector"})
        EXPECT_EQ(feature(*interface, name)->GetValue(nullptr, size), CvxErrorWrongType) << name;
}

TEST_F(FeatureTest, DevicesChangeWithAnUpdateAndNotWithout)
{
    const auto interface = interfaceWith(3);
    const auto selector = feature(*interface, "DeviceSelector");
    const auto id = feature(*interface, "DeviceID");
    ASSERT_EQ(selector->SetValue(2), CvxErrorSuccess);
    setScript("maker", cameras(2));
    list();
    EXPECT_EQ(valueOf(*id), "A3");
    ASSERT_EQ(feature(*interface, "DeviceUpdateList")->RunCommand(), CvxErrorSuccess);
    EXPECT_EQ(valueOf(*id), "A2") << "the selector is put back into range";
    long min = 0, max = 0;
    EXPECT_EQ(selector->GetRange(min, max), CvxErrorSuccess);
    EXPECT_EQ(max, 1);
}

TEST_F(FeatureTest, WithoutDevicesNothingIsSelected)
{
    const auto interface = interfaceWith(1);
    setScript("maker", cameras(0));
    ASSERT_EQ(feature(*interface, "DeviceUpdateList")->RunCommand(), CvxErrorSuccess);
    long min = 5, max = -5;
    unsigned size = 0;
    EXPECT_EQ(feature(*interface, "DeviceSelector")->GetRange(min, max), CvxErrorNotAvailable);
    EXPECT_EQ(min, 5);
    EXPECT_EQ(max, -5);
    EXPECT_EQ(feature(*interface, "DeviceSelector")->SetValue(0), CvxErrorNotAvailable);
    EXPECT_EQ(feature(*interface, "DeviceID")->GetValue(nullptr, size), CvxErrorNotAvailable);
    EXPECT_EQ(feature(*interface, "DeviceVendorName")->GetValue(nullptr, size), CvxErrorNotAvailable);
}

TEST_F(FeatureTest, AnUpdateSearchesItsInterfaceAlone)
{
    options.pollInterval = 1h;
    addProducer("maker", "interface a|A|GEV\ninterface b|B|GEV\ndevice a|1\ndevice b|2\n");
    start();
    const Cameras found = list();
    const auto interface = interfaceOf(found, 1);
    const std::size_t before = countCalls("maker", "IFUpdateDeviceList");
    setScript("maker", "interface a|A|GEV\ninterface b|B|GEV\ndevice a|1\ndevice b|2\ndevice b|3\n");
    ASSERT_EQ(feature(*interface, "DeviceUpdateList")->RunCommand(), CvxErrorSuccess);
    const auto calls = callsOf("maker");
    EXPECT_EQ(countCalls("maker", "IFUpdateDeviceList"), before + 1);
    ASSERT_EQ(feature(*interface, "DeviceSelector")->SetValue(1), CvxErrorSuccess);
    EXPECT_EQ(valueOf(*feature(*interface, "DeviceID")), "3");
}

TEST_F(FeatureTest, AnUpdateOfAnInterfaceThatIsGoneFails)
{
    options.interfaceUpdateInterval = 0ms;
    const auto interface = interfaceWith(1);
    setScript("maker", "interface other|O|GEV\n");
    list();
    EXPECT_EQ(feature(*interface, "DeviceUpdateList")->RunCommand(), CvxErrorNotAvailable);
    EXPECT_EQ(valueOf(*feature(*interface, "DeviceID")), "A1") << "what was known stays";
}

TEST_F(FeatureTest, AnUpdateDoesNotWaitLongerThanAListDoes)
{
    options.searchTimeout = 1000ms;
    const auto interface = interfaceWith(1);
    setScript("maker", "fault IFUpdateDeviceList hang\n" + cameras(1));
    const auto update = feature(*interface, "DeviceUpdateList");
    EXPECT_LT(timeOf([&] { EXPECT_EQ(update->RunCommand(), CvxErrorSuccess); }), 4000ms);
    EXPECT_LT(timeOf([&] { EXPECT_EQ(update->RunCommand(), CvxErrorSuccess); }), 500ms)
        << "not a second time";
    EXPECT_EQ(valueOf(*feature(*interface, "DeviceID")), "A1") << "what the last search has found";
}

TEST_F(FeatureTest, AnUpdateWithoutItsProducerFails)
{
    options.firstRestartDelay = 1h;
    const auto interface = interfaceWith(1);
    setScript("maker", "fault IFUpdateDeviceList crash\n" + cameras(1));
    EXPECT_TRUE(list().empty());
    EXPECT_EQ(feature(*interface, "DeviceUpdateList")->RunCommand(), CvxErrorTimeout);
}

TEST_F(FeatureTest, AFeatureKeepsItsInterface)
{
    const auto id = feature(*interfaceWith(1), "DeviceID");
    EXPECT_EQ(valueOf(*id), "A1");
}
