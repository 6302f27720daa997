// Scene files that the simulator cannot use.

#include "tests/producer/SimulatorScene.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <optional>
#include <thread>

namespace {

/// Whether this process has opened the scene so that programs it starts inherit it; nothing while it is shut.
std::optional<bool> isSceneInheritable()
{
    std::error_code gone; // A descriptor may be closed between two steps.
    for (const auto &entry : std::filesystem::directory_iterator("/proc/self/fd", gone)) {
        const auto file = std::filesystem::read_symlink(entry.path(), gone);
        const int flags = fcntl(std::stoi(entry.path().filename()), F_GETFD);
        if (flags >= 0 && file.filename() == "CorvixCameraSimulator.json")
            return (flags & FD_CLOEXEC) == 0;
    }
    return std::nullopt;
}

} // namespace

struct BrokenScene
{
    const char *name;
    std::string text;
    const char *complaint; ///< What standard error must say.
};

std::ostream &operator<<(std::ostream &stream, const BrokenScene &scene)
{
    return stream << scene.name;
}

class BrokenSimulatorScene : public SimulatorScene, public testing::WithParamInterface<BrokenScene>
{ };

TEST_P(BrokenSimulatorScene, KeepsTheLastGoodSceneAndSaysWhyOnce)
{
    folder.writeScene(oneCamera);
    ASSERT_EQ(devicesNow(), Ids{"one"});
    folder.writeScene(GetParam().text);

    testing::internal::CaptureStderr();
    EXPECT_FALSE(session.updateInterfaces());
    EXPECT_FALSE(session.updateDevices(handle));
    EXPECT_FALSE(session.updateDevices(handle));
    const std::string complaints = testing::internal::GetCapturedStderr();
    EXPECT_NE(complaints.find(GetParam().complaint), std::string::npos) << complaints;
    EXPECT_EQ(std::count(complaints.begin(), complaints.end(), '\n'), 1) << complaints;
    EXPECT_LT(complaints.size(), 1000U) << "a line for people, whatever the file holds";

    EXPECT_EQ(session.deviceIds(handle), Ids{"one"});
    folder.writeScene(anotherCamera);
    EXPECT_EQ(devicesNow(), Ids{"two"}) << "repaired";
}

TEST_P(BrokenSimulatorScene, ShowsTheTwoCamerasIfThereWasNoGoodScene)
{
    folder.writeScene(GetParam().text);
    testing::internal::CaptureStderr();
    EXPECT_EQ(devicesNow().size(), 2U);
    testing::internal::GetCapturedStderr();
}

INSTANTIATE_TEST_SUITE_P(Scenes, BrokenSimulatorScene,
    testing::Values(BrokenScene{"EmptyFile", "", "parse error"},
        BrokenScene{"HalfWritten", R"({"interfaces": [{"id": "net", "dev)", "parse error"},
        BrokenScene{"TextWithoutEnd", "{\"interfaces\": \"" + std::string(1U << 20U, 'x'), "parse error"},
        BrokenScene{"NoJson", "camera one", "parse error"},
        BrokenScene{"BadUtf8", sceneOf("{\"id\": \"a\", \"vendor\": \"\xff\xfe\"}"), "parse error"},
        BrokenScene{"RawControlCharacter", sceneOf("{\"id\": \"a\", \"vendor\": \"\x01\"}"), "parse error"},
        BrokenScene{"NumberOutOfRange", R"({"interfaces": [], "note": 1e999})", "number overflow"},
        BrokenScene{"DeeplyNested", std::string(500000, '['), "parse error"},
        BrokenScene{"NoObject", "[]", "interfaces"}, BrokenScene{"NoInterfaces", "{}", "interfaces"},
        BrokenScene{"InterfacesNoArray", R"({"interfaces": {}})", "\"interfaces\" is not an array"},
        BrokenScene{"InterfaceNoObject", R"({"interfaces": [1]})", "interfaces[0] is not an object"},
        BrokenScene{"InterfaceWithoutId", R"({"interfaces": [{"name": "x"}]})", "interfaces[0]: \"id\""},
        BrokenScene{"InterfaceIdEmpty", R"({"interfaces": [{"id": ""}]})", "interfaces[0]: \"id\""},
        BrokenScene{
            "DevicesNoArray", R"({"interfaces": [{"id": "n", "devices": "x"}]})", "\"devices\" is not"},
        BrokenScene{"DeviceNoObject", sceneOf("null"), "interfaces[0].devices[0] is not an object"},
        BrokenScene{"DeviceWithoutId", sceneOf(R"({"id": "a"}, {"model": "M"})"), "devices[1]: \"id\""},
        BrokenScene{"InterfaceIdTwice", R"({"interfaces": [{"id": "a"}, {"id": "b"}, {"id": "a"}]})",
            "is not used: scene.interfaces[2]: \"id\" is that of scene.interfaces[0]\n"},
        BrokenScene{"DeviceIdTwice", sceneOf(R"({"id": "a"}, {"id": "b"}, {"id": "c"}, {"id": "b"})"),
            "is not used: scene.interfaces[0].devices[3]: \"id\" is that of "
            "scene.interfaces[0].devices[1]\n"},
        BrokenScene{"NumberForText", sceneOf(R"({"id": "a", "serial": 42})"), "\"serial\" is not a string"},
        BrokenScene{
            "NullForText", sceneOf(R"({"id": "a", "userName": null})"), "\"userName\" is not a string"},
        BrokenScene{"NulInText", sceneOf(R"({"id": "a\u0000b"})"), "NUL"},
        BrokenScene{"TooLarge", std::string(17U << 20U, ' '), "larger than 16 MiB"}),
    [](const auto &parameter) { return std::string(parameter.param.name); });

