// The simulator's scene file: what it may hold, and what happens while a person edits it.

#include "tests/producer/SimulatorScene.h"

#include <cerrno>
#include <unistd.h>

using namespace GenTL;

TEST_F(SimulatorScene, WithoutAFileThereAreTwoCameras)
{
    const Ids ids = devicesNow();
    ASSERT_EQ(ids, (Ids{"corvix-simulator-0001", "corvix-simulator-0002"}));
    for (const std::string &id : ids) {
        EXPECT_EQ(session.deviceText(handle, id, DEVICE_INFO_VENDOR), "Orvelle");
        EXPECT_EQ(session.deviceText(handle, id, DEVICE_INFO_MODEL), "Camera Simulator");
        EXPECT_EQ(session.deviceText(handle, id, DEVICE_INFO_USER_DEFINED_NAME), "");
    }
    EXPECT_EQ(session.deviceText(handle, ids[0], DEVICE_INFO_SERIAL_NUMBER), "SIM0001");
    EXPECT_EQ(session.deviceText(handle, ids[1], DEVICE_INFO_SERIAL_NUMBER), "SIM0002");
}

TEST_F(SimulatorScene, TheFileIsReadWithoutStandardInputAsWell)
{
    folder.writeScene(oneCamera);
    const int input = dup(STDIN_FILENO);
    close(STDIN_FILENO); // So the scene is opened as descriptor 0.
    errno = ENOENT;
    const Ids ids = devicesNow();
    dup2(input, STDIN_FILENO);
    close(input);
    EXPECT_EQ(ids, Ids{"one"});
}

TEST_F(SimulatorScene, EveryFieldIsReported)
{
    folder.writeScene(R"({"interfaces": [{"id": "net", "name": "Network", "tlType": "GEV", "devices": [
        {"id": "a", "vendor": "Vendor", "model": "Model", "serial": "0042", "userName": "Träger",
         "displayName": "Shown"}]}]})");
    ASSERT_EQ(devicesNow(), Ids{"a"});
    EXPECT_EQ(session.interfaceText("net", INTERFACE_INFO_DISPLAYNAME), "Network");
    EXPECT_EQ(session.interfaceText("net", INTERFACE_INFO_TLTYPE), "GEV");
    EXPECT_EQ(session.deviceText(handle, "a", DEVICE_INFO_VENDOR), "Vendor");
    EXPECT_EQ(session.deviceText(handle, "a", DEVICE_INFO_MODEL), "Model");
    EXPECT_EQ(session.deviceText(handle, "a", DEVICE_INFO_SERIAL_NUMBER), "0042");
    EXPECT_EQ(session.deviceText(handle, "a", DEVICE_INFO_USER_DEFINED_NAME), "Träger");
    EXPECT_EQ(session.deviceText(handle, "a", DEVICE_INFO_DISPLAYNAME), "Shown");
    EXPECT_EQ(session.deviceText(handle, "a", DEVICE_INFO_TLTYPE), "GEV");
    EXPECT_EQ(readInt32(deviceInfo(session.producer(), handle, "a", DEVICE_INFO_ACCESS_STATUS)),
        DEVICE_ACCESS_STATUS_READWRITE);
}

TEST_F(SimulatorScene, FieldsLeftOutAreEmptyOrHaveTheirDefault)
{
    folder.writeScene(oneCamera);
    ASSERT_EQ(devicesNow(), Ids{"one"});
    EXPECT_EQ(session.interfaceText("net", INTERFACE_INFO_DISPLAYNAME), "net");
    EXPECT_EQ(session.interfaceText("net", INTERFACE_INFO_TLTYPE), "Custom");
    EXPECT_EQ(session.deviceText(handle, "one", DEVICE_INFO_TLTYPE), "Custom");
    EXPECT_EQ(session.deviceText(handle, "one", DEVICE_INFO_DISPLAYNAME), "one");
    for (const DEVICE_INFO_CMD command :
        {DEVICE_INFO_VENDOR, DEVICE_INFO_MODEL, DEVICE_INFO_USER_DEFINED_NAME, DEVICE_INFO_SERIAL_NUMBER})
        EXPECT_EQ(session.deviceText(handle, "one", command), "");
}

