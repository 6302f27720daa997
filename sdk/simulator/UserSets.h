#pragma once

#include "sdk/simulator/RegisterBank.h"

/// Copies the settings that belong to a user set from `set` into `bank`. Everything else keeps its value.
void applyUserSet(RegisterBank &bank, const RegisterBank &set);

/// Copies what a camera keeps without power from `before` into `powerOn`.
void keepOverRestart(RegisterBank &powerOn, const RegisterBank &before);

/// Returns true if all settings that belong to a user set are equal.
bool hasSameSettings(const RegisterBank &left, const RegisterBank &right);
