// Reads the messages between the library and a camera host, in both directions: each line of the input is a
// message.

#include "sdk/protocol/DeviceMessages.h"
#include "tests/fuzz/RoundTrip.h"

#include <sstream>

namespace {

template <typename... Contents>
void requireSameForAll(const Message &message)
{
    (requireSameAfterRoundTrip<Contents>(message), ...);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    std::istringstream lines(textOf(data, size));
    for (std::string line; std::getline(lines, line);) {
        const std::optional<Message> message = Message::fromLine(line);
        if (!message)
            continue;
        requireSameForAll<OpenDeviceRequest, ReadStatesRequest, ReadValueRequest, WriteValueRequest,
            PrepareStreamRequest, StartStreamRequest, StopStreamRequest, CloseDeviceRequest>(*message);
        requireSameForAll<DeviceOpenedReply, RequestFailedReply, NodeStatesReply, NodeValueReply,
            StreamPreparedReply, StreamStartedReply, StreamStoppedReply, DeviceClosedReply,
            NodesChangedNotice, DeviceLostNotice>(*message);
    }
    return 0;
}
