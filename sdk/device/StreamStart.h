#pragma once

#include "CvxCPP/Device.h"
#include "sdk/device/HostChannel.h"
#include "sdk/device/ImageQueue.h"

#include <cstdint>
#include <memory>
#include <variant>

/// Makes a host stream: asks for the size of the buffers, creates their memory, and starts the camera. If
/// that fails, undoes what was done. A watcher tries twice, because the program that controls the camera
/// may change the format of the images between the request for the size and the start.
std::variant<std::shared_ptr<const ImageQueue>, RequestFailedReply, Breakdown> startStream(HostChannel &host,
    CvxCPP::CvxAccess access, std::uint32_t buffers, CvxCPP::StreamPolicy policy, TimePoint deadline);
