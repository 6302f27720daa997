#include "sdk/gvcp/ControlConnection.h"

#include "sdk/gvcp/DiscoveryAcknowledgement.h"

#include <algorithm>
#include <cerrno>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <system_error>

namespace {

constexpr std::uint16_t readRegisterCommand = 0x0080;
constexpr std::uint16_t writeRegisterCommand = 0x0082;
constexpr std::uint16_t pendingAnswer = 0x0089;

sockaddr_in toSocketAddress(std::uint32_t address, std::uint16_t port)
{
    sockaddr_in result{};
    result.sin_family = AF_INET;
    result.sin_port = htons(port);
    result.sin_addr.s_addr = htonl(address);
    return result;
}

} // namespace

ControlConnection::ControlConnection(std::uint32_t interfaceAddress, std::uint32_t cameraAddress)
    : m_socket(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
{
    const sockaddr_in own = toSocketAddress(interfaceAddress, 0);
    const sockaddr_in camera = toSocketAddress(cameraAddress, cameraPort);
    const int number = m_socket.number();
    const bool isReady = number >= 0
        && bind(number, reinterpret_cast<const sockaddr *>(&own), sizeof own) == 0
        && connect(number, reinterpret_cast<const sockaddr *>(&camera), sizeof camera) == 0;
    if (!isReady)
        throw std::system_error(errno, std::generic_category(), "A socket cannot be set up");
}

std::optional<ControlAnswer> ControlConnection::request(std::uint16_t command, const MessageBytes &parameters)
{
    m_requestId = static_cast<std::uint16_t>(m_requestId == 0xFFFF ? 1 : m_requestId + 1);
    MessageBytes datagram{commandKey, acknowledgeRequired};
    appendNumber(datagram, command);
    appendNumber(datagram, static_cast<std::uint16_t>(parameters.size()));
    appendNumber(datagram, m_requestId);
    datagram.insert(datagram.end(), parameters.begin(), parameters.end());

    for (int attempt = 0; attempt < maxAttempts; ++attempt) {
        // A failure is not looked at: the camera does not answer then.
        [[maybe_unused]] const auto sent
            = send(m_socket.number(), datagram.data(), datagram.size(), MSG_NOSIGNAL);
        if (auto answer = awaitAnswer(command))
            return answer;
    }
    return std::nullopt;
}

std::optional<ControlAnswer> ControlConnection::requestRegister(std::uint32_t address)
{
    MessageBytes parameters;
    appendNumber(parameters, address);
    return request(readRegisterCommand, parameters);
}

std::optional<ControlAnswer> ControlConnection::writeRegister(std::uint32_t address, std::uint32_t value)
{
    MessageBytes parameters;
    appendNumber(parameters, address);
    appendNumber(parameters, value);
    return request(writeRegisterCommand, parameters);
}

std::optional<std::uint32_t> ControlConnection::readRegister(std::uint32_t address)
{
    const auto answer = requestRegister(address);
    if (!answer || !answer->isSuccess() || answer->data.size() < sizeof(std::uint32_t))
        return std::nullopt;
    return read32(answer->data.data());
}

std::optional<ControlAnswer> ControlConnection::awaitAnswer(std::uint16_t command)
{
    const Time lastDeadline = std::chrono::steady_clock::now() + maxDelay;
    Time deadline = std::chrono::steady_clock::now() + answerTimeout;
    while (const auto datagram = receive(deadline)) {
        auto parsed = parseAnswer(*datagram);
        if (!parsed || parsed->requestId != m_requestId)
            continue;
        if (parsed->code == pendingAnswer && parsed->answer.data.size() >= 4) {
            const std::chrono::milliseconds delay(read16(parsed->answer.data.data() + 2));
            deadline = std::min(lastDeadline, std::chrono::steady_clock::now() + delay + answerTimeout);
        }
        if (parsed->code == command + 1)
            return std::move(parsed->answer);
    }
    return std::nullopt;
}

/// Returns the next datagram. Returns nothing if there is none until the deadline.
std::optional<MessageBytes> ControlConnection::receive(Time deadline) const
{
    for (;;) {
        const auto remaining
            = std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        pollfd waiting{m_socket.number(), POLLIN, 0};
        // The time counts even while datagrams arrive without end.
        if (remaining.count() <= 0 || poll(&waiting, 1, static_cast<int>(remaining.count())) == 0)
            return std::nullopt;
        MessageBytes datagram(messageHeaderSize + sizeof(std::uint32_t) + maxBlockSize);
        const ssize_t size = recv(m_socket.number(), datagram.data(), datagram.size(), 0);
        if (size < 0)
            continue; // For example, the machine has rejected the command while the camera's program
                      // restarts.
        datagram.resize(static_cast<std::size_t>(size));
        return datagram;
    }
}
