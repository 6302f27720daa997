#pragma once

#include "CvxCPP/Node.h"
#include "sdk/features/FeatureFile.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

/// The values that features had when a camera was opened and those that they have now, for each combination
/// of their selectors' values. Values are the texts of a settings file.
class OpeningValues
{
public:
    using Selectors = std::vector<SelectorSetting>;

    void clear();

    /// Stores the value at opening, unless something is known of it already.
    void setOpening(const std::string &name, const Selectors &selectors, const std::string &value);

    /// The feature has changed before its value at opening was read, so that value stays unknown.
    void setLost(const std::string &name, const Selectors &selectors);

    std::optional<std::string> opening(const std::string &name, const Selectors &selectors) const;
    std::optional<std::string> present(const std::string &name, const Selectors &selectors) const;

    /// Returns true if something is known of the feature, for any values of its selectors.
    bool contains(const std::string &name) const { return m_changedCounts.count(name) > 0; }

    /// Stores the present value, if the feature is known with these selectors. Returns true if isChanged()
    /// returns another value than before.
    bool setPresent(const CvxCPP::NodeInfo &node, const Selectors &selectors, const std::string &value);

    /// Returns true if the value differs from the opening for any values of the selectors.
    bool isChanged(const std::string &name) const;

    /// Returns true for the first call with a known feature and selectors.
    bool markListed(const std::string &name, const Selectors &selectors);

private:
    struct Entry
    {
        std::optional<std::string> opening;
        std::optional<std::string> present;
        bool isChanged = false;
        bool isListed = false;
    };

    Entry *find(const std::string &name, const Selectors &selectors);
    const Entry *find(const std::string &name, const Selectors &selectors) const;
    void add(const std::string &name, const Selectors &selectors, std::optional<std::string> opening);

    std::unordered_map<std::string, Entry> m_entries; // By name and selectors.
    std::unordered_map<std::string, int> m_changedCounts; // By name: how many of the entries have changed.
};

/// Returns a text that is the same for equal selectors with equal values.
std::string selectorsKey(const std::vector<SelectorSetting> &selectors);
