#pragma once

/// Installs a handler for uncaught exceptions, for example from a thread or a constructor of the producer.
/// The handler sends the exception's text through the socket in a ProducerFailedReply and ends the process.
void reportUncaughtExceptions(int socket);