TEST_F(SimulatorScene, AFolderInTheFilesPlaceIsABrokenScene)
{
    folder.makeSceneAFolder();
    testing::internal::CaptureStderr();
    EXPECT_EQ(devicesNow().size(), 2U);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("not a regular file"), std::string::npos);
}

TEST_F(SimulatorScene, APipeInTheFilesPlaceHoldsNothingUp)
{
    folder.makeSceneAPipe();
    testing::internal::CaptureStderr();
    EXPECT_EQ(devicesNow().size(), 2U);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("not a regular file"), std::string::npos);
}

TEST_F(SimulatorScene, ADeviceInTheFilesPlaceHoldsNothingUp)
{
    folder.makeSceneALinkTo("/dev/zero"); // Without end.
    testing::internal::CaptureStderr();
    EXPECT_EQ(devicesNow().size(), 2U);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("not a regular file"), std::string::npos);
}

TEST_F(SimulatorScene, AFileThatCannotBeReadIsABrokenScene)
{
    folder.makeSceneALinkTo("/proc/self/mem"); // A regular file, with nothing at its start.
    testing::internal::CaptureStderr();
    EXPECT_EQ(devicesNow().size(), 2U);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("it cannot be read: "), std::string::npos);
}

TEST_F(SimulatorScene, ALinkInACircleIsABrokenScene)
{
    folder.makeSceneALinkTo("CorvixCameraSimulator.json");
    testing::internal::CaptureStderr();
    EXPECT_EQ(devicesNow().size(), 2U);
    EXPECT_NE(testing::internal::GetCapturedStderr().find(
                  "CorvixCameraSimulator.json is not used: it cannot be opened: "),
        std::string::npos);
}

TEST_F(SimulatorScene, AProgramStartedWhileItIsReadDoesNotInheritIt)
{
    folder.writeScene(oneCamera + std::string(15U << 20U, ' ')); // It takes a while to be read.
    std::atomic<bool> isSeen{false};
    std::thread reader([&] {
        while (!isSeen)
            session.updateInterfaces();
    });
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    std::optional<bool> isInheritable;
    while (!isInheritable && std::chrono::steady_clock::now() < deadline)
        isInheritable = isSceneInheritable();
    isSeen = true;
    reader.join();
    EXPECT_EQ(isInheritable, false);
}

TEST_F(SimulatorScene, WhatIsIgnoredMayBeNestedAMillionTimes)
{
    const std::string nested = std::string(1000000, '[') + std::string(1000000, ']');
    folder.writeScene(
        R"({"note": )" + nested + R"(, "interfaces": [{"id": "net", "devices": [{"id": "one"}]}]})");
    EXPECT_EQ(devicesNow(), Ids{"one"});
}
