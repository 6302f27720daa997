#pragma once

/// Moves a new descriptor away from those of standard input, output and error, which a program may have been
/// started without: what anybody prints would go into it. It stays where it is when there is no other left,
/// or when it is none.
int aboveStandard(int descriptor);
