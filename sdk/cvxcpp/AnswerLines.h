#pragma once

#include "sdk/cvxcpp/ProducerAnswer.h"

#include <cstddef>
#include <string>

/// Cuts what arrives from a host into lines, and gives up on a line without end.
class AnswerLines
{
public:
    explicit AnswerLines(std::size_t longest = LongestAnswer);

    enum class Reading
    {
        Pending,
        Line,
        Closed,
        TooLong
    };

    /// Reads from the socket what is there, without waiting, up to the end of a line, which is stored without
    /// its line feed. A negative descriptor stands for a closed socket.
    Reading read(int socket, std::string &line);

    /// Something has come after the last line that was read.
    bool hasMore() const { return !m_pending.empty(); }

    /// Forgets what has come.
    void clear();

private:
    std::size_t m_longest; // Bytes.
    std::string m_pending; // Received, but not yet handed out.
    std::string::size_type m_searched = 0; // No line feed up to here.
};
