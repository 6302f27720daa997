#pragma once

#include "sdk/protocol/LineChannel.h"

#include <poll.h>
#include <string>

/// Blocks until the next line is complete or the connection ends. Stores the line without its line feed.
inline LineChannel::Status waitForLine(LineChannel &channel, std::string &line)
{
    for (;;) {
        const auto status = channel.tryReadLine(line);
        if (status != LineChannel::Status::Pending)
            return status;
        pollfd end{channel.descriptor(), POLLIN, 0};
        poll(&end, 1, -1);
    }
}
