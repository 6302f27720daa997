#pragma once

/// Makes Ctrl-C and SIGTERM end the command in an orderly way. A second signal ends the program at once,
/// which leaves no camera locked either, because the SDK's processes notice it.
void catchInterruption();

/// Returns true after the first signal. Any thread may call the function.
bool isInterrupted();
