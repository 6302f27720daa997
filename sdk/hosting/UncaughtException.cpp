#include "sdk/hosting/UncaughtException.h"

#include "sdk/hosting/ProcessExit.h"
#include "sdk/protocol/DiscoveryMessages.h"
#include "sdk/protocol/HostContract.h"
#include "sdk/protocol/LineChannel.h"
#include "sdk/protocol/Message.h"

#include <cstdlib>
#include <exception>
#include <string>
#include <unistd.h>

namespace {

int replySocket = -1;

std::string describeException()
{
    const auto exception = std::current_exception();
    if (!exception) // One possible cause is the destruction of a running std::thread.
        return "called std::terminate";
    const std::string text = "threw an uncaught exception";
    try {
        std::rethrow_exception(exception);
    } catch (const std::exception &thrown) {
        return text + ": " + thrown.what();
    } catch (...) {
        return text;
    }
}

[[noreturn]] void waitForExit()
{
    for (;;)
        pause();
}

[[noreturn]] void reportAndExit()
{
    // If several threads fail at the same time, none of them may end the process before the first thread
    // has sent its report.
    if (std::set_terminate(waitForExit) == waitForExit)
        waitForExit();
    LineChannel channel(replySocket);
    const ProducerFailedReply reply{{"the producer", 0, describeException()}};
    const auto status = channel.send(Message(Message::noRequest, reply).toLine());
    exitWithoutDestructors(status == LineChannel::Status::Lost ? connectionLostStatus : EXIT_SUCCESS);
}

} // namespace

void reportUncaughtExceptions(int socket)
{
    replySocket = socket;
    std::set_terminate(reportAndExit);
}
