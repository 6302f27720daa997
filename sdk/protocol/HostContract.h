#pragma once

/// Descriptor at which a host process finds its end of the socket to the library.
constexpr int hostSocketDescriptor = 3;

/// Exit status of a host whose connection was closed by its own producer instead of by the library.
/// The value is not used by sysexits.h.
constexpr int connectionLostStatus = 113;
