#pragma once

/// Notices changes of the network interfaces and their addresses without polling them.
class InterfaceMonitor
{
public:
    /// Throws std::system_error if the system does not report changes.
    InterfaceMonitor();
    ~InterfaceMonitor();
    InterfaceMonitor(const InterfaceMonitor &) = delete;
    InterfaceMonitor &operator=(const InterfaceMonitor &) = delete;

    /// Returns a descriptor that becomes readable when a network interface changes.
    int descriptor() const { return m_socket; }

    /// Makes the descriptor unreadable until the next change. Call this function before interfaceAddresses(),
    /// so that no change is overlooked.
    void clear() const;

private:
    const int m_socket;
};
