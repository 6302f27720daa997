#include "sdk/protocol/LineChannel.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t blockSize = 128U << 10; // Bytes.

LineChannel::Status statusOfError(int error)
{
    return error == EBADF || error == ENOTSOCK ? LineChannel::Status::Lost : LineChannel::Status::Closed;
}

} // namespace

LineChannel::LineChannel(int descriptor, std::size_t maxLength)
    : m_descriptor(descriptor), m_maxLength(maxLength)
{ }

LineChannel::~LineChannel()
{
    close();
}

LineChannel::LineChannel(LineChannel &&other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1)),
      m_maxLength(other.m_maxLength),
      m_pending(std::move(other.m_pending)),
      m_searched(std::exchange(other.m_searched, 0)),
      m_acceptsDescriptors(other.m_acceptsDescriptors),
      m_descriptors(std::move(other.m_descriptors))
{ }

LineChannel &LineChannel::operator=(LineChannel &&other) noexcept
{
    LineChannel moved(std::move(other));
    std::swap(m_descriptor, moved.m_descriptor);
    std::swap(m_maxLength, moved.m_maxLength);
    std::swap(m_pending, moved.m_pending);
    std::swap(m_searched, moved.m_searched);
    std::swap(m_acceptsDescriptors, moved.m_acceptsDescriptors);
    std::swap(m_descriptors, moved.m_descriptors);
    return *this;
}

LineChannel::Status LineChannel::tryReadLine(std::string &line)
{
    for (;;) {
        const auto end = m_pending.find('\n', m_searched);
        if (end != std::string::npos) {
            line.assign(m_pending, 0, end);
            m_pending.erase(0, end + 1);
            if (m_pending.empty())
                m_pending.shrink_to_fit(); // This frees the memory of an idle connection.
            m_searched = 0;
            return Status::Line;
        }
        m_searched = m_pending.size();
        if (m_searched > m_maxLength)
            return Status::TooLong;
        if (m_descriptor < 0)
            return Status::Closed;

        m_pending.resize(m_searched + blockSize);
        const ssize_t count = receive(m_pending.data() + m_searched, blockSize);
        const int error = errno;
        m_pending.resize(m_searched + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (count < 0 && error == EINTR)
            continue;
        if (count < 0 && error == EAGAIN)
            return Status::Pending;
        if (count < 0)
            return statusOfError(error);
        if (count == 0)
            return Status::Closed;
    }
}

/// Receives bytes without blocking, like recv(), and keeps the descriptors that come with them.
ssize_t LineChannel::receive(char *buffer, std::size_t size)
{
    if (!m_acceptsDescriptors)
        return recv(m_descriptor, buffer, size, MSG_DONTWAIT);
    iovec bytes{buffer, size};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(maxDescriptors * sizeof(int))> control{};
    msghdr message{};
    message.msg_iov = &bytes;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    const ssize_t count = recvmsg(m_descriptor, &message, MSG_DONTWAIT | MSG_CMSG_CLOEXEC);
    for (cmsghdr *header = count < 0 ? nullptr : CMSG_FIRSTHDR(&message); header;
         header = CMSG_NXTHDR(&message, header)) {
        if (header->cmsg_level != SOL_SOCKET || header->cmsg_type != SCM_RIGHTS)
            continue;
        const std::size_t first = m_descriptors.size();
        m_descriptors.resize(first + (header->cmsg_len - CMSG_LEN(0)) / sizeof(int));
        std::memcpy(m_descriptors.data() + first, CMSG_DATA(header), header->cmsg_len - CMSG_LEN(0));
    }
    return count;
}

LineChannel::Status LineChannel::send(const std::string &text, const std::vector<int> &descriptors)
{
    iovec bytes{const_cast<char *>(text.data()), text.size()};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(maxDescriptors * sizeof(int))> control{};
    const std::size_t size = descriptors.size() * sizeof(int);
    msghdr message{};
    message.msg_iov = &bytes;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = CMSG_SPACE(size);
    cmsghdr *const header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(size);
    std::memcpy(CMSG_DATA(header), descriptors.data(), size);
    const ssize_t count = TEMP_FAILURE_RETRY(sendmsg(m_descriptor, &message, MSG_NOSIGNAL));
    // The kernel transfers the descriptors with the first byte.
    return count < 0 ? statusOfError(errno) : send(text.substr(static_cast<std::size_t>(count)));
}

LineChannel::Status LineChannel::send(const std::string &text)
{
    std::size_t sent = 0;
    while (sent < text.size()) {
        const ssize_t count
            = TEMP_FAILURE_RETRY(::send(m_descriptor, text.data() + sent, text.size() - sent, MSG_NOSIGNAL));
        if (count < 0)
            return statusOfError(errno);
        sent += static_cast<std::size_t>(count);
    }
    return Status::Line;
}

LineChannel::Status LineChannel::sendUntil(
    std::chrono::steady_clock::time_point deadline, const std::string &text)
{
    std::size_t sent = 0;
    while (sent < text.size()) {
        const ssize_t count = TEMP_FAILURE_RETRY(
            ::send(m_descriptor, text.data() + sent, text.size() - sent, MSG_NOSIGNAL | MSG_DONTWAIT));
        if (count >= 0) {
            sent += static_cast<std::size_t>(count);
            continue;
        }
        if (errno != EAGAIN)
            return statusOfError(errno);
        const auto remaining
            = std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (remaining.count() <= 0)
            return Status::Pending;
        pollfd writable{m_descriptor, POLLOUT, 0};
        poll(&writable, 1, static_cast<int>(remaining.count()));
    }
    return Status::Line;
}

void LineChannel::trySend(const std::string &text)
{
    [[maybe_unused]] const auto sent
        = ::send(m_descriptor, text.data(), text.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
}

void LineChannel::close()
{
    if (m_descriptor >= 0)
        ::close(std::exchange(m_descriptor, -1));
    for (const int descriptor : takeDescriptors())
        ::close(descriptor);
    m_pending.clear();
    m_pending.shrink_to_fit();
    m_searched = 0;
}
