#include "tests/fuzz/Visits.h"

#include <netinet/in.h>
#include <stdexcept>
#include <sys/inotify.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

void check(bool succeeded, const char *what)
{
    if (!succeeded)
        throw std::runtime_error(what);
}

sockaddr_in addressOf(int server)
{
    sockaddr_in address{};
    socklen_t size = sizeof address;
    check(getsockname(server, reinterpret_cast<sockaddr *>(&address), &size) == 0, "the server has no name");
    return address;
}

} // namespace

FileVisits::FileVisits(const std::filesystem::path &file) : m_watcher(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    check(inotify_add_watch(m_watcher, file.c_str(), IN_OPEN) >= 0, "the file cannot be watched");
}

FileVisits::~FileVisits()
{
    close(m_watcher);
}

int FileVisits::count() const
{
    int visits = 0;
    alignas(inotify_event) char events[4096];
    for (ssize_t size = 0; (size = ::read(m_watcher, events, sizeof events)) > 0;)
        visits += static_cast<int>(size / static_cast<ssize_t>(sizeof(inotify_event))); // Without names.
    return visits;
}

ServerVisits::ServerVisits() : m_socket(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    check(bind(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0
            && listen(m_socket, 8) == 0,
        "there is no server");
}

ServerVisits::~ServerVisits()
{
    close(m_socket);
}

std::string ServerVisits::address() const
{
    return "http://127.0.0.1:" + std::to_string(ntohs(addressOf(m_socket).sin_port)) + "/e";
}

void ServerVisits::visit() const
{
    const sockaddr_in address = addressOf(m_socket);
    const int visitor = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    check(connect(visitor, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0,
        "the server cannot be reached");
    close(visitor);
}

int ServerVisits::count() const
{
    int visits = 0;
    for (int visitor = 0; (visitor = accept(m_socket, nullptr, nullptr)) >= 0; ++visits)
        close(visitor);
    return visits;
}
