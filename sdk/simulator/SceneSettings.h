#pragma once

#include "sdk/simulator/RegisterBank.h"
#include "sdk/simulator/RenderSettings.h"

/// Returns how pictures look with these settings, except for the effects of the temperature.
RenderSettings sceneSettings(const RegisterBank &bank);

/// Returns the gain for all taps in decibels.
double gainDecibels(const RegisterBank &bank);
