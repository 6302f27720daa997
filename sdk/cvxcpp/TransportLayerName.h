#pragma once

#include "CvxCPP/CvxCPP.h"

#include <string_view>

/// The technology behind a GenTL transport layer type such as "GEV". Long forms ("GigE Vision") count too,
/// without regard to case; anything else is unknown.
CvxCPP::CvxTransportLayerType transportLayerType(std::string_view name);
