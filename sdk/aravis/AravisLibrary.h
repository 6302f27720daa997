#pragma once

/// Keeps libaravis loaded after the producer was unloaded. GLib keeps pointers into libaravis, and libusb,
/// which libaravis uses, keeps a thread until the process ends. Every part that uses libaravis calls this
/// function first. Any thread may call it.
void keepAravisLoaded();
