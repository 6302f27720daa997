#pragma once

/// Wakes a thread that waits in poll().
class WakeEvent
{
public:
    WakeEvent(); ///< Throws std::system_error if the process has no descriptor left.
    ~WakeEvent();
    WakeEvent(const WakeEvent &) = delete;
    WakeEvent &operator=(const WakeEvent &) = delete;

    int descriptor() const { return m_descriptor; }
    void signal() const;
    void clear() const;

private:
    int m_descriptor;
};
