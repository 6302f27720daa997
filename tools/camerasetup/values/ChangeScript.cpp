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

QString selectorAssignments(const FeatureEdit &edit, const ScriptCamera &camera)
{
    QString text;
    for (const SelectorSetting &selector : edit.selectors) {
        if (camera.fixedSelectors.count(selector.name) == 0)
            text += assignment(selector.name, selector.value);
    }
    return text;
}

QString setCommand(const QString &assignments)
{
    return assignments.isEmpty() ? QString()
                                 : QStringLiteral("cvxctl set \"$camera\"") + assignments + QLatin1Char('\n');
}

QString commandsOf(const HistoryEntry &entry, const ScriptCamera &camera)
{
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
    for (const HistoryEntry &entry : entries) {
        if (isRepeated(entry))
            script += QLatin1Char('\n')
                + comment(entry.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss ")) + entry.title)
                + commandsOf(entry, camera);
    }
    return script;
}
