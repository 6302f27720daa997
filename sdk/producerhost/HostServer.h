#pragma once

#include "sdk/producerhost/ListChangeWatch.h"
#include "sdk/producerhost/LoadedProducer.h"
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

    /// Opens the producer and serves requests. Returns the exit status of the process.
    int run(const char *producerPath);

private:
    /// Blocks until the next request has arrived or the connection ends. Meanwhile, reports a change of the
    /// producer's lists.
    LineChannel::Status waitForRequest(std::string &line);
    void reportListChange();

    /// Calls the handler of the request in this line. Ends the service if the line is not a valid request.
    void serve(const std::string &line);

    /// Calls the handler and returns true if the message is a `Request`.
    template <typename Request>
    bool tryServe(const Message &message);

    // Each of these functions handles one kind of request and sends the reply.
    void handle(const ListCamerasRequest &request);
    void handle(const ListInterfaceRequest &request);
    void handle(const ProducerInfoRequest &request);
    void handle(const CloseProducerRequest &request);

    template <typename Content>
    void reply(const Content &content);
    void fail(const Problem &problem);

    LineChannel m_channel;
    LineChannel::Status m_connection = LineChannel::Status::Line; // Status of the last read or write.
    LoadedProducer m_producer;
    ListChangeWatch m_listChanges;
    bool m_isChangeReported = false; // If true, the next ListCamerasRequest collects all further changes.
    Message::Id m_request = Message::noRequest; // ID of the request that is being handled.
    bool m_isFinished = false; // If true, no further request is served.
};
