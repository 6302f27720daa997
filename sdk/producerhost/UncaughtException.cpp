#include "sdk/producerhost/UncaughtException.h"

#include "sdk/producerhost/Leave.h"
#include "sdk/producerhost/LineSocket.h"
#include "sdk/producerhost/ProducerAnswerWriter.h"

#include <cstdlib>
#include <exception>
#include <string>

namespace {

int answerSocket = -1;

/// What was thrown, as far as it tells.
std::string describeException()
{
    std::string text = "threw an exception that nobody caught";
    try {
        if (const auto exception = std::current_exception())
            std::rethrow_exception(exception);
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
    LineSocket socket(answerSocket);
    if (!socket.write(errorAnswer({"the driver", 0, describeException()})))
        std::abort();
    leave(EXIT_SUCCESS);
}

} // namespace

void answerUncaughtExceptions(int socket)
{
    answerSocket = socket;
    std::set_terminate(answerAndLeave);
}
