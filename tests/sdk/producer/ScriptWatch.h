#pragma once

/// Returns a new eventfd that becomes readable whenever the script has changed. If `isFlooding`, it is always
/// readable. A thread that runs until the process ends watches the script.
int watchScript(bool isFlooding);
