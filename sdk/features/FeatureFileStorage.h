#pragma once

#include "sdk/features/FeatureFile.h"

#include <string>

/// Reads and parses a settings file. Returns a sentence for people, which names the file, if there is no such
/// file or it is no settings file.
std::variant<FeatureFile, std::string> readFeatureFile(const std::string &path);

/// Writes the text of a settings file under a temporary name and then renames it, so that an existing file
/// is replaced as a whole or not at all. Returns a sentence for people, or an empty text on success.
std::string writeFeatureFile(const std::string &path, const std::string &text);
