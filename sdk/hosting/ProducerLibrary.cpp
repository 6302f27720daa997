#include "sdk/hosting/ProducerLibrary.h"

#include "sdk/hosting/ForeignFormat.h"

#include <array>
#include <cstring>
#include <dlfcn.h>

namespace {

template <typename Function>
bool resolve(void *library, const char *name, Function &function)
{
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

} // namespace

std::optional<Problem> ProducerLibrary::load(const char *path)
{
    // RTLD_LOCAL is needed because all producers export the same function names. If a constructor of the
    // producer throws an exception, dlopen() does not return; the handler for uncaught exceptions reports
    // the exception.
    m_library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (m_library)
        return resolveFunctions(m_library);
    const std::string error = dlerror();
    return Problem{"dlopen", 0, foreignFormat(path).value_or(error)};
}

void *ProducerLibrary::find(const char *name) const
{
    return dlsym(m_library, name);
}

std::optional<Problem> ProducerLibrary::resolveFunctions(void *library)
{
    resolve(library, "TLGetInterfaceInfo", TLGetInterfaceInfo);
    resolve(library, "GCGetLastError", GCGetLastError);
    resolve(library, listChangedFunctionName, listChangedDescriptor);

    std::string missing;
    const auto require = [&](const char *name, auto &function) {
        if (!resolve(library, name, function))
            missing += missing.empty() ? name : std::string(", ") + name;
    };
    require("GCInitLib", GCInitLib);
    require("GCCloseLib", GCCloseLib);
    require("TLOpen", TLOpen);
    require("TLClose", TLClose);
    require("TLUpdateInterfaceList", TLUpdateInterfaceList);
    require("TLGetNumInterfaces", TLGetNumInterfaces);
    require("TLGetInterfaceID", TLGetInterfaceID);
    require("TLOpenInterface", TLOpenInterface);
    require("IFClose", IFClose);
    require("IFUpdateDeviceList", IFUpdateDeviceList);
    require("IFGetNumDevices", IFGetNumDevices);
    require("IFGetDeviceID", IFGetDeviceID);
    require("IFGetDeviceInfo", IFGetDeviceInfo);
    if (missing.empty())
        return std::nullopt;
    return Problem{"dlsym", 0, "the library lacks " + missing};
}

int ProducerLibrary::listChangeDescriptor() const
{
    try {
        return listChangedDescriptor ? listChangedDescriptor() : -1;
    } catch (...) {
        return -1; // Without the descriptor, the producer is searched like any other.
    }
}

std::string ProducerLibrary::lastErrorText() const
{
    if (!GCGetLastError)
        return {};
    std::array<char, 1024> text{}; // If the text is longer, the call fails and the text is ignored.
    std::size_t size = text.size() - 1;
    GenTL::GC_ERROR code = 0;
    try {
        if (GCGetLastError(&code, text.data(), &size) != GenTL::GC_ERR_SUCCESS)
            return {};
    } catch (...) {
        return {};
    }
    return std::string(text.data(), strnlen(text.data(), text.size() - 1));
}
