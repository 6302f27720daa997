#pragma once

#include "tools/camerasetup/values/HistoryEntry.h"

#include <QVector>

#include <set>
#include <string>

/// For which camera a script is written.
struct ScriptCamera
{
    QString id; ///< The camera if the script has no argument.
    QString name; ///< For people.
    std::set<std::string> fixedSelectors; ///< Cannot be written, because they have only one value.
};

/// Returns a shell script that makes the changes of the entries again with cvxctl, in their order. Changes
/// that are undone are left out, and so are undo and redo themselves. The camera is the first argument of
/// the script.
QString changeScript(const QVector<HistoryEntry> &entries, const ScriptCamera &camera);
