#pragma once

#include "tools/kit/editors/FeatureRow.h"

#include <QString>
#include <QVector>

using PanelRow = FeatureRowContent;

/// Features that belong together.
struct PanelGroup
{
    QString key; ///< For the settings.
    QString title; ///< Translated.
    QVector<PanelRow> rows;
    bool isOpenAtFirst = false;
};

/// Returns what the panel shows of cameras that have it.
QVector<PanelGroup> panelGroups();

QString regionGroupKey(); ///< The key of the group that gets the buttons for drawing.
QString userSetSelectorName();
QString userSetSaveName(); ///< The command that overwrites something, so the panel asks first.
