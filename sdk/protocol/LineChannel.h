#pragma once

#include <cstddef>
#include <string>

/// One end of the stream socket between library and host. Splits what arrives into lines and limits their
/// length. Owns the descriptor. For one thread.
class LineChannel
{
public:
    /// Longest line that is accepted, in bytes. A list of 1,000 cameras takes about 200 KiB.
    static constexpr std::size_t defaultMaxLength = std::size_t(16) << 20;

    enum class Status
    {
        Line, ///< A whole line was read.
        Pending, ///< The rest of the line has not arrived yet.
        Closed, ///< The other end has closed the connection, or this end is closed.
        Lost, ///< The descriptor is not a socket any more: other code in this process closed it.
        TooLong ///< The line exceeds the limit.
    };

    /// Takes the descriptor over; a negative one makes a closed channel.
    explicit LineChannel(int descriptor = -1, std::size_t maxLength = defaultMaxLength);
    ~LineChannel();
    LineChannel(LineChannel &&other) noexcept;
    LineChannel &operator=(LineChannel &&other) noexcept;

    /// Returns the descriptor to poll for reading; -1 if the channel is closed.
    int descriptor() const { return m_descriptor; }

    /// Reads up to the end of the next line, without blocking. Stores the line without its line feed.
    Status tryReadLine(std::string &line) { return readLine(line, false); }

    /// Blocks until the next line is complete or the connection ends.
    Status waitForLine(std::string &line) { return readLine(line, true); }

    /// Returns true if bytes have arrived after the last line that was read.
    bool hasMore() const { return !m_pending.empty(); }

    /// Sends all of the text; blocks until the socket has taken it. Returns Line, Closed or Lost.
    Status send(const std::string &text);

    /// Sends a text that fits into the socket's buffer, without blocking. A failure shows as the end of the
    /// replies.
    void trySend(const std::string &text);

    /// Closes the descriptor and drops what was received.
    void close();

private:
    Status readLine(std::string &line, bool waits);

    int m_descriptor;
    std::size_t m_maxLength;
    std::string m_pending; // Received, but not returned yet.
    std::size_t m_searched = 0; // m_pending has no line feed before this position.
};