TEST_F(SimulatorScene, TheDisplayNameIsMadeUpWhenEmpty)
{
    folder.writeScene(
        sceneOf(R"({"id": "a", "vendor": "V", "model": "M", "userName": "U", "displayName": ""})"));
    EXPECT_EQ(deviceText(DEVICE_INFO_DISPLAYNAME), "U");
    folder.writeScene(sceneOf(R"({"id": "a", "vendor": "V", "model": "M", "userName": ""})"));
    EXPECT_EQ(deviceText(DEVICE_INFO_DISPLAYNAME), "V M a");
    folder.writeScene(sceneOf(R"({"id": "a", "model": "M"})"));
    EXPECT_EQ(deviceText(DEVICE_INFO_DISPLAYNAME), "M a");
}

TEST_F(SimulatorScene, ADeviceMayHaveATechnologyOfItsOwn)
{
    folder.writeScene(sceneOf(R"({"id": "a", "tlType": "U3V"})"));
    EXPECT_EQ(deviceText(DEVICE_INFO_TLTYPE), "U3V");
    folder.writeScene(sceneOf(R"({"id": "a", "tlType": ""})"));
    EXPECT_EQ(deviceText(DEVICE_INFO_TLTYPE), "GEV");
}

TEST_F(SimulatorScene, ControlCharactersAndAnyLanguagePassThrough)
{
    folder.writeScene(
        sceneOf(R"({"id": "a", "vendor": "tab\tline\nbell\u0007", "model": "カメラ \ud83d\udcf7"})"));
    EXPECT_EQ(deviceText(DEVICE_INFO_VENDOR), "tab\tline\nbell\a");
    EXPECT_EQ(deviceText(DEVICE_INFO_MODEL), u8"カメラ \U0001F4F7");
}

TEST_F(SimulatorScene, DevicesOfDifferentInterfacesMayShareAnId)
{
    folder.writeScene(R"({"interfaces": [
        {"id": "left", "devices": [{"id": "same"}]}, {"id": "right", "devices": [{"id": "same"}]}]})");
    session.updateInterfaces();
    for (const char *const id : {"left", "right"}) {
        openInterface(id);
        session.updateDevices(handle);
        EXPECT_EQ(session.deviceIds(handle), Ids{"same"});
    }
}

TEST_F(SimulatorScene, AnEmptySceneHasNoInterfaces)
{
    folder.writeScene(R"({"interfaces": []})");
    EXPECT_FALSE(session.updateInterfaces());
    EXPECT_TRUE(session.interfaceIds().empty());
}

TEST_F(SimulatorScene, AListStaysUntilItsUpdate)
{
    folder.writeScene(oneCamera);
    ASSERT_EQ(devicesNow(), Ids{"one"});
    folder.writeScene(anotherCamera);
    EXPECT_EQ(session.deviceIds(handle), Ids{"one"});
    EXPECT_EQ(session.deviceText(handle, "one", DEVICE_INFO_ID), "one");
    EXPECT_TRUE(session.updateDevices(handle));
    EXPECT_EQ(session.deviceIds(handle), Ids{"two"});
    EXPECT_EQ(codeOf(deviceInfo(session.producer(), handle, "one", DEVICE_INFO_ID)), GC_ERR_INVALID_ID);
    EXPECT_FALSE(session.updateDevices(handle));
}

TEST_F(SimulatorScene, EveryEditIsSeenHoweverQuickly)
{
    // Same length and, on many file systems, the same time of change.
    for (int round = 0; round < 200; ++round) {
        folder.writeScene(round % 2 ? oneCamera : anotherCamera);
        ASSERT_EQ(devicesNow(), Ids{round % 2 ? "one" : "two"}) << round;
    }
}

