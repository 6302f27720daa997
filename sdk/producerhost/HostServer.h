#pragma once

#include "sdk/producerhost/ProducerModule.h"
#include "sdk/protocol/DiscoveryMessages.h"
#include "sdk/protocol/LineChannel.h"
#include "sdk/protocol/Message.h"

#include <string>

/// Serves the library's requests for one producer, one at a time, until the library closes the producer or
/// the connection, or the producer cannot be used.
class HostServer
{
public:
    /// Takes over the descriptor of the socket to the library.
    explicit HostServer(int socket);

    /// Returns the status to exit with.
    int run(const char *producerPath);

private:
    /// Calls the handler of the request in this line and sends its reply. Returns false if the host must end.
    bool serve(const std::string &line);

    template <typename Request>
    bool isServed(const Message &message);

    // One handler for each request.
    void handle(const ListCamerasRequest &request);
    void handle(const ListInterfaceRequest &request);
    void handle(const CloseProducerRequest &request);

    template <typename Content>
    void reply(const Content &content);
    void fail(const Problem &problem);

    LineChannel m_channel;
    LineChannel::Status m_connection = LineChannel::Status::Line; // Result of the last read or write.
    ProducerModule m_producer;
    Message::Id m_request = Message::noRequest; // The request that is being handled.
    bool m_isFinished = false; // The last reply has been sent.
};
