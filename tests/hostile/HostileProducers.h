#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// One way in which a producer file can be hostile, and what the library has to report about it.
struct HostileProducer
{
    /// When the line about the producer is reported.
    enum class Due
    {
        AtStart, ///< Together with the first camera list, or soon after it.
        AtEnd, ///< When the producer is closed or, if it hangs, given up.
        Never ///< The producer is within its rights.
    };

    std::string name; ///< For example "TLOpen/untouched".
    std::function<void(const std::filesystem::path &cti)> place; ///< Puts it into the directory of producers.
    Due due = Due::AtStart;
    std::string text; ///< A part of each line.
    int cameras = -1; ///< The number of its cameras in the list in the end; -1 if that does not matter.
    int lines = 1; ///< Number of lines, unless they are never due.
    std::string file = "bad.cti"; ///< Part of the file name in each line.
    bool leavesDaemon = false; ///< Leaves a process that has left the host's process group.
};

/// Returns the table. Sanitizers need more address space than the host's limit, so their builds lack one row.
std::vector<HostileProducer> hostileProducers();
