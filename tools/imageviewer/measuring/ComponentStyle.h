#pragma once

#include "tools/kit/measure/Measurements.h"

#include <QColor>
#include <QString>

/// Returns the name of a component for people.
QString componentName(MeasuredComponent component);

/// Returns the colour of a component's curve on a dark background.
QColor componentColor(MeasuredComponent component);
