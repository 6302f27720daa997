#include "sdk/producerhost/HostServer.h"

#include "sdk/protocol/HostContract.h"

#include <cstdlib>

HostServer::HostServer(int socket) : m_channel(socket) { }

int HostServer::run(const char *producerPath)
{
    if (const auto problem = m_producer.open(producerPath))
        fail(*problem);
    std::string line;
    while (!m_isFinished && (m_connection = m_channel.waitForLine(line)) == LineChannel::Status::Line)
        serve(line);
    m_producer.close();
    return m_connection == LineChannel::Status::Lost ? connectionLostStatus : EXIT_SUCCESS;
}

void HostServer::serve(const std::string &line)
{
    const auto message = Message::fromLine(line);
    const bool isServed = message
        && (tryServe<ListCamerasRequest>(*message) || tryServe<ListInterfaceRequest>(*message)
            || tryServe<CloseProducerRequest>(*message));
    if (!isServed) // This does not happen, because library and host are installed together.
        m_isFinished = true;
}

template <typename Request>
bool HostServer::tryServe(const Message &message)
{
    const auto request = message.content<Request>();
    if (!request)
        return false;
    m_request = message.id();
    handle(*request);
    return true;
}

void HostServer::handle(const ListCamerasRequest &request)
{
    if (request.updatesInterfaces || m_producer.needsInterfaceUpdate()) {
        if (const auto problem = m_producer.updateInterfaces())
            return fail(*problem);
    }
    m_producer.searchAll();
    CameraListReply cameras;
    ProblemList problems = m_producer.problems();
    for (const auto &interface : m_producer.interfaces()) {
        cameras.interfaces.push_back(interface->record());
        problems.add(interface->problems());
    }
    cameras.problems = problems.all();
    reply(cameras);
}

void HostServer::handle(const ListInterfaceRequest &request)
{
    CameraListReply cameras;
    if (const OpenInterface *interface = m_producer.searchInterface(request.number)) {
        cameras.interfaces.push_back(interface->record());
        cameras.problems = interface->problems().all();
    }
    reply(cameras);
}

void HostServer::handle(const CloseProducerRequest &)
{
    m_isFinished = true;
    reply(ProducerClosedReply{m_producer.close()});
}

template <typename Content>
void HostServer::reply(const Content &content)
{
    m_connection = m_channel.send(Message(m_request, content).toLine());
}

void HostServer::fail(const Problem &problem)
{
    m_isFinished = true;
    reply(ProducerFailedReply{problem});
}
