#pragma once

/// If a new descriptor has the number of standard input, output or error, moves the descriptor to a higher
/// number. Returns the resulting descriptor, which is unchanged if it is negative or if no other number is
/// free. A new descriptor can get such a number if the program was started without standard descriptors.
/// The output of the program would then be written to our descriptor.
int aboveStandard(int descriptor);
