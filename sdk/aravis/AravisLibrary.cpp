#include "sdk/aravis/AravisLibrary.h"

#include <arv.h>
#include <dlfcn.h>
#include <mutex>

void keepAravisLoaded()
{
    static std::once_flag once;
    std::call_once(once, [] {
        Dl_info library{};
        if (dladdr(reinterpret_cast<const void *>(&arv_interface_get_type), &library) != 0)
            dlopen(library.dli_fname, RTLD_NOW); // This reference is never released.
    });
}
