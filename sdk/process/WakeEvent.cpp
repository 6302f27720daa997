#include "sdk/process/WakeEvent.h"

#include "sdk/process/Descriptor.h"

#include <cerrno>
#include <sys/eventfd.h>
#include <system_error>
#include <unistd.h>

WakeEvent::WakeEvent() : m_descriptor(aboveStandard(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)))
{
    if (m_descriptor < 0)
        throw std::system_error(errno, std::generic_category(), "eventfd");
}

WakeEvent::~WakeEvent()
{
    close(m_descriptor);
}

void WakeEvent::signal() const
{
    eventfd_write(m_descriptor, 1);
}

void WakeEvent::clear() const
{
    eventfd_t count = 0;
    eventfd_read(m_descriptor, &count);
}
