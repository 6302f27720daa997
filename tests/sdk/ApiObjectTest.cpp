#include "sdk/cvxcpp/CameraObject.h"
#include "sdk/cvxcpp/InterfaceObject.h"
#include "tests/sdk/support/CameraText.h"
#include "tests/sdk/support/FakeSource.h"

#include <gtest/gtest.h>
#include <stdexcept>

using namespace CvxCPP;

namespace {

DeviceRecord device(const std::string &id, const std::string &vendor = "", const std::string &model = "")
{
    return {id, vendor, model, "", "", ""};
}

} // namespace

class ApiObjectTest : public testing::Test
{
protected:
    ApiObjectTest()
    {
        setDevices({{"D1", "V1", "M", "S", "N", "U3V"}, device("D2", "V2"), device("D3", "V3")});
    }

    /// Replaces the interface under test by one with these devices.
    void setDevices(const std::vector<DeviceRecord> &devices)
    {
        record = recordWith(devices);
        interface = std::make_shared<InterfaceObject>(
            source, 0, std::make_shared<const std::string>("vendor.cti"), record);
    }

    static std::shared_ptr<const InterfaceRecord> recordWith(const std::vector<DeviceRecord> &devices)
    {
        return std::make_shared<const InterfaceRecord>(InterfaceRecord{1, "net", "Network", "GEV", devices});
    }

    std::shared_ptr<Feature> feature(const char *name)
    {
        std::shared_ptr<Feature> found;
        EXPECT_EQ(interface->GetFeatureByName(name, found), CvxErrorSuccess);
        return found;
    }

    CvxError updateTo(const std::vector<DeviceRecord> &devices)
    {
        source->search = [&] { return InterfaceSource::SearchResult{CvxErrorSuccess, recordWith(devices)}; };
        return feature("DeviceUpdateList")->RunCommand();
    }

    std::shared_ptr<FakeSource> source = std::make_shared<FakeSource>();
    std::shared_ptr<const InterfaceRecord> record;
    std::shared_ptr<InterfaceObject> interface;
};

TEST_F(ApiObjectTest, cameraReturnsTheFieldsOfItsRecord)
{
    const CameraObject camera(interface, record, 0);
    EXPECT_EQ(idOf(camera, false), "D1");
    EXPECT_EQ(idOf(camera, true), "vendor.cti/net/D1");
    EXPECT_EQ(textOf([&](char *buffer, unsigned &size) { return camera.GetModel(buffer, size); }), "M");
    EXPECT_EQ(
        textOf([&](char *buffer, unsigned &size) { return camera.GetSerialNumber(buffer, size); }), "S");
    EXPECT_EQ(textOf([&](char *buffer, unsigned &size) { return camera.GetName(buffer, size); }), "N");
    std::shared_ptr<Interface> found;
    EXPECT_EQ(camera.GetInterface(found), CvxErrorSuccess);
    EXPECT_EQ(found, interface);
}

TEST_F(ApiObjectTest, knownDeviceTypeOverridesTheInterfaceType)
{
    const struct
    {
        const char *interfaceType, *deviceType;
        CvxTransportLayerType type;
    } rows[] = {{"GEV", "U3V", CvxTransportLayerUSB}, {"GEV", "", CvxTransportLayerGigE},
        {"CXP", "unknown", CvxTransportLayerCoaXPress}, {"", "GigEVision", CvxTransportLayerGigE},
        {"un", "known", CvxTransportLayerUnknown}, {"GEV", "Custom", CvxTransportLayerCustom}};
    for (const auto &row : rows) {
        InterfaceRecord typed{
            1, "net", "Network", row.interfaceType, {{"D", "", "", "", "", row.deviceType}}};
        CvxTransportLayerType type = CvxTransportLayerMixed;
        const CameraObject camera(interface, std::make_shared<const InterfaceRecord>(typed), 0);
        EXPECT_EQ(camera.GetInterfaceType(type), CvxErrorSuccess);
        EXPECT_EQ(type, row.type) << row.interfaceType << ' ' << row.deviceType;
    }
}

TEST_F(ApiObjectTest, stringIsReadWithTwoCalls)
{
    setDevices({device("D", "", "abc")});
    const CameraObject camera(interface, record, 0);
    unsigned size = 99;
    ASSERT_EQ(camera.GetModel(nullptr, size), CvxErrorSuccess);
    EXPECT_EQ(size, 4U) << "with the terminating NUL";
    char buffer[] = "xxxxxxx";
    size = 3;
    EXPECT_EQ(camera.GetModel(buffer, size), CvxErrorBufferTooSmall);
    EXPECT_EQ(buffer[3], 'x');
    size = 8;
    EXPECT_EQ(camera.GetModel(buffer, size), CvxErrorSuccess);
    EXPECT_EQ(size, 4U);
    EXPECT_STREQ(buffer, "abc");
    EXPECT_EQ(buffer[4], 'x');
}

