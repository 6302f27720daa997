#pragma once

/// Discards the messages of GLib and the libraries above it: a faulty register description causes thousands
/// of them, and the environment could make the process end at the first one. What matters to the caller is
/// reported as an error of the call. Takes effect once per process.
void discardGLibMessages();
