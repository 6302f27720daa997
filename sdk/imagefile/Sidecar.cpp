#include "sdk/imagefile/Sidecar.h"

#include "sdk/imagefile/OutputFile.h"
#include "sdk/imagefile/SampleConverter.h"
#include "sdk/imagefile/ValueJson.h"

#include <array>
#include <cstdio>
#include <ctime>

namespace {

constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;

std::int64_t nanosecondsOf(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return time.tv_sec * nanosecondsPerSecond + time.tv_nsec;
}

std::string utcText(std::int64_t nanoseconds)
{
    const std::time_t seconds = nanoseconds / nanosecondsPerSecond;
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    std::array<char, 24> date{};
    std::strftime(date.data(), date.size(), "%Y-%m-%dT%H:%M:%S", &parts);
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%s.%06lldZ", date.data(),
        static_cast<long long>(nanoseconds % nanosecondsPerSecond / 1000));
    return text.data();
}

} // namespace

std::string sidecarPath(const std::string &path)
{
    return path + ".json";
}

nlohmann::ordered_json cameraJson(const CameraRecord &camera)
{
    nlohmann::ordered_json json{{"camera",
        {{"id", camera.id}, {"vendor", camera.vendor}, {"model", camera.model},
            {"serialNumber", camera.serialNumber}, {"userName", camera.userName}}}};
    if (!camera.settingsTime.empty())
        json["settingsTime"] = camera.settingsTime;
    json["settings"] = camera.settings;
    return json;
}

nlohmann::ordered_json imageJson(const CvxCPP::Image &image)
{
    const CvxCPP::ImageInfo &info = image.GetInfo();
    nlohmann::ordered_json json{{"width", info.width}, {"height", info.height}, {"offsetX", info.offsetX},
        {"offsetY", info.offsetY}, {"paddingX", info.paddingX}, {"pixelFormat", info.pixelFormat},
        {"pixelFormatName", pixelFormatName(info.pixelFormat)}, {"isBigEndian", info.isBigEndian},
        {"isComplete", info.isComplete}, {"timestamp", info.timestamp}, {"time", utcTime(info.receivedAt)},
        {"frameId", info.frameId}, {"bytes", image.GetSize()}};
    for (const CvxCPP::ChunkValue &chunk : image.GetChunks())
        json["chunks"][chunk.name] = valueJson(chunk.value);
    return json;
}

std::string utcTime(std::uint64_t receivedAt)
{
    // Read once, so that an image has the same time wherever it is described.
    static const std::int64_t difference = nanosecondsOf(CLOCK_REALTIME) - nanosecondsOf(CLOCK_MONOTONIC);
    return utcText(difference + static_cast<std::int64_t>(receivedAt));
}

std::string utcNow()
{
    return utcText(nanosecondsOf(CLOCK_REALTIME));
}

std::string writeSidecar(const std::string &path, const nlohmann::ordered_json &json)
{
    // Texts of a camera may be broken UTF-8.
    const std::string text
        = json.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
    OutputFile file;
    if (file.createHidden(path) && file.append(text.data(), text.size()) && file.publish())
        return {};
    return file.problem();
}
