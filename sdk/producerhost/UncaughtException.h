#pragma once

/// From here on an exception that nobody catches, as in a constructor or a thread of the driver, ends the
/// process with an answer that tells what it was.
void answerUncaughtExceptions(int socket);
