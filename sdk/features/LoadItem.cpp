#include "sdk/features/LoadItem.h"

#include "sdk/features/FeatureText.h"

using namespace CvxCPP;

namespace {

/// Half of the distance between two values that a float can have: a camera rounds to the next one.
double roundingOf(const NodeState &state)
{
    const auto *const increment = std::get_if<double>(&state.increment);
    return increment && *increment > 0 ? *increment / 2 : 0;
}

/// Returns why a feature cannot be written, as a sentence.
std::string lockText(const NodeState &state)
{
    const std::string &node = state.lockingNode;
    switch (state.lockReason) {
    case LockReason::NotImplemented:
        return "The camera does not have this feature.";
    case LockReason::NotAvailable:
        return node.empty() ? "The feature is not available at present."
                            : "The feature is not available because of " + node + '.';
    case LockReason::ReadOnlyNode:
        return "The camera only reports this value.";
    case LockReason::Watching:
        return "The camera was opened only to watch it.";
    case LockReason::StreamRunning:
        return "The feature is locked while the stream runs.";
    case LockReason::LockedByNode:
        return node.empty() ? "The camera locks the feature." : "The feature is locked by " + node + '.';
    case LockReason::None:
        break;
    }
    return {};
}

} // namespace

LoadItem::LoadItem(const FeatureDirectory &directory, const FeatureSetting &setting)
{
    change.setting = setting;
    change.reason = convert(directory);
    isUsable = change.reason.empty();
}

/// Returns why the texts cannot be converted, or an empty text.
std::string LoadItem::convert(const FeatureDirectory &directory)
{
    const FeatureSetting &setting = change.setting;
    const NodeInfo *const node = directory.find(setting.name);
    if (!node)
        return "The camera has no feature of this name.";
    auto value = settingValue(node->type, setting.value);
    if (auto *const problem = std::get_if<std::string>(&value))
        return std::move(*problem);
    wanted = std::get<NodeValue>(std::move(value));
    for (const SelectorSetting &selector : setting.selectors) {
        const NodeInfo *const selecting = directory.find(selector.name);
        if (!selecting)
            return "The camera has no selector " + selector.name + '.';
        auto selected = settingValue(selecting->type, selector.value);
        if (const auto *const problem = std::get_if<std::string>(&selected))
            return selector.name + " cannot be set: " + *problem;
        selectors.emplace_back(selector.name, std::get<NodeValue>(std::move(selected)));
    }
    return {};
}

std::string LoadItem::selectorKey() const
{
    std::string key;
    for (const auto &[name, value] : selectors)
        key += name + '=' + settingText(value) + '\n';
    return key;
}

bool LoadItem::hasWantedValue() const
{
    return isSameValue(state.value, wanted, roundingOf(state));
}

bool LoadItem::isHopeless() const
{
    const bool cannotBeWritten = state.lockReason == LockReason::ReadOnlyNode
        || state.lockReason == LockReason::NotImplemented || state.lockReason == LockReason::Watching;
    return !isUsable || (cannotBeWritten && !hasWantedValue());
}

void LoadItem::plan(const LoadItem *lock)
{
    if (!error.empty()) {
        change.reason = error;
    } else if (hasWantedValue()) {
        change.outcome = FeatureOutcome::Unchanged;
    } else if (lock && lock->hasWantedValue()) {
        change.outcome = FeatureOutcome::Overruled;
        change.reason = lockText(state);
    } else if (state.lockReason != LockReason::None && !lock) {
        change.reason = lockText(state);
    } else {
        change.outcome = FeatureOutcome::Changed;
    }
}

void LoadItem::judge(const LoadItem *lock)
{
    change.after = settingText(state.value);
    change.reason.clear();
    const bool isWrittenOnly = state.access == NodeAccess::WriteOnly && !isPending;
    if (hasWantedValue() || isWrittenOnly) {
        const bool isSame = change.after == change.before && !isWrittenOnly;
        change.outcome = isSame ? FeatureOutcome::Unchanged : FeatureOutcome::Changed;
    } else if (lock && lock->hasWantedValue()) {
        change.outcome = FeatureOutcome::Overruled;
        change.reason = lockText(state);
    } else {
        change.outcome = FeatureOutcome::Failed;
        change.reason = !error.empty() ? error : isPending ? "The setting was not written." : readBackText();
    }
}

std::string LoadItem::readBackText() const
{
    return state.value.index() == 0 ? "The value cannot be read back. " + state.problem
                                    : "The camera made " + settingText(state.value) + " of it.";
}
