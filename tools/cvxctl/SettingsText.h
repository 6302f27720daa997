#pragma once

#include "sdk/features/DeviceCalls.h"
#include "tools/cvxctl/CameraSession.h"

#include <nlohmann/json.hpp>

/// Returns what settingLabel() returns, without control characters.
std::string printableLabel(const std::string &name, const std::vector<SelectorSetting> &selectors);

/// Returns the values of selectors as a JSON object.
nlohmann::ordered_json selectorsJson(const std::vector<SelectorSetting> &selectors);

/// Prints each note as an error message.
void printNotes(const std::vector<FeatureNote> &notes);

/// Reads a settings file. Prints an error on failure, and a message for each line that cannot be read.
ExitStatus readSettings(const std::string &path, FeatureFile &file);

/// Lets Ctrl-C cancel the work.
bool continueUnlessInterrupted(std::size_t done, std::size_t total);
