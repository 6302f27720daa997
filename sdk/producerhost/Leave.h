#pragma once

/// Ends the process without the destructors of the driver's static objects: it is closed in order, and what
/// they still do can only crash or hang.
[[noreturn]] void leave(int status);
