#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/kit/measure/taps/TapBalancing.h"

#include <optional>
#include <string>

/// Everything that is known of a camera's taps.
struct TapResult
{
    TapLayout layout;
    std::optional<TapMeasurement> bright; ///< The newest one.
    std::optional<TapMeasurement> dark;
    std::optional<TapBalance> gain; ///< If the gains were balanced.
    std::optional<TapBalance> blackLevel;

    /// Takes over what balancing has done.
    void add(const TapBalance &balance);

    /// The dark level that bright measurements subtract; 0 if it is unknown.
    double darkLevel() const;
};

/// Returns the name of the layout, for example "2X2_1Y".
std::string layoutName(const TapLayout &layout);

/// Returns the result with the camera and the date, for a file.
nlohmann::ordered_json tapDocument(const CameraRecord &camera, const TapResult &result);

/// Writes the table of the taps. Returns why that failed; empty if it succeeded.
std::string writeTapTable(const std::string &path, const TapResult &result);