TEST_F(SimulatorScene, AnEditOfAFileThatLayUntouchedIsSeen)
{
    folder.writeScene(oneCamera);
    folder.letSceneSettle();
    ASSERT_EQ(devicesNow(), Ids{"one"});
    ASSERT_EQ(devicesNow(), Ids{"one"});
    folder.writeScene(anotherCamera);
    EXPECT_EQ(devicesNow(), Ids{"two"});
    folder.replaceScene(oneCamera);
    EXPECT_EQ(devicesNow(), Ids{"one"});
}

TEST_F(SimulatorScene, AnInterfaceCanComeAndGoUnderOpenHandles)
{
    folder.writeScene(oneCamera);
    ASSERT_EQ(devicesNow(), Ids{"one"});
    folder.writeScene(R"({"interfaces": [{"id": "usb", "name": "USB", "tlType": "U3V"}]})");
    EXPECT_TRUE(session.updateInterfaces());
    EXPECT_EQ(session.interfaceIds(), Ids{"usb"});
    EXPECT_EQ(codeOf(listedInterfaceInfo(session.producer(), session.system(), "net", INTERFACE_INFO_ID)),
        GC_ERR_INVALID_ID);

    EXPECT_EQ(readText(openInterfaceInfo(session.producer(), handle, INTERFACE_INFO_ID)), "net");
    EXPECT_TRUE(session.updateDevices(handle));
    EXPECT_TRUE(session.deviceIds(handle).empty());

    folder.writeScene(oneCamera);
    EXPECT_TRUE(session.updateInterfaces());
    EXPECT_TRUE(session.updateDevices(handle));
    EXPECT_EQ(session.deviceIds(handle), Ids{"one"});
}

TEST_F(SimulatorScene, ARenamedInterfaceTellsItsNewNameAfterTheUpdate)
{
    folder.writeScene(R"({"interfaces": [{"id": "net", "name": "before"}]})");
    devicesNow();
    folder.writeScene(R"({"interfaces": [{"id": "net", "name": "after"}]})");
    EXPECT_EQ(readText(openInterfaceInfo(session.producer(), handle, INTERFACE_INFO_DISPLAYNAME)), "before");
    EXPECT_TRUE(session.updateInterfaces());
    EXPECT_EQ(readText(openInterfaceInfo(session.producer(), handle, INTERFACE_INFO_DISPLAYNAME)), "after");
}

TEST_F(SimulatorScene, WithTheFileTakenAwayThereAreTwoCamerasAgain)
{
    folder.writeScene(oneCamera);
    ASSERT_EQ(devicesNow(), Ids{"one"});
    folder.removeScene();
    EXPECT_EQ(devicesNow().size(), 2U);
    folder.writeScene("{");
    EXPECT_EQ(devicesNow(), Ids{"one"}) << "the last good scene";
}

TEST_F(SimulatorScene, ThousandsOfDevicesAreListedQuickly)
{
    constexpr int count = 20000;
    std::string devices;
    for (int i = 0; i < count; ++i)
        devices += (i ? ", " : "") + (R"({"id": "camera )" + std::to_string(i) + R"(", "serial": "7"})");
    folder.writeScene(sceneOf(devices));
    session.updateInterfaces();
    openInterface("net");
    session.updateDevices(handle);
    std::uint32_t listed = 0;
    EXPECT_EQ(session.producer().IFGetNumDevices(handle, &listed), GC_ERR_SUCCESS);
    ASSERT_EQ(listed, std::uint32_t(count));
    for (int i = 0; i < count; ++i)
        ASSERT_EQ(codeOf(deviceInfo(
                      session.producer(), handle, "camera " + std::to_string(i), DEVICE_INFO_SERIAL_NUMBER)),
            GC_ERR_SUCCESS);
}

TEST_F(SimulatorScene, ALongTextIsReportedWhole)
{
    const std::string text(1000000, 'x');
    folder.writeScene(sceneOf(R"({"id": "a", "vendor": ")" + text + R"("})"));
    EXPECT_EQ(deviceText(DEVICE_INFO_VENDOR), text);
}
