#pragma once

#include <QString>

/// Returns a tool tip that shows this text as it is: a tool tip that looks like HTML is shown as HTML
/// otherwise. An empty text stays empty.
QString plainToolTip(const QString &text);
