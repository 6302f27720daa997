#include "tools/camerasetup/values/ChangeScript.h"

#include <algorithm>

namespace {

/// Returns the text as one word of a shell.
QString quoted(const QString &text)
{
    return QLatin1Char('\'') + QString(text).replace(QLatin1Char('\''), QStringLiteral("'\\''"))
        + QLatin1Char('\'');
}

/// Returns the text as a comment, which must not end before the text does.
QString comment(const QString &text)
{
    QString line = text;
    const auto isControl = [](QChar character) { return character.category() == QChar::Other_Control; };
    std::replace_if(line.begin(), line.end(), isControl, QLatin1Char(' '));
    return QStringLiteral("# ") + line + QLatin1Char('\n');
}

QString assignment(const std::string &name, const std::string &value)
{
    return QLatin1Char(' ') + quoted(QString::fromStdString(name + '=' + value));
}

std::vector<SelectorSetting> writableSelectors(const FeatureEdit &edit, const ScriptCamera &camera)
{
    std::vector<SelectorSetting> selectors;
    for (const SelectorSetting &selector : edit.selectors) {
        if (camera.fixedSelectors.count(selector.name) == 0)
            selectors.push_back(selector);
    }
    return selectors;
}

QString selectorAssignments(const FeatureEdit &edit, const ScriptCamera &camera)
{
    QString text;
    for (const SelectorSetting &selector : writableSelectors(edit, camera))
        text += assignment(selector.name, selector.value);
    return text;
}

QString setCommand(const QString &assignments)
{
    return assignments.isEmpty() ? QString()
                                 : QStringLiteral("cvxctl set \"$camera\"") + assignments + QLatin1Char('\n');
}

bool fitsFile(const FeatureEdit &edit)
{
    const auto fits = [](const SelectorSetting &selector) { return fitsFeatureFile(selector.value); };
    return fitsFeatureFile(edit.after) && std::all_of(edit.selectors.begin(), edit.selectors.end(), fits);
}

/// Returns the commands that load the edits as a file: a single pass in the order of the edits could fail,
/// because the limits of one feature depend on the others.
QString loadCommands(const std::vector<FeatureEdit> &edits, const ScriptCamera &camera)
{
    std::vector<FeatureSetting> settings;
    QString others; // What a file cannot hold, for example an empty text.
    for (const FeatureEdit &edit : edits) {
        if (fitsFile(edit))
            settings.push_back({writableSelectors(edit, camera), edit.name, edit.after, 0});
        else
            others += setCommand(selectorAssignments(edit, camera) + assignment(edit.name, edit.after));
    }
    if (settings.empty())
        return others;
    // No line of a settings file consists of one word.
    const std::string file = formatFeatureFile(settings, camera.name.toStdString());
    return QStringLiteral("cat >\"$settings\" <<'END_OF_SETTINGS'\n") + QString::fromStdString(file)
        + QStringLiteral("END_OF_SETTINGS\ncvxctl load \"$camera\" \"$settings\"\n") + others;
}

QString commandsOf(const HistoryEntry &entry, const ScriptCamera &camera)
{
    if (entry.kind == HistoryEntry::Kind::Load)
        return loadCommands(entry.edits, camera);
    QString text;
    for (const FeatureEdit &edit : entry.edits) {
        const QString selectors = selectorAssignments(edit, camera);
        if (entry.kind == HistoryEntry::Kind::Command)
            text += setCommand(selectors) + QStringLiteral("cvxctl run \"$camera\" ")
                + quoted(QString::fromStdString(edit.name)) + QLatin1Char('\n');
        else
            text += setCommand(selectors + assignment(edit.name, edit.after));
    }
    return text;
}

bool isRepeated(const HistoryEntry &entry)
{
    return !entry.isUndone && entry.kind != HistoryEntry::Kind::Undo
        && entry.kind != HistoryEntry::Kind::Redo;
}

} // namespace

QString changeScript(const QVector<HistoryEntry> &entries, const ScriptCamera &camera)
{
    QString script = QStringLiteral("#!/bin/sh\n") + comment(camera.name)
        + QStringLiteral("set -eu\ncamera=%1\n[ \"$#\" -eq 0 ] || camera=$1\n").arg(quoted(camera.id));
    const auto isLoad = [](const HistoryEntry &entry) {
        return entry.kind == HistoryEntry::Kind::Load && isRepeated(entry);
    };
    if (std::any_of(entries.begin(), entries.end(), isLoad))
        script += QStringLiteral("settings=$(mktemp)\n"
                                 "trap 'rm -f \"$settings\"' EXIT\n"
                                 "trap 'exit 1' HUP INT TERM\n");
    for (const HistoryEntry &entry : entries) {
        if (isRepeated(entry))
            script += QLatin1Char('\n')
                + comment(entry.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss ")) + entry.title)
                + commandsOf(entry, camera);
    }
    return script;
}
