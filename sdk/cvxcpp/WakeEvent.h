#pragma once

/// Wakes a thread that sleeps in poll().
class WakeEvent
{
public:
    WakeEvent(); ///< Throws std::system_error when the process has no descriptor left.
    ~WakeEvent();
    WakeEvent(const WakeEvent &) = delete;
    WakeEvent &operator=(const WakeEvent &) = delete;

    int descriptor() const { return m_descriptor; }
    void signal() const;
    void clear() const;

private:
    int m_descriptor;
};
