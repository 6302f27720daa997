#pragma once

#include "CvxCPP/Device.h"
#include "sdk/features/FeatureFile.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

/// The features of a camera by their names.
class FeatureDirectory
{
public:
    FeatureDirectory() = default;
    explicit FeatureDirectory(std::vector<CvxCPP::NodeInfo> nodes);

    const std::vector<CvxCPP::NodeInfo> &nodes() const { return m_nodes; }

    /// Returns null if there is no feature of this name.
    const CvxCPP::NodeInfo *find(const std::string &name) const;

    /// Returns true if the feature has a value.
    bool hasValue(const std::string &name) const;

    /// Returns true if the feature only chooses which values other features have.
    bool isSelector(const std::string &name) const;

    /// Returns the selectors of the feature and their own selectors; each follows those that select it.
    std::vector<std::string> selectorsOf(const std::string &name) const;

    /// Returns the settings of a file without the selectors, each with the values that its selectors have at
    /// this place. Selectors that the file has not set yet are left out.
    std::vector<FeatureSetting> resolve(const std::vector<FeatureSetting> &settings) const;

private:
    void addSelectors(const std::string &name, int depth, std::vector<std::string> &selectors) const;

    std::vector<CvxCPP::NodeInfo> m_nodes;
    std::unordered_map<std::string, std::size_t> m_index;
};
