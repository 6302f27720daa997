#pragma once

#include "sdk/image/ImageConverter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

/// Maps the values of a picture to brightness: `black` and below become black, `white` and above white, both
/// as shares of the format's range; between them, brightness = position^(1 / gamma).
struct ContrastCurve
{
    double black = 0;
    double white = 1; ///< Greater than `black`.
    double gamma = 1; ///< Greater than 0.

    bool isNeutral() const { return black == 0 && white == 1 && gamma == 1; }

    /// Returns the brightness of a value, both as shares from 0 to 1.
    double brightness(double share) const
    {
        const double position = (share - black) / (white - black);
        return std::pow(std::clamp(position, 0.0, 1.0), 1 / gamma);
    }
};

/// How pictures are shown. Nothing of this changes what the camera sends or what is saved.
struct DisplaySettings
{
    Demosaicing demosaicing = Demosaicing::Bilinear;
    ContrastCurve curve;
    /// White balance: factors of red, green and blue. Grey formats have none.
    std::array<double, 3> gains = {1, 1, 1};
    bool hasClipMarks = false; ///< Overexposed pixels are red, underexposed ones blue.
    /// Defect pixels, offset and gain are corrected in pictures that it fits; null: in none. Clip marks and
    /// the values that are written into enlarged pixels stay those of the camera.
    std::shared_ptr<const Correction> correction = nullptr;
};
