// Real GigE Vision discovery over the loopback device. Runs in a network namespace of its own.

#include "tests/aravis/CameraLister.h"
#include "tests/aravis/FakeCamera.h"

#include <chrono>
#include <dlfcn.h>
#include <gtest/gtest.h>

using namespace GenTL;

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto searchTime = std::chrono::seconds(1); // Aravis waits that long for answers.

std::string firstDeviceId(CameraLister &lister)
{
    return lister.session().deviceIds(lister.handle("127.0.0.1")).at(0);
}

} // namespace

class GigEVision : public testing::Test
{
protected:
    CameraLister lister{UNIVERSAL_GEV_FILE};
};

TEST_F(GigEVision, ThereIsAnInterfacePerNetworkCardAndOneForAddressesOfNoCard)
{
    const std::vector<std::string> expected{"127.0.0.1", "elsewhere"};
    EXPECT_EQ(lister.interfaces(), expected);
    EXPECT_EQ(lister.session().interfaceText("127.0.0.1", INTERFACE_INFO_DISPLAYNAME),
        "Network card lo (127.0.0.1)");
    for (const std::string &id : expected)
        EXPECT_EQ(lister.session().interfaceText(id, INTERFACE_INFO_TLTYPE), "GEV");
}

TEST_F(GigEVision, WithoutACameraTheListIsEmptyAfterOneSearch)
{
    const auto start = Clock::now();
    EXPECT_EQ(lister.cameras(), ListedCameras{});
    EXPECT_LT(Clock::now() - start, 2 * searchTime) << "one search for both interfaces";
}

TEST_F(GigEVision, ACameraIsListedWithWhatItTellsOfItself)
{
    const FakeCamera camera("LOOP1");
    ASSERT_EQ(lister.awaitCameras({{"127.0.0.1", "LOOP1"}}), (ListedCameras{{"127.0.0.1", "LOOP1"}}));
    const IF_HANDLE handle = lister.handle("127.0.0.1");
    const std::string id = firstDeviceId(lister);
    const std::pair<DEVICE_INFO_CMD, const char *> expected[] = {
        {DEVICE_INFO_VENDOR, "Aravis"},
        {DEVICE_INFO_MODEL, "Fake"},
        {DEVICE_INFO_SERIAL_NUMBER, "LOOP1"},
        {DEVICE_INFO_TLTYPE, "GEV"},
        {DEVICE_INFO_DISPLAYNAME, "Aravis Fake LOOP1"},
        {DEVICE_INFO_USER_DEFINED_NAME, ""},
    };
    for (const auto &[command, text] : expected)
        EXPECT_EQ(lister.session().deviceText(handle, id, command), text) << command;
}

TEST_F(GigEVision, ACameraWithoutAHardwareAddressHasItsOtherTextsAsId)
{
    const FakeCamera camera("LOOP1"); // Its hardware address is all zeros.
    ASSERT_EQ(lister.awaitCameras({{"127.0.0.1", "LOOP1"}}), (ListedCameras{{"127.0.0.1", "LOOP1"}}));
    EXPECT_EQ(firstDeviceId(lister), "Aravis-Fake-LOOP1");
}

TEST_F(GigEVision, ACameraThatMissesOneSearchStays)
{
    FakeCamera camera("LOOP1");
    const ListedCameras one{{"127.0.0.1", "LOOP1"}};
    ASSERT_EQ(lister.awaitCameras(one), one);
    for (int i = 0; i < 2; ++i) {
        camera.pause();
        EXPECT_EQ(lister.searchedCameras(), one) << i;
        camera.resume();
        EXPECT_EQ(lister.searchedCameras(), one) << i;
    }
}

TEST_F(GigEVision, ACameraThatMissesTwoSearchesGoes)
{
    FakeCamera camera("LOOP1");
    const ListedCameras one{{"127.0.0.1", "LOOP1"}};
    ASSERT_EQ(lister.awaitCameras(one), one);
    camera.pause();
    EXPECT_EQ(lister.searchedCameras(), one);
    EXPECT_EQ(lister.searchedCameras(), ListedCameras{});
}

TEST_F(GigEVision, ACameraGoesAndComesBackUnderItsId)
{
    const ListedCameras one{{"127.0.0.1", "LOOP1"}};
    std::string id;
    {
        const FakeCamera camera("LOOP1");
        ASSERT_EQ(lister.awaitCameras(one), one);
        id = firstDeviceId(lister);
    }
    EXPECT_EQ(lister.awaitCameras({}), ListedCameras{});
    const FakeCamera again("LOOP1");
    ASSERT_EQ(lister.awaitCameras(one), one);
    EXPECT_EQ(firstDeviceId(lister), id);
}

TEST_F(GigEVision, UpdatesSideBySideShareOneSearch)
{
    const FakeCamera camera("LOOP1");
    const ListedCameras one{{"127.0.0.1", "LOOP1"}};
    ASSERT_EQ(lister.awaitCameras(one), one);
    const auto start = Clock::now();
    EXPECT_EQ(lister.cameras(), one);
    EXPECT_EQ(lister.cameras(), one);
    EXPECT_LT(Clock::now() - start, searchTime) << "that one has just ended";
}

TEST(GigEVisionSessions, ACameraKeepsItsIdFromOneSessionToTheNext)
{
    const FakeCamera camera("LOOP1");
    const ListedCameras one{{"127.0.0.1", "LOOP1"}};
    std::vector<std::string> ids;
    for (int session = 0; session < 2; ++session) {
        CameraLister lister(UNIVERSAL_GEV_FILE);
        ASSERT_EQ(lister.awaitCameras(one), one);
        ids.push_back(firstDeviceId(lister));
    }
    EXPECT_EQ(ids[0], ids[1]);
}

TEST(GigEVisionSessions, AravisStaysLoadedWhenTheProducerIsUnloaded)
{
    {
        CameraLister lister(UNIVERSAL_GEV_FILE);
        lister.cameras();
    }
    // GLib holds pointers into it. Asked for by name, without being loaded.
    EXPECT_NE(dlopen("libaravis-0.8.so.0", RTLD_LAZY | RTLD_NOLOAD), nullptr);
}
