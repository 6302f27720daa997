// Calls the four functions whose instructions are counted. The functions need neither clock, disk nor screen.
// Callgrind counts the calls that are made inside the functions named count_…; the other calls initialise
// data.

#include "bench/programs/ReferenceCameras.h"
#include "config/LauncherConfig.h"
#include "sdk/protocol/DiscoveryMessages.h"
#include "sdk/protocol/Message.h"

// The included file contains the private function that builds a tooltip.
#include "ui/MainWindowCameraTable.cpp" // NOLINT(bugprone-suspicious-include)

#include <cstdlib>
#include <optional>
#include <string>

namespace {

constexpr int cameraCount = 64;

/// Returns the reply of a host with `cameraCount` cameras on one interface, as a line without its line feed.
std::string cameraListLine()
{
    InterfaceRecord interface {
        1, "Sim0-GigE", "Simulated GigE network", "GEV", { }
    };
    for (int index = 0; index < cameraCount; ++index) {
        const std::string serial = std::to_string(24000000 + index);
        interface.devices.push_back({"SIM-GEV-" + serial, "Orvelle", "Kx200 Pro 5MP-C", serial,
            "Orvelle Kx200 Pro " + serial, "GEV"});
    }
    std::string line = Message(1, CameraListReply{{interface}, {}, 0, false}).toLine();
    line.pop_back();
    return line;
}

std::size_t parsed(const std::string &line)
{
    const std::optional<Message> message = Message::fromLine(line);
    const auto reply = message ? message->content<CameraListReply>() : std::nullopt;
    return reply ? reply->interfaces.front().devices.size() : 0;
}

std::size_t matched(const LauncherConfig &config, const QVector<CameraInfo> &cameras)
{
    std::size_t found = 0;
    for (const CameraInfo &camera : cameras)
        found += config.findGroupForCamera(camera).type.isEmpty() ? 0 : 1;
    return found;
}

std::size_t loaded()
{
    LauncherConfig config;
    config.load();
    return std::size_t(config.allTools(QStringLiteral("linux_x86_64")).size());
}

std::size_t described(const QVector<CameraInfo> &cameras, ImageCells &imageCells)
{
    std::size_t length = 0;
    for (const CameraInfo &camera : cameras) {
        length += std::size_t(
            buildCameraTooltip(camera, QStringLiteral("/opt/corvix-x/cti/CorvixCameraSimulator.cti"),
                QStringLiteral("picture"), imageCells)
                .size());
    }
    return length;
}

} // namespace

// Callgrind finds these functions by their names.
extern "C" {
__attribute__((noinline)) std::size_t count_list_parsing(const std::string &line)
{
    return parsed(line);
}

__attribute__((noinline)) std::size_t count_group_matching(
    const LauncherConfig &config, const QVector<CameraInfo> &cameras)
{
    return matched(config, cameras);
}

__attribute__((noinline)) std::size_t count_configuration_load()
{
    return loaded();
}

__attribute__((noinline)) std::size_t count_tooltip_building(
    const QVector<CameraInfo> &cameras, ImageCells &imageCells)
{
    return described(cameras, imageCells);
}
}

int main()
{
    const std::string line = cameraListLine();
    const QVector<CameraInfo> cameras = referenceCameras(cameraCount);
    LauncherConfig config;
    config.load();
    // The picture is already encoded, because the work of Qt and libpng would hide the cost of our own code.
    ImageCells imageCells{{QStringLiteral("picture"), QString(4000, QLatin1Char('x'))}};

    const bool isSame = count_list_parsing(line) == parsed(line) && parsed(line) == cameraCount
        && matched(config, cameras) == cameraCount && count_group_matching(config, cameras) == cameraCount
        && loaded() > 0 && count_configuration_load() > 0
        && described(cameras, imageCells) == count_tooltip_building(cameras, imageCells);
    return isSame ? EXIT_SUCCESS : EXIT_FAILURE;
}
