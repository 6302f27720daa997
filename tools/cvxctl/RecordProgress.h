#pragma once

#include "CvxCPP/Device.h"
#include "sdk/imagefile/Recorder.h"

#include <chrono>
#include <string>

/// Shows on standard error how a recording goes on: one line that is replaced every second. Prints nothing if
/// standard error is no terminal.
class RecordProgress
{
public:
    RecordProgress(const CvxCPP::Stream &stream, const Recorder &recorder, std::string file);
    /// Ends the line.
    ~RecordProgress();
    RecordProgress(const RecordProgress &) = delete;
    RecordProgress &operator=(const RecordProgress &) = delete;

    /// Prints the line if the last one is older than a second.
    void update();

    /// Ends the line, so that a message can follow.
    void endLine();

private:
    const CvxCPP::Stream &m_stream;
    const Recorder &m_recorder;
    const std::string m_file;
    const bool m_isTerminal;
    bool m_hasLine = false;
    std::chrono::steady_clock::time_point m_next;
};
