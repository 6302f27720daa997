#include "sdk/protocol/LineChannel.h"

#include <algorithm>
#include <cerrno>
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
      m_searched(std::exchange(other.m_searched, 0))
{ }

LineChannel &LineChannel::operator=(LineChannel &&other) noexcept
{
    LineChannel moved(std::move(other));
    std::swap(m_descriptor, moved.m_descriptor);
    std::swap(m_maxLength, moved.m_maxLength);
    std::swap(m_pending, moved.m_pending);
    std::swap(m_searched, moved.m_searched);
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
        const ssize_t count = recv(m_descriptor, m_pending.data() + m_searched, blockSize, MSG_DONTWAIT);
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

void LineChannel::trySend(const std::string &text)
{
    [[maybe_unused]] const auto sent
        = ::send(m_descriptor, text.data(), text.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
}

void LineChannel::close()
{
    if (m_descriptor >= 0)
        ::close(std::exchange(m_descriptor, -1));
    m_pending.clear();
    m_pending.shrink_to_fit();
    m_searched = 0;
}
