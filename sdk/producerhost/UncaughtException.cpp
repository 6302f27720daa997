#include "sdk/producerhost/UncaughtException.h"

#include "sdk/producerhost/Leave.h"
#include "sdk/protocol/DiscoveryMessages.h"
#include "sdk/protocol/HostContract.h"
#include "sdk/protocol/LineChannel.h"
#include "sdk/protocol/Message.h"

#include <cstdlib>
#include <exception>
#include <string>

namespace {

int answerSocket = -1;

/// What was thrown, as far as it tells.
std::string describeException()
{
    const auto thrown = std::current_exception();
    if (!thrown) // As when a thread is destroyed that still runs.
        return "called std::terminate";
    std::string text = "threw an exception that nobody caught";
    try {
        std::rethrow_exception(thrown);
    } catch (const std::exception &exception) {
        text += std::string(": ") + exception.what();
    } catch (...) {
        // It is of no kind that could tell more.
    }
    return text;
}

[[noreturn]] void answerAndLeave()
{
    std::set_terminate(std::abort); // What is left to fail here is a lack of memory.
    LineChannel channel(answerSocket);
    const ProducerFailedReply reply{{"the driver", 0, describeException()}};
    const auto status = channel.send(Message(Message::noRequest, reply).toLine());
    leave(status == LineChannel::Status::Lost ? connectionLostStatus : EXIT_SUCCESS);
}

} // namespace

void answerUncaughtExceptions(int socket)
{
    answerSocket = socket;
    std::set_terminate(answerAndLeave);
}
