#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// Describes a hostile producer file and what the library has to report about the file.
struct HostileProducer
{
    /// When the line about the producer is reported.
    enum class Due
    {
        AtStart, ///< The line is reported with the first camera list, or soon after.
        AtEnd, ///< The line is reported when the producer is closed, or killed if it hangs.
        Never ///< No line is reported, because the library accepts this behaviour.
    };

    std::string name; ///< For example "TLOpen/untouched".
    std::function<void(const std::filesystem::path &cti)> place; ///< Creates the producer file in `cti`.
    Due due = Due::AtStart;
    std::string text; ///< Each reported line contains this text.
    int cameras = -1; ///< The expected number of cameras of the producer; -1 if any number is accepted.
    int lines = 1; ///< The expected number of lines; ignored if `due` is Never.
    std::string file = "bad.cti"; ///< The end of the file name in each line.
    bool leavesDaemon = false; ///< True if a process outside the host's process group keeps running.
};

/// Returns all hostile producers. A build with a sanitizer omits one of them, because the sanitizer needs
/// more address space than the host's limit allows.
std::vector<HostileProducer> hostileProducers();
