#include "tools/cvxctl/NetworkCamera.h"

#include "tools/cvxctl/CameraSession.h"
#include "tools/cvxctl/Terminal.h"

#include <algorithm>

namespace {

/// Returns the twelve hexadecimal digits of a MAC address in any of its usual forms, in lower case. Returns
/// an empty text if the text is no MAC address.
std::string macDigits(const std::string &text)
{
    std::string digits;
    for (const char character : text) {
        if (character == ':' || character == '-')
            continue;
        if (std::isxdigit(static_cast<unsigned char>(character)) == 0)
            return {};
        digits += static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    }
    constexpr std::size_t macSize = 12;
    return digits.size() == macSize ? digits : std::string();
}

std::vector<std::size_t> matchMac(const std::vector<SeenCamera> &cameras, const std::string &text)
{
    std::vector<std::size_t> matches;
    const std::string digits = macDigits(text);
    for (std::size_t index = 0; index < cameras.size() && !digits.empty(); ++index) {
        if (macDigits(macToString(cameras[index].camera.mac)) == digits)
            matches.push_back(index);
    }
    return matches;
}

std::vector<std::size_t> matchNames(const std::vector<SeenCamera> &cameras, const std::string &text)
{
    std::vector<CameraNames> names;
    for (const SeenCamera &seen : cameras) {
        const CameraData &data = seen.camera;
        const std::string id = identityOf(data);
        names.push_back({id, id, data.model, data.serial, nameOf(data), data.userName});
    }
    return matchCameras(names, text);
}

/// Asks the camera system which camera the text means, because another producer may use other names.
ExitStatus findBySystem(const std::vector<SeenCamera> &cameras, const std::string &text, SeenCamera &camera)
{
    CameraSession session;
    ListedCamera listed;
    if (const ExitStatus status = session.find(text, listed))
        return status;
    const CameraNames &names = listed.names;
    if (listed.type != "GigE") {
        printError(names.name + " is not a GigE camera, so it has no network address");
        return exitFailure;
    }
    const auto isListed = [&](const SeenCamera &seen) {
        const CameraData &data = seen.camera;
        return names.id == identityOf(data)
            || (!data.serial.empty() && data.serial == names.serial && data.model == names.model);
    };
    const auto found = std::find_if(cameras.begin(), cameras.end(), isListed);
    if (found == cameras.end()) {
        printError(names.name
            + " does not answer on the network; is it switched on, and does a firewall permit the answers "
              "from "
              "UDP port 3956? \"cvxctl doctor\" checks this machine");
        return exitLost;
    }
    camera = *found;
    return exitSuccess;
}

} // namespace

std::string nameOf(const CameraData &camera)
{
    std::string name;
    for (const std::string *part : {&camera.vendor, &camera.model, &camera.serial})
        name += (name.empty() || part->empty() ? "" : " ") + *part;
    return name.empty() ? identityOf(camera) : name;
}

ExitStatus findNetworkCamera(
    const std::vector<SeenCamera> &cameras, const std::string &text, SeenCamera &camera)
{
    std::vector<std::size_t> matches = matchMac(cameras, text);
    if (matches.empty())
        matches = matchNames(cameras, text);
    if (matches.empty())
        return findBySystem(cameras, text, camera);
    if (matches.size() == 1) {
        camera = cameras[matches.front()];
        return exitSuccess;
    }
    printError("several cameras match \"" + text + "\"; use the MAC address of one of them:");
    for (const std::size_t index : matches) {
        const CameraData &data = cameras[index].camera;
        std::fprintf(stderr, "  %s  (%s)\n", identityOf(data).c_str(), printable(nameOf(data)).c_str());
    }
    return exitAmbiguous;
}
