#pragma once

/// Number of the descriptor that is the host's end of the socket to the library.
constexpr int hostSocketDescriptor = 3;

/// Exit status of a host if its own producer, and not the library, closed the connection. The header
/// sysexits.h does not use this value.
constexpr int connectionLostStatus = 113;
