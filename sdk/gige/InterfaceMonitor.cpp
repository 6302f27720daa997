#include "sdk/gige/InterfaceMonitor.h"

#include <array>
#include <cerrno>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>

InterfaceMonitor::InterfaceMonitor() : m_socket(socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE))
{
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = RTMGRP_LINK | RTMGRP_IPV4_IFADDR;
    if (m_socket >= 0 && bind(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0)
        return;
    const int error = errno;
    if (m_socket >= 0)
        close(m_socket);
    throw std::system_error(error, std::generic_category(), "The search for GigE cameras cannot start");
}

InterfaceMonitor::~InterfaceMonitor()
{
    close(m_socket);
}

void InterfaceMonitor::clear() const
{
    constexpr int maxMessages = 1000; // Ends the loop even if changes arrive faster than they are read.
    std::array<char, 8192> buffer;
    for (int i = 0; i < maxMessages; ++i) {
        const ssize_t size = recv(m_socket, buffer.data(), buffer.size(), MSG_DONTWAIT);
        if (size < 0 && errno != ENOBUFS) // ENOBUFS means that messages were lost; more can follow.
            return;
    }
}
