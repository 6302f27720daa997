#pragma once

#include "tools/kit/editors/NumberEditor.h"

#include <QString>
#include <QStringList>
#include <QVector>

/// One feature of the panel.
struct PanelRow
{
    QString label; ///< Translated.
    QStringList names; ///< Names that cameras use for the feature; the first one is the present standard's.
    NumberEditor::SliderUse slider = NumberEditor::SliderUse::Never;
    bool isSelector = false; ///< Only shown if there is a choice, and never alone.
};

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
