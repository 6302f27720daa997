#pragma once

/// Ends the process without running the destructors of static objects, because the destructors of a
/// producer's static objects may crash or hang.
[[noreturn]] void exitWithoutDestructors(int status);
