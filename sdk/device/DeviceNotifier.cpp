#include "sdk/device/DeviceNotifier.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <set>
#include <thread>
#include <utility>

using namespace CvxCPP;

using Observer = std::shared_ptr<IDeviceObserver>;

/// The events that were not delivered yet, and the observers.
class DeviceNotifier::Queue
{
public:
    struct Event
    {
        std::set<std::string> names; ///< Changed nodes; empty if the state has changed.
        DeviceState state = DeviceState::Open;
        std::string reason;
    };

    /// Adds an observer and, with the first one, starts the thread, which keeps `self`.
    void add(const Observer &observer, const std::shared_ptr<Queue> &self);
    void remove(const Observer &observer);
    void push(Event event);
    void close();
    bool isCalledHere() const { return current == this; }

    /// The queue whose observers the present thread calls.
    static thread_local const Queue *current;

private:
    void run();
    bool waitForEvent(Event &event);
    void deliver(const Event &event);
    bool isRegistered(const Observer &observer) const;

    mutable std::mutex m_mutex; // Guards all members below.
    std::condition_variable m_changed;
    std::deque<Event> m_events;
    std::vector<Observer> m_observers;
    Observer m_called; // The observer that is being called.
    std::thread m_thread;
    bool m_isRunning = false; // Whether the thread has been started and still calls observers.
    bool m_isClosed = false;
};

thread_local const DeviceNotifier::Queue *DeviceNotifier::Queue::current = nullptr;

void DeviceNotifier::Queue::add(const Observer &observer, const std::shared_ptr<Queue> &self)
{
    const std::lock_guard lock(m_mutex);
    if (m_isClosed)
        return;
    if (!m_isRunning)
        m_thread = std::thread([self] { self->run(); });
    m_isRunning = true;
    m_observers.push_back(observer);
}

void DeviceNotifier::Queue::remove(const Observer &observer)
{
    std::unique_lock lock(m_mutex);
    m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), observer), m_observers.end());
    if (!isCalledHere())
        m_changed.wait(lock, [&] { return m_called != observer; });
}

void DeviceNotifier::Queue::push(Event event)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_isClosed || m_observers.empty())
            return;
        // An observer that blocks must not make the queue grow with every write.
        if (!m_events.empty() && !m_events.back().names.empty() && !event.names.empty())
            m_events.back().names.merge(event.names);
        else
            m_events.push_back(std::move(event));
    }
    m_changed.notify_all();
}

void DeviceNotifier::Queue::close()
{
    std::unique_lock lock(m_mutex);
    if (!std::exchange(m_isClosed, true))
        m_events.push_back({{}, DeviceState::Closed, {}});
    m_changed.notify_all();
    if (!isCalledHere())
        m_changed.wait(lock, [this] { return !m_isRunning; });
    std::thread thread = std::move(m_thread);
    lock.unlock();
    if (!thread.joinable())
        return;
    if (isCalledHere())
        thread.detach(); // The thread ends when the observer has returned.
    else
        thread.join();
}

void DeviceNotifier::Queue::run()
{
    current = this;
    Event event;
    while (waitForEvent(event))
        deliver(event);
    std::vector<Observer> observers;
    {
        const std::lock_guard lock(m_mutex);
        observers.swap(m_observers);
    }
    observers.clear(); // The destructors of the observers may use the device.
    const std::lock_guard lock(m_mutex);
    m_isRunning = false;
    m_changed.notify_all();
}

/// Returns false if the last event was delivered.
bool DeviceNotifier::Queue::waitForEvent(Event &event)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return !m_events.empty() || m_isClosed; });
    if (m_events.empty())
        return false;
    event = std::move(m_events.front());
    m_events.pop_front();
    return true;
}

void DeviceNotifier::Queue::deliver(const Event &event)
{
    std::unique_lock lock(m_mutex);
    const std::vector<Observer> observers = m_observers; // A copy, because a call may change them.
    const std::vector<std::string> names(event.names.begin(), event.names.end());
    for (const Observer &observer : observers) {
        if (!isRegistered(observer))
            continue;
        m_called = observer;
        lock.unlock();
        try {
            names.empty() ? observer->StateChanged(event.state, event.reason) : observer->NodesChanged(names);
        } catch (...) { // An exception of one observer must not prevent the calls of the other observers.
        }
        lock.lock();
        m_called = nullptr;
        m_changed.notify_all();
    }
    lock.unlock(); // The last reference to an observer may be in `observers`.
}

bool DeviceNotifier::Queue::isRegistered(const Observer &observer) const
{
    return std::find(m_observers.begin(), m_observers.end(), observer) != m_observers.end();
}

// ---- DeviceNotifier ----------------------------------------------------------------------------------

DeviceNotifier::DeviceNotifier() : m_queue(std::make_shared<Queue>()) { }

DeviceNotifier::~DeviceNotifier()
{
    close();
}

void DeviceNotifier::add(const Observer &observer)
{
    m_queue->add(observer, m_queue);
}

void DeviceNotifier::remove(const Observer &observer)
{
    m_queue->remove(observer);
}

void DeviceNotifier::nodesChanged(std::vector<std::string> names)
{
    if (names.empty())
        return;
    const auto queue = m_queue; // An observer may destroy this object before push() returns.
    queue->push({{std::make_move_iterator(names.begin()), std::make_move_iterator(names.end())}, {}, {}});
}

void DeviceNotifier::stateChanged(DeviceState state, std::string reason)
{
    const auto queue = m_queue;
    queue->push({{}, state, std::move(reason)});
}

void DeviceNotifier::close()
{
    m_queue->close();
}

bool DeviceNotifier::isCalledByObserver() const
{
    return m_queue->isCalledHere();
}

bool DeviceNotifier::isCallingObservers()
{
    return Queue::current != nullptr;
}
