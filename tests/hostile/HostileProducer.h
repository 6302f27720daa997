#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// One way in which a file in the folder of producers can be hostile, and what is to come of it.
struct HostileProducer
{
    /// When its line on standard error is due.
    enum class Due
    {
        AtStart, ///< With the first list, or soon after it.
        AtEnd, ///< When the producer is closed or, if it hangs, given up.
        Never ///< Nothing is wrong with it; `words` tell why.
    };

    std::string name; ///< Of the row, as in "TLOpen/hang".
    std::function<void(const std::filesystem::path &cti)> place; ///< Puts it into the folder of producers.
    Due due = Due::AtStart;
    std::string words; ///< A part of the line, or why there is none.
    std::string file = "bad.cti"; ///< What the line calls the file; of several, what all names hold.
    int files = 1; ///< So many lines are due.
    int cameras = -1; ///< What it lists by itself in the end; -1 where that is left open.
    bool leavesDaemon = false; ///< A process that has left its host's process group is beyond our reach.
};

/// All rows of this build: sanitizers allow no limit of memory, and instrumentation no crowd of hosts.
std::vector<HostileProducer> hostileProducers();
