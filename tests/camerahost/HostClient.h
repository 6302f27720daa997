#pragma once

#include "CvxCPP/CvxCPP.h"
#include "sdk/process/HostProcess.h"
#include "sdk/protocol/DeviceMessages.h"
#include "sdk/protocol/Message.h"
#include "sdk/protocol/StreamRing.h"

#include <atomic>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// An image that the host has handed over.
struct ReceivedImage
{
    ImageRecord record;
    std::vector<std::uint8_t> buffer; ///< A copy of the whole buffer.
    std::vector<std::uint8_t>
        picture; ///< The received bytes of the picture; empty if they are not in the buffer.
};

/// Starts a camera host and takes the place of the library. Every wait is bounded. The destructor kills the
/// host.
class HostClient
{
public:
    explicit HostClient(const std::string &ctiPath);
    ~HostClient();
    HostClient(const HostClient &) = delete;
    HostClient &operator=(const HostClient &) = delete;

    /// Sends a request and returns the content of the reply. If the request fails, returns nothing and sets
    /// `failure`.
    template <typename Reply, typename Request>
    std::optional<Reply> ask(const Request &request, const std::vector<int> &descriptors = {})
    {
        const auto reply = exchange(Message(++m_lastId, request), descriptors);
        return reply ? reply->content<Reply>() : std::nullopt;
    }

    bool open(CvxCPP::CvxAccess access = CvxCPP::CvxAccessControl, const std::string &camera = "A1");
    CvxCPP::NodeValue read(const std::string &name); ///< No value if the request fails.
    bool write(const std::string &name, const CvxCPP::NodeValue &value);

    bool prepareStream(std::uint32_t buffers = 4); ///< Stores the answer in `prepared`.
    bool startStream(bool isOnlyNewest = false); ///< After prepareStream().
    bool stopStream() { return ask<StreamStoppedReply>(StopStreamRequest()).has_value(); }
    bool close() { return ask<DeviceClosedReply>(CloseDeviceRequest()).has_value(); }

    /// Waits for the next image and releases its buffer. Returns nothing if none arrives within `timeout`.
    std::optional<ReceivedImage> nextImage(std::chrono::milliseconds timeout = std::chrono::seconds(15));
    StreamRing &ring() { return *m_ring; }

    /// Waits until the host has reported the loss of the camera, and returns the reason.
    std::optional<std::string> waitForLoss();

    /// Ends the connection, as the kernel does if the library is killed. Any thread may call this function.
    void disconnect();
    void kill() { m_process.kill(); }

    /// Waits until the host has ended and returns its status as waitpid() reports it. Returns nothing if the
    /// host does not end.
    std::optional<int> waitForEnd();

    RequestFailedReply failure; ///< Failure of the last request; the text is empty if it has succeeded.
    std::vector<CvxCPP::NodeInfo> nodes; ///< Nodes of the opened camera.
    StreamPreparedReply prepared;
    std::set<std::string> changedNodes; ///< Nodes that the host has reported as changed.

private:
    std::optional<Message> exchange(const Message &request, const std::vector<int> &descriptors);
    std::optional<Message> receive();
    void releaseMemory();

    HostProcess m_process;
    LineChannel m_channel;
    Message::Id m_lastId = Message::noRequest;
    std::optional<std::string> m_loss;
    std::atomic<bool> m_isDisconnected{false};
    StreamRing *m_ring = nullptr;
    const std::uint8_t *m_pixels = nullptr;
    std::size_t m_pixelBytes = 0;
};
