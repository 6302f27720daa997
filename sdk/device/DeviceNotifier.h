#pragma once

#include "CvxCPP/Device.h"

#include <memory>
#include <string>
#include <vector>

/// Calls the observers of one device on a thread of its own, which starts with the first observer. The calls
/// come in the order of the events. Every function may be called from any thread.
class DeviceNotifier
{
public:
    DeviceNotifier();
    ~DeviceNotifier();
    DeviceNotifier(const DeviceNotifier &) = delete;
    DeviceNotifier &operator=(const DeviceNotifier &) = delete;

    /// Throws std::system_error if no thread can be started. Has no effect after close().
    void add(const std::shared_ptr<CvxCPP::IDeviceObserver> &observer);

    /// Removes the observer and waits until it is not being called, unless the observer makes the call.
    void remove(const std::shared_ptr<CvxCPP::IDeviceObserver> &observer);

    void nodesChanged(std::vector<std::string> names);
    void stateChanged(CvxCPP::DeviceState state, std::string reason);

    /// Delivers the events so far and, as the last one, the state Closed, and releases the observers. Waits
    /// for that, unless an observer of this device makes the call.
    void close();

    /// Returns true if an observer of this device makes the call.
    bool isCalledByObserver() const;

    /// Returns true if the calling thread is a thread that calls observers of any device.
    static bool isCallingObservers();

private:
    class Queue;

    const std::shared_ptr<Queue> m_queue; // The thread keeps a reference.
};
