#pragma once

/// Installs a handler for exceptions that nobody catches, for example in a thread or a constructor of the
/// producer. The handler sends the exception's text as a ProducerFailedReply and ends the process.
void reportUncaughtExceptions(int socket);
