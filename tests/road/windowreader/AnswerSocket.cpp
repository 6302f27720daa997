#include "tests/road/windowreader/AnswerSocket.h"

#include <QFile>
#include <QSocketNotifier>

#include <atomic>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace {

std::atomic<AnswerSocket::Duration::rep> timeTaken{0};

/// -1 when the path is taken: tools that the program starts inherit its environment, and load us as well.
int listenAt(const QByteArray &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.constData(), sizeof address.sun_path - 1);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0
        && ::listen(socket, 8) == 0)
        return socket;
    ::close(socket);
    return -1;
}

} // namespace

AnswerSocket::AnswerSocket(const QString &path, Answer answer)
    : m_socket(listenAt(QFile::encodeName(path))), m_answer(std::move(answer))
{
    if (m_socket < 0)
        return;
    auto *notifier = new QSocketNotifier(m_socket, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &AnswerSocket::answer);
}

AnswerSocket::~AnswerSocket()
{
    ::close(m_socket);
}

AnswerSocket::Duration AnswerSocket::timeSpent()
{
    return Duration(timeTaken);
}

void AnswerSocket::answer() const
{
    const auto start = std::chrono::steady_clock::now();
    const int peer = ::accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
    const QByteArray text = m_answer();
    for (qint64 sent = 0; sent < text.size();) {
        const ssize_t count = ::send(peer, text.constData() + sent, size_t(text.size() - sent), MSG_NOSIGNAL);
        if (count <= 0)
            break; // The test has gone.
        sent += count;
    }
    ::close(peer);
    timeTaken += (std::chrono::steady_clock::now() - start).count();
}
