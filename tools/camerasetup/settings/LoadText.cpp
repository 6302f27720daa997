#include "tools/camerasetup/settings/LoadText.h"

#include "sdk/features/SettingLabel.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace {

using State = SettingsLoad::State;

QString translated(const char *text, int count = -1)
{
    return QCoreApplication::translate("LoadText", text, nullptr, count);
}

/// What is said of each outcome, for one setting and for all of them.
struct OutcomeTexts
{
    FeatureOutcome outcome;
    const char *planned;
    const char *done;
    const char *plannedCount;
    const char *doneCount;
};

constexpr OutcomeTexts outcomes[] = {
    {FeatureOutcome::Failed, QT_TRANSLATE_NOOP("LoadText", "Cannot be loaded."),
        QT_TRANSLATE_NOOP("LoadText", "Failed."),
        QT_TRANSLATE_N_NOOP("LoadText", "%n setting(s) cannot be loaded."),
        QT_TRANSLATE_N_NOOP("LoadText", "%n setting(s) failed.")},
    {FeatureOutcome::Changed, QT_TRANSLATE_NOOP("LoadText", "Will change."),
        QT_TRANSLATE_NOOP("LoadText", "Changed."),
        QT_TRANSLATE_N_NOOP("LoadText", "%n setting(s) will change."),
        QT_TRANSLATE_N_NOOP("LoadText", "%n setting(s) changed.")},
    {FeatureOutcome::Overruled, QT_TRANSLATE_NOOP("LoadText", "Overruled by another setting."),
        QT_TRANSLATE_NOOP("LoadText", "Overruled by another setting."),
        QT_TRANSLATE_N_NOOP("LoadText", "%n setting(s) will be overruled by others."),
        QT_TRANSLATE_N_NOOP("LoadText", "%n setting(s) were overruled by others.")},
    {FeatureOutcome::Unchanged, QT_TRANSLATE_NOOP("LoadText", "Already has this value."),
        QT_TRANSLATE_NOOP("LoadText", "Already has this value."),
        QT_TRANSLATE_N_NOOP("LoadText", "%n setting(s) already have the value."),
        QT_TRANSLATE_N_NOOP("LoadText", "%n setting(s) already had the value.")},
};

const OutcomeTexts &textsOf(FeatureOutcome outcome)
{
    for (const OutcomeTexts &texts : outcomes) {
        if (texts.outcome == outcome)
            return texts;
    }
    return outcomes[0];
}

QString countText(const SettingsLoad &load)
{
    const LoadReport &report = load.report();
    QStringList sentences;
    for (const OutcomeTexts &texts : outcomes) {
        const int count = int(report.count(texts.outcome));
        if (count > 0)
            sentences.append(translated(report.isApplied ? texts.doneCount : texts.plannedCount, count));
    }
    const int skipped = int(load.file().problems.size());
    if (skipped > 0)
        sentences.append(translated(QT_TRANSLATE_N_NOOP("LoadText", "%n line(s) cannot be read."), skipped));
    return sentences.join(QLatin1Char(' '));
}

/// Returns what has become of a load that has ended.
QString resultText(const LoadReport &report)
{
    if (report.isRestored && report.isCancelled)
        return translated(QT_TRANSLATE_NOOP(
            "LoadText", "The load was cancelled, and the settings from before were put back."));
    if (report.isRestored)
        return translated(QT_TRANSLATE_NOOP(
            "LoadText", "The load has failed, and the settings from before were put back."));
    if (report.isApplied && report.isCancelled)
        return translated(
            QT_TRANSLATE_NOOP("LoadText", "The load was cancelled. What was loaded before stays."));
    if (report.isCancelled)
        return translated(QT_TRANSLATE_NOOP("LoadText", "The load was cancelled. Nothing was changed."));
    if (!report.isApplied)
        return translated(
            QT_TRANSLATE_NOOP("LoadText", "Nothing was changed, because not everything can be loaded."));
    if (report.count(FeatureOutcome::Failed) > 0)
        return translated(QT_TRANSLATE_NOOP("LoadText", "Not everything could be loaded."));
    return translated(QT_TRANSLATE_NOOP("LoadText", "The settings were loaded and read back."));
}

QString undoneText(const LoadReport &report)
{
    return report.notes.empty()
        ? translated(QT_TRANSLATE_NOOP("LoadText", "All settings from before the load were put back."))
        : translated(
            QT_TRANSLATE_NOOP("LoadText", "Not all settings from before the load could be put back."));
}

bool isPutBack(const FeatureChange &change, const LoadReport &report)
{
    const std::string label = settingLabel(change.setting.name, change.setting.selectors);
    return std::none_of(report.notes.begin(), report.notes.end(),
        [&label](const FeatureNote &note) { return note.name == label; });
}

} // namespace

QString outcomeText(const FeatureChange &change, const LoadReport &report)
{
    if (report.isRestored && change.outcome == FeatureOutcome::Changed)
        return isPutBack(change, report) ? translated(QT_TRANSLATE_NOOP("LoadText", "Put back."))
                                         : translated(QT_TRANSLATE_NOOP("LoadText", "Not put back."));
    const OutcomeTexts &texts = textsOf(change.outcome);
    const QString text = translated(report.isApplied ? texts.done : texts.planned);
    return change.reason.empty() ? text : text + QLatin1Char(' ') + QString::fromStdString(change.reason);
}

QString summaryText(const SettingsLoad &load)
{
    const LoadReport &report = load.report();
    const QString counts = countText(load);
    switch (load.state()) {
    case State::Planning:
        return translated(QT_TRANSLATE_NOOP("LoadText", "The settings are being compared with the camera."));
    case State::Loading:
        return translated(QT_TRANSLATE_NOOP("LoadText", "The settings are being loaded and read back."));
    case State::Undoing:
        return translated(
            QT_TRANSLATE_NOOP("LoadText", "The settings from before the load are being put back."));
    case State::Planned:
        if (!report.changes.empty() && report.count(FeatureOutcome::Unchanged) == report.changes.size())
            return translated(QT_TRANSLATE_NOOP("LoadText", "Nothing would change.")) + QLatin1Char(' ')
                + counts;
        return counts.isEmpty() ? translated(QT_TRANSLATE_NOOP("LoadText", "There are no settings to load."))
                                : counts;
    case State::Loaded:
        return resultText(report) + QLatin1Char(' ') + counts;
    case State::Undone:
        return undoneText(report);
    case State::Failed:
        return load.error();
    }
    return {};
}
