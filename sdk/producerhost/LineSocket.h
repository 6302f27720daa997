#pragma once

#include <string>

/// The host's end of the socket to the process that started it: requests in, answers out, a line each.
class LineSocket
{
public:
    explicit LineSocket(int descriptor);

    /// Waits for the next line, without its line feed; false when the other end is closed.
    bool readLine(std::string &line);

    /// Writes all of it; false when the other end is closed.
    bool write(const std::string &text);

    /// The descriptor is no socket any more: the driver has closed it.
    bool isLost() const { return m_isLost; }

private:
    void noteError(int error);

    int m_descriptor;
    bool m_isLost = false;
    std::string m_pending; // Read, but not yet handed out.
};
