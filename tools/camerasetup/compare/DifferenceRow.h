#pragma once

#include "sdk/features/FeatureComparison.h"

#include <QString>

/// One feature of a comparison as a person sees it.
struct DifferenceRow
{
    ComparedFeature feature;
    QString title;
    QString category;
    QString left;
    QString right;
};
