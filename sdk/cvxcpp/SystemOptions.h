#pragma once

#include "sdk/device/DeviceOptions.h"
#include "sdk/process/Timing.h"

#include <functional>
#include <string>

/// The files, intervals and timeouts of a camera system.
struct SystemOptions
{
    std::string hostProgram; ///< Path of CvxProducerHost.
    std::string installRoot; ///< Relative producer directories are relative to this directory.
    std::string configurationFile; ///< Path of CvxC.xml, which need not exist.

    Milliseconds pollInterval{2000}; ///< Time between the starts of two background searches.
    Milliseconds interfaceUpdateInterval{10000}; ///< Time between two updates of the list of interfaces.
    Milliseconds listReuse{250}; ///< No list is requested within this time after the last one.
    Milliseconds interfaceReuse{1000}; ///< The same for the update of one interface.

    Milliseconds shortSearch{200}; ///< Time that an interface has to answer the first search or a caller.
    Milliseconds backgroundSearch{1000}; ///< A GigE Vision camera may wait a second before it answers.
    Milliseconds refreshTimeout{50}; ///< The longest time that a caller waits for a newer list.
    Milliseconds searchTimeout{3000}; ///< The longest time that a caller waits for the first list.
    Milliseconds replyTimeout{10000}; ///< A host that does not reply within this time is killed.
    Milliseconds firstRestartDelay{1000}; ///< The delay is doubled with every further failure.
    Milliseconds maxRestartDelay{60000}; ///< Maximum delay; see RestartPolicy.
    Milliseconds closeTimeout{1500}; ///< Time that a host has to close its producer and exit.
    Milliseconds searchEndTimeout{150}; ///< At the end, time that a running search has to end.
    Milliseconds notificationHold{250}; ///< Delay after a camera list was returned; see NotificationHold.

    DeviceOptions device; ///< The options of opened cameras.

    /// Called with one line about a failing producer, on a thread of the system.
    std::function<void(const std::string &)> report;

    /// Returns the options of an installation whose library is in `libraryDirectory`.
    static SystemOptions forLibraryDirectory(const std::string &libraryDirectory);
};
