#pragma once

#include "sdk/camerahost/OpenedCamera.h"
#include "sdk/camerahost/SocketWatch.h"
#include "sdk/protocol/LineChannel.h"
#include "sdk/protocol/Message.h"

#include <chrono>
#include <string>

/// Serves the library's requests for one camera, one at a time, until the library closes the camera or the
/// connection. Meanwhile, reports a camera that is lost.
class CameraHostServer
{
public:
    /// Takes over the descriptor of the socket to the library.
    CameraHostServer(int socket, std::string producerFile);

    /// Serves requests. Returns the exit status of the process, which must end afterwards.
    int run();

private:
    using Clock = std::chrono::steady_clock;

    /// Blocks until the next request has arrived or the connection ends.
    LineChannel::Status waitForRequest(std::string &line);
    void watchCamera();
    void reportLoss(const std::string &reason);

    /// Calls the handler of the request in this line. Ends the service if the line is not a valid request.
    void serve(const std::string &line);

    /// Calls the handler and returns true if the message is a `Request`.
    template <typename Request>
    bool tryServe(const Message &message);

    // Each of these functions handles one kind of request and sends the reply.
    void handle(const OpenDeviceRequest &request);
    void handle(const ReadStatesRequest &request);
    void handle(const ReadValueRequest &request);
    void handle(const WriteValueRequest &request);
    void handle(const BeginTemporaryChangesRequest &request);
    void handle(const EndTemporaryChangesRequest &request);
    void handle(const PrepareStreamRequest &request);
    void handle(const StartStreamRequest &request);
    void handle(const StopStreamRequest &request);
    void handle(const CloseDeviceRequest &request);

    template <typename Content>
    void reply(const Content &content);
    void fail(const RequestFailedReply &failure);
    void notifyChanged(const std::string &node);
    template <typename Content>
    void notify(const Content &content);
    void endIfStuck();

    LineChannel m_channel;
    LineChannel::Status m_connection = LineChannel::Status::Line; // Status of the last read or write.
    const std::string m_producerFile;
    OpenedCamera m_camera;
    SocketWatch m_watch;
    Clock::time_point m_nextTick;
    bool m_isLost = false; // A DeviceLostNotice was sent.
    Message::Id m_request = Message::noRequest; // ID of the request that is being handled.
    bool m_isFinished = false; // If true, no further request is served.
};
