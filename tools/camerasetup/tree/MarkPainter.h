#pragma once

#include "tools/camerasetup/tree/FeatureTreeModel.h"

class QPainter;
class QRect;

/// Returns the width that the marks need at the right end of a row.
int marksWidth(FeatureTreeModel::Marks marks);

/// Paints a dot for a changed feature, a star for a favourite and a padlock for a locked feature.
void paintMarks(QPainter &painter, const QRect &row, FeatureTreeModel::Marks marks);
