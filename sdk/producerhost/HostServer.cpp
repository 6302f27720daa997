#include "sdk/producerhost/HostServer.h"

#include "sdk/producerhost/ProcessorTime.h"
#include "sdk/protocol/HostContract.h"

#include <array>
#include <cstdlib>
#include <poll.h>

HostServer::HostServer(int socket) : m_channel(socket) { }

int HostServer::run(const char *producerPath)
{
    if (const auto problem = m_producer.open(producerPath))
        fail(*problem);
    else
        m_listChanges.start(m_producer.listChangeDescriptor());
    std::string line;
    while (!m_isFinished && (m_connection = waitForRequest(line)) == LineChannel::Status::Line)
        serve(line);
    m_producer.close();
    return m_connection == LineChannel::Status::Lost ? connectionLostStatus : EXIT_SUCCESS;
}

LineChannel::Status HostServer::waitForRequest(std::string &line)
{
    for (;;) {
        const auto status = m_channel.tryReadLine(line);
        if (status != LineChannel::Status::Pending)
            return status;
        const int changes = m_isChangeReported ? -1 : m_listChanges.descriptor(); // poll() ignores -1.
        std::array<pollfd, 2> ends{pollfd{m_channel.descriptor(), POLLIN, 0}, pollfd{changes, POLLIN, 0}};
        poll(ends.data(), ends.size(), -1);
        if (ends[1].revents != 0)
            reportListChange();
    }
}

void HostServer::reportListChange()
{
    if (!m_listChanges.takeChange())
        return;
    m_isChangeReported = true;
    m_channel.send(Message(Message::noRequest, ListChangedNotice()).toLine());
}

void HostServer::serve(const std::string &line)
{
    const auto message = Message::fromLine(line);
    const bool isServed = message
        && (tryServe<ListCamerasRequest>(*message) || tryServe<ListInterfaceRequest>(*message)
            || tryServe<ProducerInfoRequest>(*message) || tryServe<CloseProducerRequest>(*message));
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
    const ProcessorTime time;
    m_listChanges.takeChange(); // Before the search, so that a change during the search is reported.
    m_isChangeReported = false;
    if (request.updatesInterfaces || m_producer.needsInterfaceUpdate(request.timeout)) {
        if (const auto problem = m_producer.updateInterfaces(request.timeout))
            return fail(*problem);
    }
    m_producer.searchAll(request.timeout);
    CameraListReply cameras;
    ProblemList problems = m_producer.problems();
    for (const auto &interface : m_producer.interfaces()) {
        cameras.interfaces.push_back(interface->record());
        problems.add(interface->problems());
    }
    cameras.problems = problems.all();
    cameras.processorTime = time.milliseconds();
    cameras.isSelfUpdating = m_listChanges.isWatching();
    reply(cameras);
}

void HostServer::handle(const ListInterfaceRequest &request)
{
    const ProcessorTime time;
    CameraListReply cameras;
    if (const OpenInterface *interface = m_producer.searchInterface(request.number, request.timeout)) {
        cameras.interfaces.push_back(interface->record());
        cameras.problems = interface->problems().all();
    }
    cameras.processorTime = time.milliseconds();
    cameras.isSelfUpdating = m_listChanges.isWatching();
    reply(cameras);
}

void HostServer::handle(const ProducerInfoRequest &)
{
    reply(m_producer.info());
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
