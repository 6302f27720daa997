#include "tools/camerasetup/values/SnapshotCalls.h"

#include "sdk/features/FeatureText.h"
#include "tools/camerasetup/values/OpeningValues.h"

#include <set>
#include <unordered_map>
#include <utility>

using namespace CvxCPP;

CvxResult readPart(Device &device, const FeatureDirectory &directory, SnapshotReading &reading)
{
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds maxTime{200};
    const Clock::time_point start = Clock::now();
    FeatureReader *running = nullptr;
    const FeatureProgress progress = [&](std::size_t done, std::size_t total) {
        const bool isFirst = running->finished().empty(); // Each call has to finish something.
        return done == total || isFirst || Clock::now() - start < maxTime;
    };
    FeatureReader reader(device, directory, progress);
    running = &reader;
    reader.setSkip([&reading](const std::vector<SelectorSetting> &selectors) {
        return reading.part.finished.count(selectorsKey(selectors)) > 0;
    });
    CvxResult result = reader.read(reading.part.names);
    reading.duration = Clock::now() - start;
    if (!result)
        return result;
    reading.readings = std::move(reader.readings());
    reading.notes = std::move(reader.notes());
    reading.isComplete = !reader.isCancelled();
    for (const std::vector<SelectorSetting> &selectors : reader.finished())
        reading.part.finished.insert(selectorsKey(selectors));
    return result;
}

CvxResult readWithPresentSelectors(Device &device, const FeatureDirectory &directory,
    const std::vector<std::string> &names, std::vector<FeatureReading> &readings)
{
    std::set<std::string> selectors;
    for (const std::string &name : names) {
        for (std::string &selector : directory.selectorsOf(name))
            selectors.insert(std::move(selector));
    }
    std::vector<std::string> all(selectors.begin(), selectors.end());
    all.insert(all.end(), names.begin(), names.end());
    std::vector<NodeState> states;
    if (CvxResult result = readStates(device, all, states); !result)
        return result;
    std::unordered_map<std::string, std::string> values;
    for (const NodeState &state : states) {
        if (selectors.count(state.name) > 0 && state.value.index() != 0)
            values[state.name] = settingText(state.value);
    }
    for (std::size_t index = selectors.size(); index < states.size(); ++index) {
        FeatureReading reading{{}, std::move(states[index])};
        for (const std::string &selector : directory.selectorsOf(reading.state.name)) {
            if (const auto value = values.find(selector); value != values.end())
                reading.selectors.push_back({selector, value->second});
        }
        readings.push_back(std::move(reading));
    }
    return {};
}
