#pragma once

#include "sdk/cvxcpp/Timing.h"

#include <functional>
#include <string>

/// The files and the times of a camera system.
struct SystemOptions
{
    std::string hostProgram; ///< The CvxProducerHost to start.
    std::string installRoot; ///< Relative producer directories are relative to this directory.
    std::string configurationFile; ///< CvxC.xml; need not exist.

    Milliseconds pollInterval{2000}; ///< Time between two polls for cameras.
    Milliseconds interfaceUpdateInterval{10000}; ///< Time between two updates of the list of interfaces.
    Milliseconds reuseTime{1000}; ///< A search that ended less than this ago is not repeated.
    Milliseconds searchTimeout{3000}; ///< The longest time that a caller waits for producers.
    Milliseconds replyTimeout{10000}; ///< A host that has not replied for so long is killed.
    Milliseconds firstRestartDelay{1000}; ///< Doubled with every further failure.
    Milliseconds maxRestartDelay{60000}; ///< A host that ran for so long has the first delay again.
    Milliseconds closeTimeout{1500}; ///< Time that a host has to close its producer and exit.
    Milliseconds notificationHold{250}; ///< Pause after a camera list was returned; see NotificationHold.

    /// Takes one line about a failing producer. Called on a thread of the system.
    std::function<void(const std::string &)> report;

    /// Returns the options of an installation whose library is in `libraryDirectory`.
    static SystemOptions forLibraryDirectory(const std::string &libraryDirectory);
};
