#pragma once

#include "tests/kit/camera/TestDevice.h"
#include "tests/kit/live/ScriptedStream.h"

/// A scripted device with streams, and a record of what was done with it.
class StreamingDevice : public TestDevice
{
public:
    /// The next StartStream() fails with this result.
    void failNextStart(const CvxCPP::CvxResult &result);

    /// Close() does not end the stream, as if the producer did not answer.
    void hangOnClose();

    /// Returns the stream that was started last; null if there is none.
    std::shared_ptr<ScriptedStream> stream() const;

    /// Adds a text to the record.
    void note(const std::string &text);

    /// Returns for example "start 8", "stop", and what note() has added, separated by ", ".
    std::string record() const;

    CvxCPP::CvxResult StartStream(
        unsigned buffers, CvxCPP::StreamPolicy policy, std::shared_ptr<CvxCPP::Stream> &stream) override;
    CvxCPP::CvxResult Close() override;

private:
    mutable std::mutex m_mutex;
    CvxCPP::CvxResult m_startFailure;
    bool m_hangsOnClose = false;
    std::weak_ptr<ScriptedStream> m_stream;
    std::string m_record;
};
