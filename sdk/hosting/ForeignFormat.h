#pragma once

#include <optional>
#include <string>

/// Returns why this computer cannot load a library that is valid elsewhere: it is for another operating
/// system or for another processor architecture. Returns nothing if the file is neither. The texts of
/// dlerror() are misleading in these cases: they say that the file has an invalid header or does not exist.
std::optional<std::string> foreignFormat(const char *path);
