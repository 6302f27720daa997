#include "sdk/features/DeviceCalls.h"

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

CvxResult readStates(Device &device, const std::vector<std::string> &names, std::vector<NodeState> &states)
{
    constexpr std::size_t maxNamesPerCall = 25; // A call has to end within 5 s.
    states.clear();
    for (std::size_t start = 0; start < names.size(); start += maxNamesPerCall) {
        const auto first = names.begin() + static_cast<std::ptrdiff_t>(start);
        const auto count = static_cast<std::ptrdiff_t>(std::min(maxNamesPerCall, names.size() - start));
        std::vector<NodeState> part;
        if (CvxResult result = device.ReadStates({first, first + count}, part); !result)
            return result;
        std::move(part.begin(), part.end(), std::back_inserter(states));
    }
    return {};
}

CvxResult executeAndWait(Device &device, const std::string &command, std::chrono::seconds limit)
{
    using Clock = std::chrono::steady_clock;
    using namespace std::chrono_literals;
    if (CvxResult result = device.Execute(command); !result)
        return result;
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

CvxResult announce(
    Device &device, const FeatureDirectory &directory, std::initializer_list<const char *> commands)
{
    for (const char *const command : commands) {
        if (!directory.find(command))
            continue;
        CvxResult result = executeAndWait(device, command);
        if (result || isDeviceGone(result))
            return result;
    }
    return {};
}
