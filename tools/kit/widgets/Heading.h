#pragma once

#include <QString>

class QLabel;

/// Returns a title for a part of a panel, which the style sheet knows by its property "role".
QLabel *createHeading(const QString &text);
