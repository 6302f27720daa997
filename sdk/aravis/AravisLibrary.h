#pragma once

#include <mutex>

/// Keeps libaravis loaded after the producer was unloaded. GLib keeps pointers into libaravis, and libusb,
/// which libaravis uses, keeps a thread until the process ends. Every part that uses libaravis calls this
/// function first. Any thread may call it.
void keepAravisLoaded();

/// Returns the mutex that is locked while libaravis opens a camera, because its parser of register
/// descriptions cannot run in two threads at the same time. All producers in the process have the same mutex.
/// Call keepAravisLoaded() first. Any thread may call it.
std::mutex &aravisParserMutex();
