#pragma once

#include "sdk/producerhost/LineSocket.h"
#include "sdk/producerhost/ProducerModule.h"

#include <string>

/// Serves the requests for one producer until it is told to end, the other end is closed, or the producer
/// turns out to be of no use. One request at a time.
class HostServer
{
public:
    explicit HostServer(int descriptor);

    /// Gives the status to exit with.
    int run(const char *producerPath);

private:
    /// False ends the service.
    bool serve(const std::string &request);
    bool serveList(bool withInterfaces);
    bool answerError(const Problem &problem);

    LineSocket m_socket;
    ProducerModule m_producer;
};
