#include "sdk/features/LoadRun.h"

#include "sdk/features/FeatureText.h"

#include <algorithm>
#include <map>

using namespace CvxCPP;

namespace {

constexpr unsigned maxPasses = 10;

} // namespace

LoadRun::LoadRun(Device &device, const FeatureDirectory &directory,
    const std::vector<FeatureSetting> &settings, const FeatureProgress &progress)
    : m_device(device), m_directory(directory), m_progress(progress), m_selectors(device, directory)
{
    for (const FeatureSetting &setting : settings)
        m_items.emplace_back(directory, setting);
    findRepeats();
    findGroups();
}

void LoadRun::findRepeats()
{
    std::map<std::string, LoadItem *> latest;
    for (LoadItem &item : m_items) {
        if (!item.isUsable)
            continue;
        LoadItem *&last = latest[item.selectorKey() + item.change.setting.name];
        if (last)
            last->isRepeated = true;
        last = &item;
    }
}

void LoadRun::findGroups()
{
    std::map<std::string, std::size_t> groupOf;
    for (std::size_t index = 0; index < m_items.size(); ++index) {
        if (!m_items[index].counts())
            continue;
        const auto [group, isNew] = groupOf.emplace(m_items[index].selectorKey(), m_groups.size());
        if (isNew)
            m_groups.emplace_back();
        m_groups[group->second].push_back(index);
    }
}

CvxResult LoadRun::readBefore()
{
    if (CvxResult result = checkStream(); !result)
        return result;
    std::size_t count = 0;
    for (const Group &group : m_groups) {
        if (!reportProgress(count)) {
            m_items.clear(); // Nothing is known about them.
            return {};
        }
        if (CvxResult result = readGroup(group); !result)
            return result;
        count += group.size();
    }
    for (LoadItem &item : m_items) {
        if (!item.counts())
            continue;
        item.change.before = settingText(item.state.value);
        item.plan(lockOf(item));
    }
    return {};
}

/// A camera locks at least one of these features while it streams.
CvxResult LoadRun::checkStream()
{
    std::vector<std::string> names;
    for (const char *const name : {"Width", "Height", "PixelFormat", "AcquisitionMode"}) {
        if (m_directory.find(name))
            names.emplace_back(name);
    }
    std::vector<NodeState> states;
    if (CvxResult result = readStates(m_device, names, states); !result)
        return result;
    const bool isStreaming = std::any_of(states.begin(), states.end(),
        [](const NodeState &state) { return state.lockReason == LockReason::StreamRunning; });
    if (isStreaming)
        return {CvxErrorNotWritable,
            "Settings cannot be loaded while a stream of the camera runs. Stop the stream first."};
    return {};
}

/// Reads the states of a group under its selectors. If these cannot be set, every setting of the group has
/// the same error.
CvxResult LoadRun::readGroup(const Group &group)
{
    if (CvxResult result = select(m_items[group.front()]); !result) {
        for (const std::size_t index : group)
            m_items[index].error = result.text;
        return isDeviceGone(result) ? result : CvxResult();
    }
    std::vector<std::string> names;
    for (const std::size_t index : group)
        names.push_back(m_items[index].change.setting.name);
    std::vector<NodeState> states;
    if (CvxResult result = readStates(m_device, names, states); !result)
        return result;
    for (std::size_t position = 0; position < group.size(); ++position)
        m_items[group[position]].state = std::move(states[position]);
    return {};
}

CvxResult LoadRun::readBack()
{
    for (const Group &group : m_groups) {
        if (CvxResult result = readGroup(group); !result)
            return result;
    }
    return {};
}

CvxResult LoadRun::select(const LoadItem &item)
{
    for (const auto &[name, value] : item.selectors) {
        if (CvxResult result = m_selectors.select(name, value); !result)
            return result;
    }
    return {};
}

/// Returns the setting of the file that locks this one at present, or null.
const LoadItem *LoadRun::lockOf(const LoadItem &item) const
{
    const NodeState &state = item.state;
    if (state.lockReason != LockReason::LockedByNode && state.lockReason != LockReason::NotAvailable)
        return nullptr;
    const auto lock = std::find_if(m_items.begin(), m_items.end(), [&state](const LoadItem &other) {
        return other.counts() && other.change.setting.name == state.lockingNode;
    });
    return lock == m_items.end() ? nullptr : &*lock;
}

