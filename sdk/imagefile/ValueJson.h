#pragma once

#include "CvxCPP/Node.h"

#include <nlohmann/json.hpp>

/// Returns the value as JSON: bytes as hexadecimal digits, and no value as null. NaN and infinities, which
/// JSON lacks, are texts.
nlohmann::ordered_json valueJson(const CvxCPP::NodeValue &value);
