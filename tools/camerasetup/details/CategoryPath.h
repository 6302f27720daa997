#pragma once

#include "CvxCPP/Node.h"

#include <QString>

class FeatureClient;

/// Returns the display names of the categories around the feature, the outermost first. The category that
/// contains everything is left out.
QString categoryPath(const FeatureClient &client, const CvxCPP::NodeInfo &info);
