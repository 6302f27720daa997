#include "tools/camerasetup/compare/FileMerge.h"

#include "sdk/features/FeatureText.h"
#include "sdk/features/SelectorGuess.h"

#include <algorithm>

namespace {

bool hasSelector(const FeatureSetting &setting, const SelectorSetting &selector)
{
    return std::any_of(
        setting.selectors.begin(), setting.selectors.end(), [&selector](const SelectorSetting &other) {
            return other.name == selector.name && isSameText(other.value, selector.value);
        });
}

/// Returns true if both settings are the same feature under the same values of the selectors.
bool isSameSetting(const FeatureSetting &left, const FeatureSetting &right)
{
    return left.name == right.name && left.selectors.size() == right.selectors.size()
        && std::all_of(left.selectors.begin(), left.selectors.end(),
            [&right](const SelectorSetting &selector) { return hasSelector(right, selector); });
}

std::vector<FeatureSetting> resolved(const std::vector<FeatureSetting> &file,
    const std::vector<FeatureSetting> &changes, const FeatureDirectory &directory)
{
    return directory.nodes().empty() ? guessSelectors({&file, &changes}).resolve(file)
                                     : directory.resolve(file);
}

/// Returns the setting that a change replaces: the same one, or the only one of this feature in a file that
/// does not name the selectors.
std::vector<FeatureSetting>::iterator findTarget(
    std::vector<FeatureSetting> &settings, const FeatureSetting &change)
{
    const auto isSame = [&change](const FeatureSetting &other) { return isSameSetting(other, change); };
    const auto found = std::find_if(settings.rbegin(), settings.rend(), isSame); // The last line counts.
    if (found != settings.rend())
        return std::prev(found.base());
    const auto isNamesake = [&change](const FeatureSetting &other) { return other.name == change.name; };
    const auto only = std::find_if(settings.begin(), settings.end(), isNamesake);
    const bool isOnly = only != settings.end() && only->selectors.empty()
        && std::none_of(std::next(only), settings.end(), isNamesake);
    return isOnly ? only : settings.end();
}

void insert(std::vector<FeatureSetting> &settings, const FeatureSetting &change)
{
    const auto isNamesake = [&change](const FeatureSetting &other) { return other.name == change.name; };
    const auto last = std::find_if(settings.rbegin(), settings.rend(), isNamesake);
    settings.insert(last == settings.rend() ? settings.end() : last.base(), change);
}

} // namespace

std::vector<FeatureSetting> mergedSettings(const std::vector<FeatureSetting> &file,
    const std::vector<FeatureSetting> &changes, const FeatureDirectory &directory, LoadReport &report)
{
    std::vector<FeatureSetting> settings = resolved(file, changes, directory);
    report = {};
    report.isApplied = true;
    for (const FeatureSetting &change : changes) {
        FeatureChange done{change, {}, {}, FeatureOutcome::Changed, {}};
        const auto target = findTarget(settings, change);
        if (target != settings.end())
            done.before = target->value;
        if (!fitsFeatureFile(change.value)) {
            done.outcome = FeatureOutcome::Failed;
            done.reason = "A settings file cannot hold this value.";
        } else {
            done.after = change.value;
            if (target != settings.end())
                target->value = change.value;
            else
                insert(settings, change);
        }
        report.changes.push_back(std::move(done));
    }
    return settings;
}
