#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <sys/types.h>
#include <utility>
#include <vector>

/// One end of the stream socket between the library and a host. Splits the received bytes into lines and
/// limits the length of a line. Owns the descriptor. Use each object on one thread only.
class LineChannel
{
public:
    /// Default for the maximum length of a line in bytes. A reply with 1,000 cameras takes about 200 KiB.
    static constexpr std::size_t defaultMaxLength = std::size_t(16) << 20;

    enum class Status
    {
        Line, ///< A whole line was read.
        Pending, ///< The rest of the line has not arrived, or has not been sent, yet.
        Closed, ///< The other end has closed the connection, or this end is closed.
        Lost, ///< The descriptor is no longer a socket, because other code in this process closed it.
        TooLong ///< The line exceeds the limit.
    };

    /// Takes over the descriptor. If the descriptor is negative, the channel is closed.
    explicit LineChannel(int descriptor = -1, std::size_t maxLength = defaultMaxLength);
    ~LineChannel();
    LineChannel(LineChannel &&other) noexcept;
    LineChannel &operator=(LineChannel &&other) noexcept;

    /// Returns the descriptor to poll for reading, or -1 if the channel is closed.
    int descriptor() const { return m_descriptor; }

    /// Reads the next line without blocking and stores it without its line feed.
    Status tryReadLine(std::string &line);

    /// Lets tryReadLine() accept descriptors that are sent with a line. Without this call, they are
    /// discarded.
    void acceptDescriptors() { m_acceptsDescriptors = true; }

    /// Moves the descriptors that were received so far to the caller, who closes them.
    std::vector<int> takeDescriptors() { return std::exchange(m_descriptors, {}); }

    /// Returns true if bytes were received after the last line that was read.
    bool hasMore() const { return !m_pending.empty(); }

    /// Sends the whole text and blocks until the socket has accepted it. Returns Line on success, otherwise
    /// Closed or Lost.
    Status send(const std::string &text);

    /// Like send(), but returns Pending if the socket has not accepted the whole text by the deadline.
    Status sendUntil(std::chrono::steady_clock::time_point deadline, const std::string &text);

    /// Sends the text, which must not be empty, and duplicates of the descriptors, at most `maxDescriptors`.
    Status send(const std::string &text, const std::vector<int> &descriptors);
    static constexpr std::size_t maxDescriptors = 4;

    /// Sends the text without blocking. The text must fit into the socket's buffer. A failure is not
    /// reported, because a later read detects that the connection has ended.
    void trySend(const std::string &text);

    /// Closes the descriptor and discards the received bytes.
    void close();

private:
    ssize_t receive(char *buffer, std::size_t size);

    int m_descriptor;
    std::size_t m_maxLength;
    std::string m_pending; // Bytes that were received but not yet returned.
    std::size_t m_searched = 0; // m_pending has no line feed before this position.
    bool m_acceptsDescriptors = false;
    std::vector<int> m_descriptors; // Descriptors that were received but not yet taken.
};
