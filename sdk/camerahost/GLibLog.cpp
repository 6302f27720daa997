#include <glib.h>

#include "sdk/camerahost/GLibLog.h"

#include <cstdio>
#include <mutex>

namespace {

void handleMessage(const char *, GLogLevelFlags level, const char *message, void *)
{
    if (level & G_LOG_FLAG_FATAL) // GLib ends the process after this message.
        std::fprintf(stderr, "%s\n", message);
}

} // namespace

void discardGLibMessages()
{
    static std::once_flag flag;
    std::call_once(flag, [] {
        g_log_set_always_fatal(G_LOG_LEVEL_ERROR); // G_DEBUG may have added warnings.
        g_log_set_default_handler(handleMessage, nullptr);
    });
}
