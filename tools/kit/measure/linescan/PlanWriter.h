#pragma once

#include "tools/kit/measure/linescan/LineRatePlan.h"

/// Writes the settings of a plan in their order. If the camera refuses one of them, the others are put back.
/// Returns what was refused and why; empty if everything was written. Blocks for some calls of the device.
/// The selectors are as before in any case.
Sentence writeSettings(CvxCPP::Device &device, const std::vector<PlannedSetting> &settings);

/// Does the same as temporary changes, which are kept if everything was written: the camera's process puts
/// back what was written if the program crashes meanwhile.
Sentence writeSettingsSafely(CvxCPP::Device &device, const std::vector<PlannedSetting> &settings);

/// Returns the settings that undo the written ones.
std::vector<PlannedSetting> undoOf(const std::vector<PlannedSetting> &settings);

/// Writes the settings of the plan. Where the camera cannot reach the line rate although its settings seemed
/// to allow that, the sentence names the limit.
Sentence applyPlan(CvxCPP::Device &device, const LineRatePlan &plan);
