#include "sdk/gvcp/DiscoverySocket.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <netinet/in.h>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr int receiveBufferSize = 256 << 10; // Bytes; the system doubles the number for its own overhead.

/// Longer than any answer. The rest of a longer datagram is dropped.
using Buffer = std::array<std::uint8_t, 2048>;

/// Space for the one control message that a datagram has.
struct alignas(cmsghdr) ControlBuffer
{
    std::array<char, CMSG_SPACE(sizeof(in_pktinfo))> bytes{};
};

void setOption(int socket, int level, int option, const void *value, std::size_t size)
{
    if (setsockopt(socket, level, option, value, static_cast<socklen_t>(size)) != 0)
        throw std::system_error(errno, std::generic_category(), "A socket cannot be set up");
}

void setUp(int socket, const std::string &interfaceName)
{
    const int on = 1;
    setOption(socket, SOL_SOCKET, SO_BROADCAST, &on, sizeof on);
    setOption(socket, SOL_SOCKET, SO_RCVBUF, &receiveBufferSize, sizeof receiveBufferSize);
    setOption(socket, IPPROTO_IP, IP_PKTINFO, &on, sizeof on);
    // Old kernels permit this option only to privileged processes. Without it, every datagram is still
    // checked; the option only keeps those of other network interfaces out of the receive buffer.
    setsockopt(socket, SOL_SOCKET, SO_BINDTODEVICE, interfaceName.c_str(),
        static_cast<socklen_t>(interfaceName.size()));
    sockaddr_in any{}; // A socket with a specific address would not receive broadcast answers.
    any.sin_family = AF_INET;
    if (bind(socket, reinterpret_cast<const sockaddr *>(&any), sizeof any) != 0)
        throw std::system_error(errno, std::generic_category(), "A socket has no port");
}

/// Returns the index of the network interface at which the datagram has arrived.
int arrivalInterface(msghdr &message)
{
    for (cmsghdr *header = CMSG_FIRSTHDR(&message); header; header = CMSG_NXTHDR(&message, header)) {
        if (header->cmsg_level != IPPROTO_IP || header->cmsg_type != IP_PKTINFO)
            continue;
        in_pktinfo info;
        std::memcpy(&info, CMSG_DATA(header), sizeof info);
        return info.ipi_ifindex;
    }
    return 0;
}

} // namespace

DiscoverySocket::DiscoverySocket(const InterfaceAddress &address)
    : m_interfaceIndex(static_cast<int>(address.index)),
      m_socket(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0))
{
    if (m_socket < 0)
        throw std::system_error(errno, std::generic_category(), "A socket cannot be created");
    try {
        setUp(m_socket, address.name);
    } catch (...) {
        close(m_socket);
        throw;
    }
}

DiscoverySocket::~DiscoverySocket()
{
    close(m_socket);
}

void DiscoverySocket::broadcastToSubnet(const InterfaceAddress &from, std::uint16_t requestId) const
{
    constexpr std::uint32_t twoAddresses = 0xFFFFFFFE; // So small a subnet has no broadcast address.
    if (from.canBroadcast && from.mask < twoAddresses)
        send(from.address, from.broadcastAddress(), requestId);
}

void DiscoverySocket::broadcastLimited(const InterfaceAddress &from, std::uint16_t requestId) const
{
    send(from.address, INADDR_BROADCAST, requestId);
}

void DiscoverySocket::sendTo(
    std::uint32_t camera, const InterfaceAddress &from, std::uint16_t requestId) const
{
    send(from.address, camera, requestId);
}

void DiscoverySocket::broadcast(const MessageBytes &command, const InterfaceAddress &from) const
{
    sendBytes(from.address, INADDR_BROADCAST, command.data(), command.size());
}

void DiscoverySocket::send(std::uint32_t source, std::uint32_t destination, std::uint16_t requestId) const
{
    const auto command = discoveryCommand(requestId);
    sendBytes(source, destination, command.data(), command.size());
}

void DiscoverySocket::sendBytes(
    std::uint32_t source, std::uint32_t destination, const std::uint8_t *bytes, std::size_t size) const
{
    sockaddr_in to{};
    to.sin_family = AF_INET;
    to.sin_port = htons(cameraPort);
    to.sin_addr.s_addr = htonl(destination);
    iovec data{const_cast<std::uint8_t *>(bytes), size}; // sendmsg() does not change the bytes.

    ControlBuffer control;
    msghdr message{};
    message.msg_name = &to;
    message.msg_namelen = sizeof to;
    message.msg_iov = &data;
    message.msg_iovlen = 1;
    message.msg_control = control.bytes.data();
    message.msg_controllen = control.bytes.size();
    cmsghdr *const header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = IPPROTO_IP;
    header->cmsg_type = IP_PKTINFO;
    header->cmsg_len = CMSG_LEN(sizeof(in_pktinfo));
    in_pktinfo info{};
    info.ipi_ifindex = m_interfaceIndex;
    info.ipi_spec_dst.s_addr = htonl(source);
    std::memcpy(CMSG_DATA(header), &info, sizeof info);
    [[maybe_unused]] const auto sent = sendmsg(m_socket, &message, MSG_DONTWAIT | MSG_NOSIGNAL);
}

std::optional<DiscoveryAcknowledgement> DiscoverySocket::receive(int &maxDatagrams) const
{
    Buffer buffer;
    for (; maxDatagrams > 0; --maxDatagrams) {
        const auto size = receiveDatagram(buffer.data(), buffer.size());
        if (!size)
            return std::nullopt;
        if (auto acknowledgement = parseAcknowledgement(buffer.data(), *size)) {
            --maxDatagrams;
            return acknowledgement;
        }
    }
    return std::nullopt;
}

std::optional<MessageBytes> DiscoverySocket::receiveAny(int &maxDatagrams) const
{
    Buffer buffer;
    for (; maxDatagrams > 0; --maxDatagrams) {
        const auto size = receiveDatagram(buffer.data(), buffer.size());
        if (!size)
            return std::nullopt;
        if (*size == 0)
            continue;
        --maxDatagrams;
        return MessageBytes(buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(*size));
    }
    return std::nullopt;
}

/// Returns the size of the next datagram, which is 0 if the datagram is from another network interface or if
/// the system reports an earlier error. Returns nothing if there is no datagram.
std::optional<std::size_t> DiscoverySocket::receiveDatagram(std::uint8_t *buffer, std::size_t size) const
{
    iovec data{buffer, size};
    ControlBuffer control;
    msghdr message{};
    message.msg_iov = &data;
    message.msg_iovlen = 1;
    message.msg_control = control.bytes.data();
    message.msg_controllen = control.bytes.size();
    const ssize_t received = recvmsg(m_socket, &message, MSG_DONTWAIT);
    if (received < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
        return std::nullopt;
    const bool isOwn = received >= 0 && arrivalInterface(message) == m_interfaceIndex;
    return isOwn ? static_cast<std::size_t>(received) : 0;
}
