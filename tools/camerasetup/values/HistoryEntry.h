#pragma once

#include "tools/camerasetup/values/FeatureEdit.h"

#include <QDateTime>
#include <QString>

#include <vector>

/// One step of the history.
struct HistoryEntry
{
    enum class Kind
    {
        Edit, ///< A person has changed one feature.
        Command, ///< A command was executed; cannot be undone.
        Load, ///< Several features were changed at once: a file, a user set, a copy of differences.
        Undo,
        Redo
    };

    QDateTime time;
    Kind kind = Kind::Edit;
    QString title; ///< For people, for example "Gain [GainSelector=All]" or "Load settings.txt".
    std::vector<FeatureEdit> edits;
    bool isUndone = false; ///< True while the changes are taken back.
};
