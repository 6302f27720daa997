#pragma once

#include "CvxCPP/Node.h"

#include <QString>

#include <string>

/// Returns a value of a settings file as a person reads it: numbers in the present locale with their unit,
/// entries with their display names. `node` may be null; then the text is returned as it is.
QString displayValue(const CvxCPP::NodeInfo *node, const std::string &setting);
