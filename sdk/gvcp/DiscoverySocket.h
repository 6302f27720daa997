#pragma once

#include "sdk/gvcp/DiscoveryAcknowledgement.h"
#include "sdk/gvcp/InterfaceAddresses.h"
#include "sdk/gvcp/MessageBytes.h"

#include <cstddef>
#include <cstdint>
#include <optional>

/// Sends discovery commands through one network interface and receives the answers, including broadcast
/// answers and answers of cameras in other subnets. Ignores what arrives at other network interfaces.
class DiscoverySocket
{
public:
    /// Throws std::system_error if the system cannot create the socket.
    explicit DiscoverySocket(const InterfaceAddress &address);
    ~DiscoverySocket();
    DiscoverySocket(const DiscoverySocket &) = delete;
    DiscoverySocket &operator=(const DiscoverySocket &) = delete;

    /// Returns the descriptor to poll for reading.
    int descriptor() const { return m_socket; }

    /// Sends the discovery command to all cameras, including those in other subnets. A failure is not
    /// reported: no camera answers then, and the next search tries again.
    /// @param from An address of the network interface.
    void broadcastLimited(const InterfaceAddress &from, std::uint16_t requestId) const;

    /// Sends the discovery command to the cameras of one subnet, unless it is too small for a broadcast.
    void broadcastToSubnet(const InterfaceAddress &from, std::uint16_t requestId) const;

    /// Sends the discovery command to one camera.
    void sendTo(std::uint32_t camera, const InterfaceAddress &from, std::uint16_t requestId) const;

    /// Sends any command to all cameras, including those in other subnets. A failure is not reported.
    void broadcast(const MessageBytes &command, const InterfaceAddress &from) const;

    /// Returns the next answer that has arrived, or nothing. Skips other datagrams. Never blocks.
    /// @param maxDatagrams The number of datagrams that may be read; the function subtracts those that it
    /// reads.
    std::optional<DiscoveryAcknowledgement> receive(int &maxDatagrams) const;

    /// Returns the next datagram that has arrived at the network interface, whatever it contains.
    std::optional<MessageBytes> receiveAny(int &maxDatagrams) const;

private:
    void send(std::uint32_t source, std::uint32_t destination, std::uint16_t requestId) const;
    void sendBytes(
        std::uint32_t source, std::uint32_t destination, const std::uint8_t *bytes, std::size_t size) const;
    std::optional<std::size_t> receiveDatagram(std::uint8_t *buffer, std::size_t size) const;

    const int m_interfaceIndex;
    const int m_socket;
};
