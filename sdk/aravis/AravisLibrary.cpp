#include "sdk/aravis/AravisLibrary.h"

#include <arv.h>
#include <dlfcn.h>
#include <memory>

namespace {

/// Every producer has its own variables, but all use one libaravis, so an object of libaravis holds the
/// mutex. The mutex is never released, like libaravis.
std::mutex *sharedParserMutex()
{
    GObject *const owner = G_OBJECT(arv_fake_interface_get_instance());
    const GQuark key = g_quark_from_string("corvix-parser-mutex");
    auto fresh = std::make_unique<std::mutex>();
    if (g_object_replace_qdata(owner, key, nullptr, fresh.get(), nullptr, nullptr))
        return fresh.release();
    return static_cast<std::mutex *>(g_object_get_qdata(owner, key));
}

} // namespace

void keepAravisLoaded()
{
    static std::once_flag once;
    std::call_once(once, [] {
        Dl_info library{};
        if (dladdr(reinterpret_cast<const void *>(&arv_interface_get_type), &library) != 0)
            dlopen(library.dli_fname, RTLD_NOW); // This reference is never released.
    });
}

std::mutex &aravisParserMutex()
{
    static std::mutex &mutex = *sharedParserMutex();
    return mutex;
}
