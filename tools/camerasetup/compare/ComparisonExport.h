#pragma once

#include "tools/camerasetup/compare/SettingTexts.h"

#include <QDateTime>
#include <QString>
#include <QVector>

/// A comparison as it is handed on: only what is shown, as texts for people.
struct ComparisonReport
{
    struct Side
    {
        QString title;
        QDateTime time;
    };

    struct Row
    {
        QString category; ///< Rows of one category follow each other.
        QString feature;
        QString name; ///< For programs, with the selectors.
        QString left; ///< Empty if the left side lacks the feature.
        QString right;
        FeatureDifference difference = FeatureDifference::Equal;
        bool isIgnorable = false;
    };

    Side left;
    Side right;
    QString summary;
    QVector<Row> rows;
};

/// Returns the report as plain text with columns.
QString comparisonText(const ComparisonReport &report);

/// Returns the report as a complete page, which needs no other file and can be printed.
QString comparisonPage(const ComparisonReport &report);
