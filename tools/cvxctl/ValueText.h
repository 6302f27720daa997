#pragma once

#include "CvxCPP/Node.h"
#include "sdk/imagefile/ValueJson.h"

#include <nlohmann/json.hpp>
#include <string>

/// Returns the value as a person reads it: integers as the camera wants them to be shown, for example "0x1F"
/// or "192.168.1.2". A node without a value gives an empty text.
std::string valueText(const CvxCPP::NodeValue &value, CvxCPP::NodeRepresentation representation);

/// Returns the node with its state as JSON.
nlohmann::ordered_json nodeJson(const CvxCPP::NodeInfo &info, const CvxCPP::NodeState &state);

const char *typeText(CvxCPP::NodeType type);
const char *accessText(CvxCPP::NodeAccess access); ///< For example "RW".

/// Returns why the node cannot be written, for people; empty if it can.
std::string lockText(const CvxCPP::NodeState &state);
