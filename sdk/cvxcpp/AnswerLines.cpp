#include "sdk/cvxcpp/AnswerLines.h"

#include <algorithm>
#include <cerrno>
#include <sys/socket.h>

AnswerLines::AnswerLines(std::size_t longest) : m_longest(longest) { }

AnswerLines::Reading AnswerLines::read(int socket, std::string &line)
{
    constexpr std::size_t BlockSize = 128U << 10; // Bytes.
    for (;;) {
        const auto end = m_pending.find('\n', m_searched);
        if (end != std::string::npos) {
            line.assign(m_pending, 0, end);
            m_pending.erase(0, end + 1);
            if (m_pending.empty())
                m_pending.shrink_to_fit(); // Idle hosts cost no buffer.
            m_searched = 0;
            return Reading::Line;
        }
        m_searched = m_pending.size();
        if (m_searched > m_longest)
            return Reading::TooLong;
        if (socket < 0)
            return Reading::Closed;

        m_pending.resize(m_searched + BlockSize);
        const ssize_t count = recv(socket, m_pending.data() + m_searched, BlockSize, MSG_DONTWAIT);
        const int error = errno;
        m_pending.resize(m_searched + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (count < 0 && (error == EAGAIN || error == EINTR))
            return Reading::Pending;
        if (count <= 0)
            return Reading::Closed;
    }
}

void AnswerLines::clear()
{
    m_pending.clear();
    m_pending.shrink_to_fit();
    m_searched = 0;
}
