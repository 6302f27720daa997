#pragma once

#include "sdk/hosting/ProducerLibrary.h"
#include "sdk/protocol/DiscoveryMessages.h"

/// Asks a producer for its vendor and version, and looks up the functions that a stream needs. Never fails: a
/// field that the producer does not report is empty.
ProducerInfoReply readProducerInfo(const ProducerLibrary &library);
