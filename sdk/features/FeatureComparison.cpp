#include "sdk/features/FeatureComparison.h"

#include "sdk/features/FeatureText.h"
#include "sdk/features/SelectorGuess.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <map>

using namespace CvxCPP;

namespace {

/// Both cameras, or neither if both sides are files.
struct Cameras
{
    const FeatureDirectory &left;
    const FeatureDirectory &right;

    const NodeInfo *find(const std::string &name) const
    {
        const NodeInfo *const found = left.find(name);
        return found ? found : right.find(name);
    }

    /// Returns the place of a feature in the order of the left camera, then of the right one.
    std::size_t position(const std::string &name) const
    {
        for (const FeatureDirectory *const directory : {&left, &right}) {
            if (const NodeInfo *const node = directory->find(name))
                return static_cast<std::size_t>(node - directory->nodes().data());
        }
        return std::numeric_limits<std::size_t>::max();
    }
};

/// Returns the settings with their selectors, even if they come from a file.
std::vector<FeatureSetting> resolved(const ComparedSide &side, const ComparedSide &other)
{
    if (!side.directory.nodes().empty())
        return side.settings;
    if (!other.directory.nodes().empty())
        return other.directory.resolve(side.settings);
    return guessSelectors({&side.settings, &other.settings}).resolve(side.settings);
}

/// Returns the value in the form of a saved file, so that equal values have equal texts.
std::string normalized(const NodeInfo *node, const std::string &text)
{
    if (!node)
        return text;
    const auto value = settingValue(node->type, text);
    const auto *const typed = std::get_if<NodeValue>(&value);
    return typed ? settingText(*typed) : text;
}

/// Returns a text that the same setting has on both sides.
std::string keyOf(const FeatureSetting &setting, const Cameras &cameras)
{
    std::map<std::string, std::string> selectors;
    for (const SelectorSetting &selector : setting.selectors)
        selectors[selector.name] = normalized(cameras.find(selector.name), selector.value);
    std::string key = setting.name;
    for (const auto &[name, value] : selectors)
        key += '\n' + name + '=' + value;
    return key;
}

bool hasSameValue(const NodeInfo *node, const std::string &left, const std::string &right)
{
    if (!node)
        return isSameText(left, right);
    const auto leftValue = settingValue(node->type, left);
    const auto rightValue = settingValue(node->type, right);
    const auto *const leftTyped = std::get_if<NodeValue>(&leftValue);
    const auto *const rightTyped = std::get_if<NodeValue>(&rightValue);
    return leftTyped && rightTyped ? isSameValue(*leftTyped, *rightTyped) : isSameText(left, right);
}

/// Two lines of one feature, of which one side does not name all selectors.
bool canBeSame(const ComparedFeature &left, const ComparedFeature &right)
{
    const auto contradicts = [&right](const SelectorSetting &selector) {
        return std::any_of(right.selectors.begin(), right.selectors.end(), [&](const SelectorSetting &other) {
            return other.name == selector.name && !isSameText(other.value, selector.value);
        });
    };
    return std::none_of(left.selectors.begin(), left.selectors.end(), contradicts);
}

class Comparison
{
public:
    explicit Comparison(const Cameras &cameras) : m_cameras(cameras) { }

    void addLeft(const FeatureSetting &setting)
    {
        ComparedFeature &feature = find(setting, FeatureDifference::OnlyLeft);
        feature.left = setting.value; // If there are several lines, the last one counts.
    }

    void addRight(const FeatureSetting &setting)
    {
        ComparedFeature &feature = find(setting, FeatureDifference::OnlyRight);
        feature.right = setting.value;
        if (feature.difference != FeatureDifference::OnlyRight)
            compare(feature);
    }

    std::vector<ComparedFeature> takeSorted()
    {
        pairRemaining();
        std::stable_sort(m_features.begin(), m_features.end(),
            [this](const ComparedFeature &left, const ComparedFeature &right) {
                return m_cameras.position(left.name) < m_cameras.position(right.name);
            });
        return std::move(m_features);
    }

private:
    ComparedFeature &find(const FeatureSetting &setting, FeatureDifference ifNew)
    {
        const auto [position, isNew] = m_index.emplace(keyOf(setting, m_cameras), m_features.size());
        if (isNew) {
            const NodeInfo *const node = m_cameras.find(setting.name);
            m_features.push_back({setting.selectors, setting.name, node ? node->category : "", "", "", ifNew,
                isIgnorableFeature(setting.name)});
        }
        return m_features[position->second];
    }

    void compare(ComparedFeature &feature) const
    {
        feature.difference = hasSameValue(m_cameras.find(feature.name), feature.left, feature.right)
            ? FeatureDifference::Equal
            : FeatureDifference::Different;
    }

    /// A feature that remains once on each side is the same one, even if only one side names its selectors.
    void pairRemaining()
    {
        std::map<std::string, std::vector<ComparedFeature *>> remaining;
        for (ComparedFeature &feature : m_features) {
            if (feature.difference == FeatureDifference::OnlyLeft
                || feature.difference == FeatureDifference::OnlyRight)
                remaining[feature.name].push_back(&feature);
        }
        for (auto &[name, features] : remaining) {
            const bool isPair = features.size() == 2 && features[0]->difference != features[1]->difference;
            if (!isPair || !canBeSame(*features[0], *features[1]))
                continue;
            // The left side was added first.
            if (features[0]->selectors.size() < features[1]->selectors.size())
                features[0]->selectors = features[1]->selectors;
            features[0]->right = features[1]->right;
            compare(*features[0]);
            features[1]->name.clear();
        }
        const auto isPaired = [](const ComparedFeature &feature) { return feature.name.empty(); };
        m_features.erase(std::remove_if(m_features.begin(), m_features.end(), isPaired), m_features.end());
    }

    const Cameras &m_cameras;
    std::vector<ComparedFeature> m_features;
    std::map<std::string, std::size_t> m_index; // By keyOf().
};

} // namespace

std::vector<ComparedFeature> compareFeatures(const ComparedSide &left, const ComparedSide &right)
{
    const Cameras cameras{left.directory, right.directory};
    Comparison comparison(cameras);
    for (const FeatureSetting &setting : resolved(left, right))
        comparison.addLeft(setting);
    for (const FeatureSetting &setting : resolved(right, left))
        comparison.addRight(setting);
    return comparison.takeSorted();
}

bool isIgnorableFeature(const std::string &name)
{
    static constexpr const char *names[] = {"DeviceID", "DeviceUserID", "DeviceUpTime", "LineStatus",
        "LineStatusAll", "EncoderValue", "CounterValue", "LinkUptime"};
    static constexpr const char *parts[]
        = {"SerialNumber", "Temperature", "Timestamp", "TimeStamp", "MACAddress", "IPAddress"};
    return std::any_of(std::begin(names), std::end(names), [&](const char *other) { return name == other; })
        || std::any_of(std::begin(parts), std::end(parts),
            [&](const char *part) { return name.find(part) != std::string::npos; });
}
