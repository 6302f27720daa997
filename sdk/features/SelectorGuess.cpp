#include "sdk/features/SelectorGuess.h"

#include <map>
#include <set>
#include <string_view>

using namespace CvxCPP;

namespace {

using Values = std::map<std::string, std::string>;
using Selectors = std::map<std::string, std::set<std::string>>; // By the name of the feature.

bool isSelectorName(std::string_view name)
{
    for (const std::string_view ending : {"Selector", "Index"}) {
        if (name.size() >= ending.size() && name.substr(name.size() - ending.size()) == ending)
            return true;
    }
    return false;
}

void addSelectors(const std::vector<FeatureSetting> &settings, Selectors &selectors)
{
    Values current;
    std::map<std::string, Values> lastLines; // The values of the selectors at the last line of each feature.
    for (const FeatureSetting &setting : settings) {
        auto &known = selectors[setting.name];
        for (const SelectorSetting &given : setting.selectors)
            known.insert(given.name);
        if (isSelectorName(setting.name)) {
            current[setting.name] = setting.value;
            continue;
        }
        if (const auto last = lastLines.find(setting.name); last != lastLines.end()) {
            for (const auto &[name, value] : last->second) {
                if (current[name] != value)
                    known.insert(name);
            }
        }
        lastLines[setting.name] = current;
    }
}

} // namespace

FeatureDirectory guessSelectors(const std::vector<const std::vector<FeatureSetting> *> &files)
{
    Selectors selectors;
    for (const auto *const file : files)
        addSelectors(*file, selectors);
    std::map<std::string, NodeInfo> nodes;
    for (const auto &[name, selecting] : selectors) {
        nodes[name].selectors.assign(selecting.begin(), selecting.end());
        for (const std::string &selector : selecting)
            nodes[selector].selected.push_back(name);
    }
    std::vector<NodeInfo> infos;
    for (auto &[name, info] : nodes) {
        info.name = name;
        info.type = NodeType::String;
        infos.push_back(std::move(info));
    }
    return FeatureDirectory(std::move(infos));
}
