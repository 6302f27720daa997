#pragma once

#include "CvxCPP/Node.h"

#include <QString>

/// Returns the value as people read it, with its unit and as the camera wants it to be shown; "Run" for a
/// command; why there is no value if it cannot be read; an empty text for a category.
QString valueText(const CvxCPP::NodeInfo &info, const CvxCPP::NodeState &state);
