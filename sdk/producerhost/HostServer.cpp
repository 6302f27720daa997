#include "sdk/producerhost/HostServer.h"

#include "sdk/producerhost/ExitStatus.h"
#include "sdk/producerhost/ProducerAnswerWriter.h"

#include <cstdint>
#include <cstdlib>
#include <nlohmann/json.hpp>

HostServer::HostServer(int descriptor) : m_socket(descriptor) { }

int HostServer::run(const char *producerPath)
{
    if (const auto problem = m_producer.open(producerPath)) {
        answerError(*problem);
    } else {
        std::string request;
        while (m_socket.readLine(request) && serve(request)) { }
    }
    m_socket.write(endAnswer(m_producer.close()));
    return m_socket.isLost() ? ConnectionLostStatus : EXIT_SUCCESS;
}

bool HostServer::serve(const std::string &request)
{
    const auto json = nlohmann::json::parse(request, nullptr, false);
    if (!json.is_object())
        return false;
    const std::string kind = json.value("request", std::string());
    if (kind == "list")
        return serveList(json.value("interfaces", false));
    if (kind == "interface")
        return m_socket.write(
            interfaceAnswer(m_producer.updateDevices(json.value("number", std::uint64_t(0)))));
    return false; // "end", or something from another version.
}

bool HostServer::serveList(bool withInterfaces)
{
    if (withInterfaces || !m_producer.isListed()) {
        if (const auto problem = m_producer.updateInterfaces())
            return answerError(*problem);
    }
    m_producer.updateDevices();
    return m_socket.write(listAnswer(m_producer.interfaces(), m_producer.problems()));
}

bool HostServer::answerError(const Problem &problem)
{
    m_socket.write(errorAnswer(problem));
    return false;
}