TEST_F(ApiObjectTest, interfaceHasFourFeatures)
{
    for (const char *name : {"DeviceUpdateList", "DeviceSelector", "DeviceID", "DeviceVendorName"})
        EXPECT_TRUE(feature(name)) << name;
    std::shared_ptr<Feature> none;
    for (const char *name : {"", "deviceid", "DeviceModelName", "DeviceID "})
        EXPECT_EQ(interface->GetFeatureByName(name, none), CvxErrorNotFound) << name;
    EXPECT_EQ(interface->GetFeatureByName(nullptr, none), CvxErrorInvalidParameter);
    EXPECT_FALSE(none);
}

TEST_F(ApiObjectTest, featureRefusesCallsOfTheWrongType)
{
    long min = 0, max = 0;
    unsigned size = 0;
    for (const char *name : {"DeviceSelector", "DeviceID", "DeviceVendorName"})
        EXPECT_EQ(feature(name)->RunCommand(), CvxErrorWrongType) << name;
    for (const char *name : {"DeviceUpdateList", "DeviceID", "DeviceVendorName"}) {
        EXPECT_EQ(feature(name)->GetRange(min, max), CvxErrorWrongType) << name;
        EXPECT_EQ(feature(name)->SetValue(0), CvxErrorWrongType) << name;
    }
    for (const char *name : {"DeviceUpdateList", "DeviceSelector"})
        EXPECT_EQ(feature(name)->GetValue(nullptr, size), CvxErrorWrongType) << name;
}

TEST_F(ApiObjectTest, selectorSelectsTheDeviceThatOtherFeaturesDescribe)
{
    const auto selector = feature("DeviceSelector"), id = feature("DeviceID");
    long min = 7, max = 7;
    ASSERT_EQ(selector->GetRange(min, max), CvxErrorSuccess);
    EXPECT_EQ(min, 0);
    EXPECT_EQ(max, 2);
    for (long index = 0; index < 3; ++index) {
        ASSERT_EQ(selector->SetValue(index), CvxErrorSuccess);
        EXPECT_EQ(valueOf(*id), "D" + std::to_string(index + 1));
        EXPECT_EQ(valueOf(*feature("DeviceVendorName")), "V" + std::to_string(index + 1));
    }
    for (const long index : {-1L, 3L})
        EXPECT_EQ(selector->SetValue(index), CvxErrorInvalidParameter) << index;
    std::string text = "before";
    EXPECT_EQ(id->GetValue(text), CvxErrorSuccess);
    EXPECT_EQ(text, "D3") << "a refused value changes nothing";
}

TEST_F(ApiObjectTest, onlyASuccessfulUpdateReplacesTheDevices)
{
    const auto selector = feature("DeviceSelector"), id = feature("DeviceID");
    ASSERT_EQ(selector->SetValue(2), CvxErrorSuccess);
    source->search = [] { return InterfaceSource::SearchResult{CvxErrorTimeout, nullptr}; };
    EXPECT_EQ(feature("DeviceUpdateList")->RunCommand(), CvxErrorTimeout);
    source->search = []() -> InterfaceSource::SearchResult { throw std::runtime_error("no memory"); };
    EXPECT_EQ(feature("DeviceUpdateList")->RunCommand(), CvxErrorFailed);
    EXPECT_EQ(valueOf(*id), "D3") << "a failed update keeps the devices";
    ASSERT_EQ(updateTo({device("E1"), device("E2")}), CvxErrorSuccess);
    EXPECT_EQ(valueOf(*id), "E2");

    ASSERT_EQ(updateTo({}), CvxErrorSuccess);
    long min = 5, max = -5;
    unsigned size = 0;
    EXPECT_EQ(selector->GetRange(min, max), CvxErrorNotAvailable);
    EXPECT_EQ(min, 5);
    EXPECT_EQ(max, -5);
    EXPECT_EQ(selector->SetValue(0), CvxErrorNotAvailable);
    EXPECT_EQ(id->GetValue(nullptr, size), CvxErrorNotAvailable);

    ASSERT_EQ(updateTo({device("F1")}), CvxErrorSuccess);
    EXPECT_EQ(valueOf(*id), "F1");
}

TEST_F(ApiObjectTest, objectsReturnNotStartedAfterTheSystemIsGone)
{
    const auto camera = std::make_unique<CameraObject>(interface, record, 0);
    const auto update = feature("DeviceUpdateList"), selector = feature("DeviceSelector"),
               id = feature("DeviceID");
    unsigned size = 0;
    long min = 0, max = 0;
    CvxTransportLayerType type = CvxTransportLayerUnknown;
    std::shared_ptr<Interface> found;
    std::shared_ptr<Feature> another;
    *source->isRunning = false;
    source.reset();
    EXPECT_EQ(interface->GetFeatureByName("DeviceID", another), CvxErrorNotStarted);
    interface.reset();
    const CvxError errors[] = {camera->GetID(nullptr, size, false), camera->GetID(nullptr, size, true),
        camera->GetModel(nullptr, size), camera->GetInterfaceType(type), camera->GetInterface(found),
        update->RunCommand(), selector->GetRange(min, max), selector->SetValue(0),
        id->GetValue(nullptr, size)};
    for (const CvxError error : errors)
        EXPECT_EQ(error, CvxErrorNotStarted);
}
