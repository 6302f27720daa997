#include "sdk/producerhost/LineSocket.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <sys/socket.h>
#include <unistd.h>

LineSocket::LineSocket(int descriptor) : m_descriptor(descriptor) { }

bool LineSocket::readLine(std::string &line)
{
    std::size_t end = m_pending.find('\n');
    while (end == std::string::npos) {
        std::array<char, 1024> bytes;
        const ssize_t count = TEMP_FAILURE_RETRY(recv(m_descriptor, bytes.data(), bytes.size(), 0));
        if (count < 0)
            noteError(errno);
        if (count <= 0)
            return false;
        m_pending.append(bytes.data(), static_cast<std::size_t>(count));
        end = m_pending.find('\n');
    }
    line.assign(m_pending, 0, end);
    m_pending.erase(0, end + 1);
    return true;
}

bool LineSocket::write(const std::string &text)
{
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t count
            = TEMP_FAILURE_RETRY(send(m_descriptor, text.data() + done, text.size() - done, MSG_NOSIGNAL));
        if (count < 0)
            noteError(errno);
        if (count <= 0)
            return false;
        done += static_cast<std::size_t>(count);
    }
    return true;
}

void LineSocket::noteError(int error)
{
    m_isLost = m_isLost || error == EBADF || error == ENOTSOCK;
}
