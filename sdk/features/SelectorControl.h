#pragma once

#include "CvxCPP/Device.h"
#include "sdk/features/FeatureDirectory.h"

#include <map>
#include <string>
#include <vector>

/// Sets selectors and puts them back. Selectors that have the wanted value already are not written, because
/// a selector with only one value is often read-only.
class SelectorControl
{
public:
    SelectorControl(CvxCPP::Device &device, const FeatureDirectory &directory);

    /// Sets a selector. Set the selectors that select this one first.
    CvxCPP::CvxResult select(const std::string &name, const CvxCPP::NodeValue &value);

    /// Restores the values that all selectors had before the first call of select(). Tries all of them and
    /// returns the first failure.
    CvxCPP::CvxResult restore();

private:
    struct Change
    {
        std::string name;
        CvxCPP::NodeValue before;
    };

    CvxCPP::CvxResult readCurrent(const std::string &name, CvxCPP::NodeValue &value);
    void forgetSelectedBy(const std::string &name);

    CvxCPP::Device &m_device;
    const FeatureDirectory &m_directory;
    std::map<std::string, CvxCPP::NodeValue> m_current;
    std::vector<Change> m_changes; // In their order; undone backwards, because selectors may select others.
};
