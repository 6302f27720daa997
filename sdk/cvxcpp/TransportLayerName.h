#pragma once

#include "CvxCPP/CvxCPP.h"

#include <string_view>

/// Returns the technology of a GenTL transport layer type such as "GEV". Accepts long forms ("GigE Vision")
/// and any letter case. Returns CvxTransportLayerUnknown for an unknown type.
CvxCPP::CvxTransportLayerType transportLayerType(std::string_view name);
