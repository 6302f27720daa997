#include "sdk/imagefile/MapFile.h"

#include "sdk/imagefile/Sidecar.h"

#include <cerrno>
#include <cmath>
#include <cstring>
#include <fstream>
#include <limits>
#include <sys/stat.h>

namespace {

constexpr int knownVersion = 1;

/// Maps have few levels; the values of cameras in "settings" have none of their own. Deeper ones are left
/// out.
constexpr int maxDepth = 8;

std::optional<std::uint32_t> asUnsigned(const nlohmann::ordered_json &value)
{
    if (!value.is_number_unsigned())
        return std::nullopt;
    const auto number = value.get<std::uint64_t>();
    if (number > std::numeric_limits<std::uint32_t>::max())
        return std::nullopt;
    return static_cast<std::uint32_t>(number);
}

} // namespace

std::string mapFileProblem(const std::string &path, std::uint64_t maxSize)
{
    struct stat status
    { };
    if (stat(path.c_str(), &status) != 0)
        return "\"" + path + "\" cannot be read: " + std::strerror(errno) + "; check the name of the file";
    if (!S_ISREG(status.st_mode))
        return "\"" + path + "\" cannot be read: it is no file; give the name of a file";
    if (static_cast<std::uint64_t>(status.st_size) > maxSize)
        return damagedFile(path, "it is too large");
    return {};
}

FileText readMapFile(const std::string &path, std::uint64_t maxSize)
{
    FileText result;
    result.problem = mapFileProblem(path, maxSize);
    if (!result.problem.empty())
        return result;
    std::ifstream file(path, std::ios::binary);
    result.text.resize(maxSize + 1);
    file.read(result.text.data(), static_cast<std::streamsize>(result.text.size()));
    result.text.resize(static_cast<std::size_t>(file.gcount()));
    if (file.bad() || !file.eof())
        result.problem = "\"" + path + "\" cannot be read; check the file and your permissions";
    return result;
}

std::string damagedFile(const std::string &path, const std::string &what)
{
    return "\"" + path + "\" cannot be used: " + what + "; measure again, or choose another file";
}

nlohmann::ordered_json mapJson(const char *format, const CameraRecord &camera)
{
    nlohmann::ordered_json json{{"format", format}, {"version", knownVersion}, {"created", utcNow()}};
    json.update(cameraJson(camera));
    return json;
}

std::optional<nlohmann::ordered_json> parseMapJson(std::string_view text, const char *format)
{
    const auto isShallow = [](int depth, nlohmann::ordered_json::parse_event_t, nlohmann::ordered_json &) {
        return depth <= maxDepth;
    };
    nlohmann::ordered_json json = nlohmann::ordered_json::parse(text, isShallow, false);
    if (!json.is_object() || json.value("format", nlohmann::ordered_json()) != format
        || json.value("version", nlohmann::ordered_json()) != knownVersion)
        return std::nullopt;
    return json;
}

std::optional<std::uint32_t> unsignedMember(const nlohmann::ordered_json &object, const char *name)
{
    const auto member = object.find(name);
    return member == object.end() ? std::nullopt : asUnsigned(*member);
}

std::optional<double> numberMember(const nlohmann::ordered_json &object, const char *name)
{
    const auto member = object.find(name);
    if (member == object.end() || !member->is_number() || !std::isfinite(member->get<double>()))
        return std::nullopt;
    return member->get<double>();
}

MapOrigin originOf(const nlohmann::ordered_json &object)
{
    MapOrigin origin;
    if (const auto created = object.find("created"); created != object.end() && created->is_string())
        origin.created = created->get<std::string>();
    for (const char *const name : {"camera", "settingsTime", "settings"})
        if (const auto member = object.find(name); member != object.end())
            origin.camera[name] = *member;
    return origin;
}
