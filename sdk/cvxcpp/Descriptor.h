#pragma once

/// Moves a new descriptor away from those of standard input, output and error, and returns the new number. A
/// program may have been started without these three; whatever it prints would go into our descriptor.
/// Returns the descriptor itself if it is negative or if no other number is free.
int aboveStandard(int descriptor);
