#pragma once

#include <chrono>
#include <functional>
#include <string>

/// Where a camera system finds what it needs, and its times.
struct SystemOptions
{
    using Milliseconds = std::chrono::milliseconds;

    std::string hostProgram; ///< The CvxProducerHost to start.
    std::string installRoot; ///< Relative producer directories start here.
    std::string configurationFile; ///< CvxC.xml; need not exist.

    Milliseconds lookInterval{2000}; ///< From one look for cameras to the next.
    Milliseconds interfaceInterval{10000}; ///< From one look for interfaces to the next.
    Milliseconds reuseTime{1000}; ///< A search that ended less than this ago counts as a new one.
    Milliseconds answerWait{3000}; ///< The longest a list waits for a producer.
    Milliseconds answerLimit{10000}; ///< A host that has not answered for so long is killed.
    Milliseconds firstRestart{1000}; ///< Doubled with every further failure …
    Milliseconds longestRestart{
        60000}; ///< … up to this; a host that lived for so long starts from the first again.
    Milliseconds endWait{1500}; ///< Given to a host that was asked to end.
    Milliseconds announceDelay{250}; ///< Kept after a list was handed out, see Announcer.

    /// Takes one line of text about a failing producer; called on a thread of the system.
    std::function<void(const std::string &)> report;

    /// The options of an installation, whose library lies in `libraryDirectory`.
    static SystemOptions forLibraryDirectory(const std::string &libraryDirectory);
};
