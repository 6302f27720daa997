#pragma once

#include "sdk/image/DefectMap.h"

#include <QColor>

/// Returns the colour of the marks of a kind.
QColor defectColor(DefectKind kind);
