#include "sdk/device/DeviceGate.h"

#include <utility>

using namespace CvxCPP;

DeviceGate::DeviceGate(Milliseconds reopenInterval, Milliseconds closeTimeout)
    : m_closeTimeout(closeTimeout), m_life(reopenInterval, SteadyClock::now())
{ }

DeviceState DeviceGate::state() const
{
    const std::lock_guard lock(m_mutex);
    return m_life.state();
}

DeviceState DeviceGate::state(std::uint32_t &reopenCount) const
{
    const std::lock_guard lock(m_mutex);
    reopenCount = m_life.reopenCount();
    return m_life.state();
}

// ---- Turns -------------------------------------------------------------------------------------------

DeviceGate::Turn::Turn(DeviceGate &gate, std::shared_ptr<HostChannel> host, std::uint64_t number)
    : m_gate(&gate), m_host(std::move(host)), m_number(number)
{ }

std::optional<DeviceGate::Turn> DeviceGate::takeTurn(TimePoint deadline)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait_until(lock, deadline, [this] { return !isOpen() || !m_isBusy; });
    if (!isOpen() || m_isBusy)
        return std::nullopt;
    m_isBusy = true;
    ++m_turnCount;
    return Turn(*this, m_host, m_hostNumber);
}

void DeviceGate::endTurn()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isBusy = false;
    }
    m_changed.notify_all();
}

bool DeviceGate::waitIdle(TimePoint deadline)
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_until(lock, deadline, [this] { return !m_isBusy; });
}

std::uint64_t DeviceGate::turnCount() const
{
    const std::lock_guard lock(m_mutex);
    return m_turnCount;
}

// ---- Changes of the state ----------------------------------------------------------------------------

void DeviceGate::lose(std::uint64_t host, const Breakdown &reason)
{
    {
        const std::lock_guard lock(m_mutex);
        if (host != m_hostNumber || !isOpen())
            return;
        m_life.lost();
        m_loss = reason;
        m_isLossExplained = reason.kind != Breakdown::Kind::Ended;
        m_host->abort(); // Another thread may wait for a reply of this host.
    }
    m_changed.notify_all();
    m_wakeEvent.signal();
}

void DeviceGate::close()
{
    {
        const std::lock_guard lock(m_mutex);
        const bool wasOpen = isOpen();
        if (!m_life.closed())
            return;
        m_closeDeadline = SteadyClock::now() + m_closeTimeout;
        if (!wasOpen && m_host)
            m_host->abort(); // The thread of the device waits for this host to open the camera.
    }
    m_changed.notify_all();
    m_wakeEvent.signal();
}

bool DeviceGate::opened(const std::shared_ptr<StreamCore> &stream)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_stream != stream || !m_life.opened())
            return false;
    }
    m_changed.notify_all();
    return true;
}

bool DeviceGate::reopeningFailed(const std::string &reason)
{
    const std::lock_guard lock(m_mutex);
    m_loss.reason = reason;
    return m_life.lost();
}

bool DeviceGate::beginReopening(TimePoint now)
{
    const std::lock_guard lock(m_mutex);
    return m_life.beginReopening(now);
}

TimePoint DeviceGate::nextReopening() const
{
    const std::lock_guard lock(m_mutex);
    return m_life.nextReopening();
}

Breakdown DeviceGate::loss() const
{
    const std::lock_guard lock(m_mutex);
    return m_loss;
}

void DeviceGate::explainLoss(const std::string &reason)
{
    {
        const std::lock_guard lock(m_mutex);
        m_loss.reason = reason;
        m_isLossExplained = true;
    }
    m_changed.notify_all();
}

std::string DeviceGate::lossReason(TimePoint deadline) const
{
    std::unique_lock lock(m_mutex);
    m_changed.wait_until(lock, deadline, [this] { return m_isLossExplained; });
    return m_loss.reason;
}

TimePoint DeviceGate::closeDeadline() const
{
    const std::lock_guard lock(m_mutex);
    return m_closeDeadline;
}

// ---- The host and the stream -------------------------------------------------------------------------

std::uint64_t DeviceGate::setHost(std::shared_ptr<HostChannel> host)
{
    const std::lock_guard lock(m_mutex);
    m_host = std::move(host);
    if (m_life.state() == DeviceState::Closed)
        m_host->abort();
    return ++m_hostNumber;
}

std::uint64_t DeviceGate::hostNumber() const
{
    const std::lock_guard lock(m_mutex);
    return m_hostNumber;
}

std::shared_ptr<HostChannel> DeviceGate::host() const
{
    const std::lock_guard lock(m_mutex);
    return m_host;
}

void DeviceGate::dropHost()
{
    std::shared_ptr<HostChannel> host; // Destroyed after the lock is released.
    const std::lock_guard lock(m_mutex);
    host.swap(m_host);
}

std::shared_ptr<StreamCore> DeviceGate::stream() const
{
    const std::lock_guard lock(m_mutex);
    return m_stream;
}

void DeviceGate::setStream(std::shared_ptr<StreamCore> stream)
{
    const std::lock_guard lock(m_mutex);
    m_stream.swap(stream);
}

bool DeviceGate::removeStream(const std::shared_ptr<StreamCore> &stream)
{
    const std::lock_guard lock(m_mutex);
    if (m_stream != stream)
        return false;
    m_stream = nullptr;
    return true;
}
