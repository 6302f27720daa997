#include "sdk/device/StreamStart.h"

#include <string>

using namespace CvxCPP;

namespace {

using Result = std::variant<std::shared_ptr<const ImageQueue>, RequestFailedReply, Breakdown>;

Result startPrepared(
    HostChannel &host, const StreamPreparedReply &prepared, StreamPolicy policy, TimePoint deadline)
{
    const auto memory = StreamMemory::create(prepared.buffers, prepared.bufferSize);
    if (!memory)
        return RequestFailedReply{DeviceFailure::NoMemory,
            "The stream cannot be started: there is not enough memory for " + std::to_string(prepared.buffers)
                + " buffers of " + std::to_string(prepared.bufferSize) + " bytes."};
    const bool onlyNewest = policy == StreamPolicy::NewestImage;
    const auto answer
        = host.ask<StreamStartedReply>(StartStreamRequest{prepared.buffers, prepared.bufferSize, onlyNewest},
            deadline, memory->descriptors());
    memory->closeDescriptors();
    if (const auto *breakdown = std::get_if<Breakdown>(&answer))
        return *breakdown;
    if (const auto *failed = std::get_if<RequestFailedReply>(&answer))
        return *failed;
    return std::make_shared<const ImageQueue>(
        memory, std::make_shared<const ChunkDecoder>(prepared.chunkFeatures), policy);
}

Result startOnce(HostChannel &host, std::uint32_t buffers, StreamPolicy policy, TimePoint deadline)
{
    const auto answer = host.ask<StreamPreparedReply>(PrepareStreamRequest{buffers}, deadline);
    if (const auto *breakdown = std::get_if<Breakdown>(&answer))
        return *breakdown;
    if (const auto *failed = std::get_if<RequestFailedReply>(&answer))
        return *failed;
    Result result = startPrepared(host, std::get<StreamPreparedReply>(answer), policy, deadline);
    if (!std::holds_alternative<RequestFailedReply>(result))
        return result;
    const auto undone = host.ask<StreamStoppedReply>(StopStreamRequest(), deadline);
    if (const auto *breakdown = std::get_if<Breakdown>(&undone))
        return *breakdown;
    return result;
}

} // namespace

Result startStream(
    HostChannel &host, CvxAccess access, std::uint32_t buffers, StreamPolicy policy, TimePoint deadline)
{
    Result result = startOnce(host, buffers, policy, deadline);
    const auto *const failed = std::get_if<RequestFailedReply>(&result);
    const bool isDeviceFailure = failed && failed->failure == DeviceFailure::Device;
    if (access != CvxAccessWatch || !isDeviceFailure)
        return result;
    return startOnce(host, buffers, policy, deadline);
}
