#pragma once

#include "sdk/image/PictureGeometry.h"
#include "tools/kit/measure/ComponentMap.h"

#include <vector>

/// Measures pictures whose components are integers or floating-point numbers of 32 or 64 bits. What is not
/// finite is left out.
class WideMeter
{
public:
    /// @param area Inside the picture; its size may be 0.
    void measure(
        const RawImage &picture, const Region &area, const MeasureRequest &request, Measurements &result);

private:
    struct Total;

    std::vector<double> m_numbers; ///< One line.
};
