#pragma once

#include "CvxCPP/Node.h"

class FeatureClient;
class FeatureEditor;
class QWidget;

/// Returns the editor for a feature of this type; null for a category.
FeatureEditor *createFeatureEditor(
    const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent = nullptr);
