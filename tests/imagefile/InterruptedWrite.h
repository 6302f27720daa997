#pragma once

/// The test program has its own pwrite(), which counts the calls. Before the call with this number, the
/// process ends at once, as if somebody had killed it; 0 is never. Counting begins anew.
void dieBeforeWrite(unsigned number);
