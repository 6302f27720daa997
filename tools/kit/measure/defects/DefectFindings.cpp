#include "tools/kit/measure/defects/DefectFindings.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr float deadReaction = 0.2F; // A pixel with less than this share of the usual reaction is dead.
}

double largestDeviation(const DefectCandidate &candidate)
{
    return std::max({std::abs(candidate.dark), std::abs(candidate.bright), candidate.blinking});
}

std::optional<DefectKind> defectKind(const DefectCandidate &candidate, double threshold)
{
    if (largestDeviation(candidate) < threshold)
        return {};
    if (candidate.isConstant)
        return DefectKind::Stuck;
    if (candidate.blinking >= threshold)
        return DefectKind::Blinking;
    if (candidate.dark >= threshold)
        return DefectKind::Hot;
    return candidate.bright <= -threshold && candidate.reaction < deadReaction ? DefectKind::Dead
                                                                               : DefectKind::Deviating;
}

DefectMap defectMap(const DefectFindings &findings, double threshold)
{
    DefectMap map;
    map.width = findings.width;
    map.height = findings.height;
    for (const DefectCandidate &candidate : findings.candidates) {
        if (const std::optional<DefectKind> kind = defectKind(candidate, threshold))
            map.pixels.push_back({candidate.x, candidate.y, *kind, largestDeviation(candidate)});
    }
    return map;
}
