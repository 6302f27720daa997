#pragma once

#include "tools/kit/editors/StreamPauser.h"
#include "tools/kit/live/LiveStream.h"

#include <utility>

/// Lets the editors of features pause the stream of a tool.
class LivePauser final : public StreamPauser
{
public:
    explicit LivePauser(LiveStream &stream) : m_stream(stream) { }

    void pauseFor(CameraConnection::Call call, QObject *context, CameraConnection::Done done) override
    {
        m_stream.pauseFor(std::move(call), context, std::move(done));
    }

private:
    LiveStream &m_stream;
};