bool LoadRun::isHopeless() const
{
    return std::any_of(
        m_items.begin(), m_items.end(), [](const LoadItem &item) { return item.isHopeless(); });
}

CvxResult LoadRun::apply()
{
    if (m_isCancelled)
        return {};
    m_isApplied = true;
    for (LoadItem &item : m_items)
        item.isPending = item.isUsable && (item.isRepeated || !item.hasWantedValue());
    std::size_t lastLost = m_items.size() + 1;
    while (hasPending() && m_passes < maxPasses && !m_isCancelled) {
        CvxResult result = writeAnnounced();
        if (result)
            result = readBack();
        if (!result)
            return result;
        // A setting may have changed another one that was written before.
        const std::size_t lost = findLostValues();
        if (lost == 0 || lost >= lastLost)
            break;
        lastLost = lost;
    }
    for (LoadItem &item : m_items) {
        if (item.counts())
            item.judge(lockOf(item));
    }
    return {};
}

CvxResult LoadRun::writeAnnounced()
{
    CvxResult result
        = announce(m_device, m_directory, {"DeviceRegistersStreamingStart", "DeviceFeaturePersistenceStart"});
    if (result)
        result = writePending();
    CvxResult ended
        = announce(m_device, m_directory, {"DeviceRegistersStreamingEnd", "DeviceFeaturePersistenceEnd"});
    return result ? ended : result;
}

/// Writes the pending settings in their order, again and again as long as at least one of them succeeds.
CvxResult LoadRun::writePending()
{
    for (bool hasChanged = true; hasChanged && hasPending() && m_passes < maxPasses; ++m_passes) {
        hasChanged = false;
        for (std::size_t index = 0; index < m_items.size(); ++index) {
            LoadItem &item = m_items[index];
            if (!item.isPending)
                continue;
            if (!reportProgress(m_items.size() + (m_passes == 0 ? index : m_items.size())))
                return {};
            CvxResult result = select(item);
            if (result)
                result = m_device.Write(item.change.setting.name, item.wanted);
            if (isDeviceGone(result))
                return result;
            hasChanged = hasChanged || result;
            item.isPending = !result && !item.isRepeated;
            item.error = std::move(result.text);
        }
    }
    return {};
}

bool LoadRun::hasPending() const
{
    return std::any_of(m_items.begin(), m_items.end(), [](const LoadItem &item) { return item.isPending; });
}

/// Makes the settings pending that were written, but have another value by now, and returns their number. A
/// setting that is locked by now is not written again.
std::size_t LoadRun::findLostValues()
{
    std::size_t count = 0;
    for (LoadItem &item : m_items) {
        const bool wasPending = item.isPending;
        item.isPending = wasPending && !item.hasWantedValue();
        const bool canBeWritten = item.state.value.index() != 0 && item.state.lockReason == LockReason::None;
        if (!item.counts() || wasPending || !canBeWritten || item.hasWantedValue())
            continue;
        item.isPending = true;
        item.error = item.readBackText();
        ++count;
    }
    return count;
}

LoadReport LoadRun::finish(CvxResult &result)
{
    LoadReport report;
    report.isApplied = m_isApplied;
    report.isCancelled = m_isCancelled;
    for (LoadItem &item : m_items) {
        if (!item.isRepeated)
            report.changes.push_back(std::move(item.change));
    }
    if (isDeviceGone(result))
        return report;
    const CvxResult restored = m_selectors.restore();
    if (isDeviceGone(restored))
        result = restored;
    else if (!restored)
        report.notes.push_back({"", "A selector has not got its previous value back: " + restored.text});
    return report;
}

/// Each setting counts twice: it is read, and later written.
bool LoadRun::reportProgress(std::size_t done)
{
    m_isCancelled = m_isCancelled || (m_progress && !m_progress(done, 2 * m_items.size()));
    return !m_isCancelled;
}
