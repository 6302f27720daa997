#include "sdk/producerhost/ListChangeWatch.h"

#include "sdk/protocol/HostContract.h"

#include <cerrno>
#include <cstdint>
#include <poll.h>
#include <unistd.h>

void ListChangeWatch::start(int descriptor)
{
    // The lower numbers are the standard descriptors and the socket; reading them would lose a request.
    if (descriptor > hostSocketDescriptor)
        m_descriptor = descriptor;
}

bool ListChangeWatch::takeChange()
{
    if (!isWatching())
        return false;
    pollfd end{m_descriptor, POLLIN, 0};
    if (poll(&end, 1, 0) <= 0)
        return false;
    std::uint64_t value = 0;
    const bool isReadable = (end.revents & POLLIN) != 0; // Otherwise read() could block.
    const ssize_t count = isReadable ? read(m_descriptor, &value, sizeof(value)) : 0;
    if (count > 0)
        return true;
    const bool isClearedByProducer = count < 0 && (errno == EAGAIN || errno == EINTR);
    if (!isClearedByProducer) // Polling the descriptor again would return at once, without end.
        m_descriptor = -1;
    return false;
}
