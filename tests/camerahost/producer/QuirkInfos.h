#pragma once

#include "tests/camerahost/producer/QuirkCall.h"

// These functions return what a producer without quirks would return for an info command.

Info interfaceInfo(GenTL::INTERFACE_INFO_CMD command);
Info deviceInfo(const std::string &id, GenTL::DEVICE_INFO_CMD command);
Info portInfo(GenTL::PORT_INFO_CMD command);
Info streamInfo(const Stream &stream, GenTL::STREAM_INFO_CMD command);
Info bufferInfo(const Buffer &buffer, GenTL::BUFFER_INFO_CMD command);
Info partInfo(const Buffer &buffer, std::uint32_t index, GenTL::BUFFER_PART_INFO_CMD command);
