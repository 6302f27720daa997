#pragma once

/// Ends the process without running destructors of static objects. The producer is closed already, and the
/// destructors of its static objects can only crash or hang.
[[noreturn]] void exitWithoutDestructors(int status);
