#pragma once

/// Prepares the process for a producer's code: ignores the signals of terminals and closed pipes, opens
/// missing standard descriptors, limits the memory, makes all threads share one heap, and removes environment
/// variables that would change what a producer does. Call the function first, while the process has one
/// thread.
void prepareForProducer();
