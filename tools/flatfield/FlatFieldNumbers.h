#pragma once

#include "tools/kit/measure/flatfield/FlatFieldResult.h"

#include <QStringList>
#include <QVector>

/// The numbers of a result as texts in the language of the person, for the panel and the report.

/// Returns the titles of the columns of flatFieldRows().
QStringList flatFieldHeader();

/// Returns what was measured, before, and after.
QVector<QStringList> flatFieldRows(const FlatFieldResult &result);

/// Returns a sentence that says whether the camera needs the correction.
QString flatFieldVerdict(const FlatFieldResult &result);

/// Returns sentences on the images and the gains.
QString flatFieldSummary(const FlatFieldResult &result);
