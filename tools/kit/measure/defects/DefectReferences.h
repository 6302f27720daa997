#pragma once

#include "tools/kit/measure/defects/DefectFindings.h"
#include "tools/kit/measure/defects/PixelStatistics.h"
#include "tools/kit/measure/run/Sentence.h"

// Each function returns why images cannot serve for a search for defects, and what to do; empty if they can.

/// Light reaches the sensor, or the black level is so low that the noise is cut off.
Sentence darkProblem(const PixelStatistics &dark);

/// The images are too dark or too bright, the light changes, something moves, or the surface has a structure.
Sentence brightProblem(const PixelStatistics &dark, const PixelStatistics &bright);

/// So many pixels deviate that the surface must have had a fine structure.
Sentence findingsProblem(const DefectFindings &findings);
