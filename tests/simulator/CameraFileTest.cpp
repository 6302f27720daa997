// These tests open the file of a camera in several processes.

#include "sdk/simulator/CameraFile.h"
#include "sdk/producer/OpenCamera.h"
#include "tests/simulator/ChildProcess.h"
#include "tests/simulator/TestCamera.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <vector>

namespace {

constexpr auto exclusive = GenTL::DEVICE_ACCESS_EXCLUSIVE;

/// Opens the file and lets others in. Returns an empty text, or the text of the failure.
std::string open(
    std::unique_ptr<CameraFile> &file, const std::string &path, GenTL::DEVICE_ACCESS_FLAGS access)
{
    try {
        file = std::make_unique<CameraFile>(path, access);
        file->share();
        return {};
    } catch (const GenTlError &error) {
        EXPECT_EQ(error.code(), GenTL::GC_ERR_ACCESS_DENIED) << error.what();
        return error.what();
    }
}

std::string problemOf(const std::string &path, GenTL::DEVICE_ACCESS_FLAGS access)
{
    std::unique_ptr<CameraFile> file;
    return open(file, path, access);
}

/// Opens the file in the child process, where it stays open.
std::string openForever(const std::string &path, GenTL::DEVICE_ACCESS_FLAGS access)
{
    static std::unique_ptr<CameraFile> file;
    return open(file, path, access);
}

} // namespace

class CameraFileTest : public testing::Test
{
protected:
    TestFolder folder;
    const std::string path = folder.file("camera");
};

TEST_F(CameraFileTest, controlAndExclusiveAccessExcludeOthers)
{
    struct
    {
        GenTL::DEVICE_ACCESS_FLAGS first;
        GenTL::DEVICE_ACCESS_FLAGS second;
        std::string reason; // Empty if both are possible.
    } const expected[] = {
        {watch, watch, ""},
        {watch, control, ""},
        {watch, exclusive, "watches the camera"},
        {control, watch, ""},
        {control, control, "controls the camera"},
        {control, exclusive, "controls the camera"},
        {exclusive, watch, "uses the camera exclusively"},
        {exclusive, control, "controls the camera"},
        {exclusive, exclusive, "controls the camera"},
    };
    for (const auto &[first, second, reason] : expected) {
        const ChildProcess holder([&, access = first] { return openForever(path, access); });
        EXPECT_EQ(holder.answer(), "");
        const std::string problem
            = reason.empty() ? "" : "Process " + std::to_string(holder.id()) + ' ' + reason;
        EXPECT_EQ(problemOf(path, second), problem) << first << ' ' << second;
    }
}

TEST_F(CameraFileTest, accessWithinOneProcessIsExclusiveToo)
{
    std::unique_ptr<CameraFile> first;
    EXPECT_EQ(open(first, path, control), "");
    EXPECT_EQ(problemOf(path, control), "Process " + std::to_string(getpid()) + " controls the camera");
}

TEST_F(CameraFileTest, locksEndWithAKilledProcess)
{
    ChildProcess holder([this] { return openForever(path, exclusive); });
    EXPECT_NE(problemOf(path, watch), "");
    holder.kill();
    CameraFile file(path, control);
    EXPECT_TRUE(file.isFirstUser());
}

TEST_F(CameraFileTest, lastUserRemovesTheFile)
{
    std::unique_ptr<CameraFile> first;
    std::unique_ptr<CameraFile> second;
    EXPECT_EQ(open(first, path, control), "");
    EXPECT_EQ(open(second, path, watch), "");
    EXPECT_FALSE(second->isFirstUser());
    EXPECT_NE(problemOf(path, exclusive), ""); // A user who was turned away leaves everything as it is.
    first.reset();
    EXPECT_FALSE(folder.isEmpty());
    second.reset();
    EXPECT_TRUE(folder.isEmpty());
}

TEST_F(CameraFileTest, manyProcessesThatOpenAndCloseLeaveNothingBehind)
{
    constexpr int rounds = 300;
    std::vector<std::unique_ptr<ChildProcess>> children;
    for (int child = 0; child < 3; ++child)
        children.push_back(std::make_unique<ChildProcess>([this] {
            std::string problems;
            for (int round = 0; round < rounds; ++round)
                problems += problemOf(path, watch);
            return problems;
        }));
    for (const auto &child : children)
        EXPECT_EQ(child->answer(), "");
    EXPECT_TRUE(folder.isEmpty());
}

TEST_F(CameraFileTest, fileOfSomebodyElseIsNotUsed)
{
    std::unique_ptr<CameraFile> file;
    EXPECT_EQ(open(file, path, control), "");
    struct stat status
    { };
    EXPECT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & ~static_cast<mode_t>(S_IFMT), static_cast<mode_t>(S_IRUSR | S_IWUSR));
    EXPECT_EQ(chmod(path.c_str(), 0666), 0);
    EXPECT_THROW(CameraFile(path, watch), GenTlError);
    std::filesystem::create_symlink(path, folder.file("link"));
    EXPECT_THROW(CameraFile(folder.file("link"), watch), GenTlError);
}

TEST_F(CameraFileTest, nameOfTheFileNamesTheCamera)
{
    const std::string session = folder.file("");
    setenv("XDG_RUNTIME_DIR", session.c_str(), 1);
    EXPECT_EQ(cameraFilePath("net/0", "00:11 é"), session + "/corvix-camera-00%3A11%20%C3%A9.net%2F0");
    const std::string fallback = "/tmp/corvix-camera-" + std::to_string(geteuid()) + "-a.n";
    setenv("XDG_RUNTIME_DIR", folder.file("missing").c_str(), 1);
    EXPECT_EQ(cameraFilePath("n", "a"), fallback);
    unsetenv("XDG_RUNTIME_DIR");
    EXPECT_EQ(cameraFilePath("n", "a"), fallback);
    EXPECT_LT(cameraFilePath(std::string(300, 'n'), std::string(300, '/')).size(), 255U);
}
