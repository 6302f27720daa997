#include "sdk/features/SelectorControl.h"

#include "sdk/features/DeviceCalls.h"
#include "sdk/features/FeatureText.h"

#include <algorithm>

using namespace CvxCPP;

SelectorControl::SelectorControl(Device &device, const FeatureDirectory &directory)
    : m_device(device), m_directory(directory)
{ }

CvxResult SelectorControl::select(const std::string &name, const NodeValue &value)
{
    NodeValue current;
    if (CvxResult result = readCurrent(name, current); !result)
        return result;
    if (isSameValue(current, value))
        return {};
    m_current.erase(name);
    if (CvxResult result = m_device.Write(name, value); !result)
        return result;
    m_current[name] = value;
    forgetSelectedBy(name);
    // Only the value before the first change has to be restored.
    if (m_changes.empty() || m_changes.back().name != name)
        m_changes.push_back({name, current});
    return {};
}

CvxResult SelectorControl::restore()
{
    CvxResult first;
    while (!m_changes.empty()) {
        const Change change = std::move(m_changes.back());
        m_changes.pop_back();
        CvxResult result = m_device.Write(change.name, change.before);
        if (!result && first)
            first = std::move(result);
        if (isDeviceGone(first))
            break;
    }
    m_changes.clear();
    m_current.clear();
    return first;
}

CvxResult SelectorControl::readCurrent(const std::string &name, NodeValue &value)
{
    if (const auto known = m_current.find(name); known != m_current.end()) {
        value = known->second;
        return {};
    }
    CvxResult result = m_device.Read(name, value);
    if (result)
        m_current[name] = value;
    return result;
}

/// A selector may have another value for each value of the selectors that select it.
void SelectorControl::forgetSelectedBy(const std::string &name)
{
    for (auto position = m_current.begin(); position != m_current.end();) {
        const auto outer = m_directory.selectorsOf(position->first);
        const bool isSelected = std::find(outer.begin(), outer.end(), name) != outer.end();
        position = isSelected ? m_current.erase(position) : std::next(position);
    }
}
