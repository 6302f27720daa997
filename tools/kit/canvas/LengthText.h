#pragma once

#include <QCoreApplication>
#include <QSize>
#include <QString>

/// Writes lengths for people: in pixels, and in micrometres or millimetres if the scale is known.
class LengthText
{
    Q_DECLARE_TR_FUNCTIONS(LengthText)

public:
    /// @param micrometresPerPixel 0 if unknown.
    static QString length(double pixels, double micrometresPerPixel);
    static QString size(const QSize &pixels, double micrometresPerPixel);

    /// Returns a length without its pixels.
    static QString metric(double micrometres);
};
