#pragma once

#include "sdk/producer/InfoOutput.h"
#include "sdk/producer/Port.h"

// Each function writes the value of one command to a complete output. It returns GC_ERR_SUCCESS,
// GC_ERR_BUFFER_TOO_SMALL, GC_ERR_NOT_IMPLEMENTED for an unknown command, or GC_ERR_NOT_AVAILABLE for a value
// that is not known.

GenTL::GC_ERROR writePortInfo(
    const PortDescription &port, GenTL::PORT_INFO_CMD command, const InfoOutput &output);
GenTL::GC_ERROR writeUrlInfo(const PortUrl &url, GenTL::URL_INFO_CMD command, const InfoOutput &output);
