#include "sdk/producerhost/ProducerLibrary.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <dlfcn.h>
#include <elf.h>
#include <fstream>

namespace {

template <typename Function>
bool resolve(void *library, const char *name, Function &function)
{
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

using ElfIdentity = std::array<char, 20>; // The start of the ELF header, up to the machine field.

ElfIdentity elfIdentity(const char *path)
{
    ElfIdentity identity{};
    std::ifstream(path, std::ios::binary).read(identity.data(), identity.size());
    return identity;
}

/// Returns true if the file is an ELF file for another processor architecture. In this case, the text of
/// dlerror() is misleading: it says that the file does not exist.
bool isForAnotherMachine(const char *path)
{
    const auto identity = elfIdentity(path), own = elfIdentity("/proc/self/exe");
    const auto differs = [&](std::size_t index) { return identity[index] != own[index]; };
    const bool isElf = std::equal(own.begin(), own.begin() + SELFMAG, identity.begin());
    return isElf
        && (differs(EI_CLASS) || differs(EI_DATA) || differs(offsetof(Elf64_Ehdr, e_machine))
            || differs(offsetof(Elf64_Ehdr, e_machine) + 1));
}

} // namespace

std::optional<Problem> ProducerLibrary::load(const char *path)
{
    // RTLD_LOCAL is needed because all producers export the same function names. If a constructor of the
    // producer throws an exception, dlopen() does not return; the handler for uncaught exceptions reports
    // the exception.
    if (void *const library = dlopen(path, RTLD_NOW | RTLD_LOCAL))
        return resolveFunctions(library);
    const std::string error = dlerror();
    if (isForAnotherMachine(path))
        return Problem{"dlopen", 0, "the library is for another processor architecture"};
    return Problem{"dlopen", 0, error};
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
