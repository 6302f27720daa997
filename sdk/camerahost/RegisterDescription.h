#pragma once

#include "sdk/camerahost/DeviceLibrary.h"
#include "sdk/protocol/DeviceMessages.h"

#include <chrono>
#include <string>
#include <variant>

/// Fetches the register description of a port: tries all its URLs, reads the document, unzips it if it is a
/// zip archive, and removes what does not belong to the XML. Returns the XML, or a failure whose text says
/// why no URL works. Gives up after `timeout`, plus the duration of one call of the producer.
/// @param producerFile The path of the .cti file, whose folder is searched for files that a URL names.
std::variant<std::string, RequestFailedReply> fetchRegisterDescription(const DeviceLibrary &library,
    GenTL::PORT_HANDLE port, const std::string &producerFile,
    std::chrono::milliseconds timeout = std::chrono::seconds(7));
