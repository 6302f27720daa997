#include "sdk/features/DeviceCalls.h"

#include "sdk/features/CallSize.h"

#include <algorithm>
#include <iterator>
#include <thread>

using namespace CvxCPP;

void addNote(std::vector<FeatureNote> &notes, const std::string &name, const std::string &text)
{
    const auto isSame = [&name](const FeatureNote &other) { return other.name == name; };
    if (std::none_of(notes.begin(), notes.end(), isSame))
        notes.push_back({name, text});
}

bool isDeviceGone(const CvxResult &result)
{
    constexpr CvxError errors[]
        = {CvxErrorDeviceLost, CvxErrorClosed, CvxErrorTimeout, CvxErrorNotStarted, CvxErrorFailed};
    return std::find(std::begin(errors), std::end(errors), result.code) != std::end(errors);
}

CvxResult readDirectory(Device &device, FeatureDirectory &directory)
{
    std::vector<NodeInfo> nodes;
    CvxResult result = device.GetNodes(nodes);
    if (result)
        directory = FeatureDirectory(std::move(nodes));
    return result;
}

CvxResult readStates(Device &device, const std::vector<std::string> &names, std::vector<NodeState> &states)
{
    using Clock = std::chrono::steady_clock;
    states.clear();
    CallSize size;
    for (auto first = names.begin(); first != names.end();) {
        const auto count = std::min<std::ptrdiff_t>(size.next(), names.end() - first);
        std::vector<NodeState> part;
        const Clock::time_point start = Clock::now();
        if (CvxResult result = device.ReadStates({first, first + count}, part); !result)
            return result;
        size.wasRead(static_cast<int>(count), Clock::now() - start);
        first += count;
        std::move(part.begin(), part.end(), std::back_inserter(states));
    }
    return {};
}

namespace {

CvxResult waitUntilDone(Device &device, const std::string &command, std::chrono::seconds limit)
{
    using Clock = std::chrono::steady_clock;
    using namespace std::chrono_literals;
    for (const auto end = Clock::now() + limit; Clock::now() < end;) {
        std::vector<NodeState> states;
        if (CvxResult result = device.ReadStates({command}, states); !result)
            return result;
        if (states.front().isCommandDone)
            return {};
        std::this_thread::sleep_for(20ms);
    }
    return {CvxErrorDevice,
        "The camera has not finished the command \"" + command + "\" within " + std::to_string(limit.count())
            + " s."};
}

} // namespace

CvxResult executeAndWait(Device &device, const std::string &command, std::chrono::seconds limit)
{
    CvxResult result = device.Execute(command);
    return result ? waitUntilDone(device, command, limit) : result;
}

CvxResult announce(
    Device &device, const FeatureDirectory &directory, std::initializer_list<const char *> commands)
{
    for (const char *const command : commands) {
        if (!directory.find(command))
            continue;
        CvxResult result = device.Execute(command);
        const bool isAccepted = static_cast<bool>(result);
        if (isAccepted)
            result = waitUntilDone(device, command, std::chrono::seconds(5));
        if (isDeviceGone(result))
            return result;
        if (isAccepted)
            break; // Even if it takes too long: the others announce the same.
    }
    return {};
}
