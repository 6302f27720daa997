#pragma once

/// Watches the descriptor with which a producer reports that its lists have changed. A descriptor that cannot
/// be polled or read is no longer watched.
class ListChangeWatch
{
public:
    /// Starts to watch the descriptor, which still belongs to the producer. Does nothing if the descriptor is
    /// negative or if its number is one that the host itself uses.
    void start(int descriptor);

    bool isWatching() const { return m_descriptor >= 0; }

    /// Returns the descriptor to poll for reading, or -1 if nothing is watched.
    int descriptor() const { return m_descriptor; }

    /// Clears the descriptor without blocking. Returns true if a list has changed since the previous call.
    bool takeChange();

private:
    int m_descriptor = -1;
};
