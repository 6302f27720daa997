// This file defines the exported C functions of ports. The handle of every module is a port, and so is the
// handle of an open camera. GenTLDevice.h names the standard that defines what each function returns.

#include "sdk/producer/Guarded.h"
#include "sdk/producer/PortInfo.h"

using namespace GenTL;

namespace {

/// Runs the body with the registers of the module that the handle identifies.
template <typename Body>
GC_ERROR withPort(PORT_HANDLE handle, Body &&body) noexcept
{
    return with<Module>(handle, [&](Module &module) {
        Port *const port = module.port();
        return port ? body(*port) : Producer::instance().failHandle("a port");
    });
}

/// Accesses registers in the order of the entries, and writes the number of entries that succeeded.
template <typename Access>
GC_ERROR accessAll(
    PORT_HANDLE handle, const PORT_REGISTER_STACK_ENTRY *entries, std::size_t *count, Access &&access)
{
    return withPort(handle, [&](Port &port) {
        if (!entries || !count)
            return failMissingArgument();
        const std::size_t wanted = *count;
        for (*count = 0; *count < wanted; ++*count) {
            const PORT_REGISTER_STACK_ENTRY entry = entries[*count];
            if (!entry.pBuffer)
                return failMissingArgument();
            access(port, entry);
        }
        return GC_ERR_SUCCESS;
    });
}

} // namespace

extern "C" {

GENTL_FUNCTION GCReadPort(PORT_HANDLE hPort, std::uint64_t iAddress, void *pBuffer, std::size_t *piSize)
{
    return withPort(hPort, [&](Port &port) {
        if (!pBuffer || !piSize)
            return failMissingArgument();
        port.read(iAddress, pBuffer, *piSize);
        return GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION GCWritePort(
    PORT_HANDLE hPort, std::uint64_t iAddress, const void *pBuffer, std::size_t *piSize)
{
    return withPort(hPort, [&](Port &port) {
        if (!pBuffer || !piSize)
            return failMissingArgument();
        port.write(iAddress, pBuffer, *piSize);
        return GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION GCReadPortStacked(
    PORT_HANDLE hPort, PORT_REGISTER_STACK_ENTRY *pEntries, std::size_t *piNumEntries)
{
    return accessAll(hPort, pEntries, piNumEntries, [](Port &port, const PORT_REGISTER_STACK_ENTRY &entry) {
        port.read(entry.Address, entry.pBuffer, entry.Size);
    });
}

GENTL_FUNCTION GCWritePortStacked(
    PORT_HANDLE hPort, PORT_REGISTER_STACK_ENTRY *pEntries, std::size_t *piNumEntries)
{
    return accessAll(hPort, pEntries, piNumEntries, [](Port &port, const PORT_REGISTER_STACK_ENTRY &entry) {
        port.write(entry.Address, entry.pBuffer, entry.Size);
    });
}

GENTL_FUNCTION GCGetPortInfo(
    PORT_HANDLE hPort, PORT_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return withPort(hPort, [&](Port &port) {
        const InfoOutput output(piType, pBuffer, piSize);
        return output.isComplete() ? writePortInfo(port.description(), iInfoCmd, output)
                                   : failMissingArgument();
    });
}

GENTL_FUNCTION GCGetPortURL(PORT_HANDLE hPort, char *sURL, std::size_t *piSize)
{
    return withPort(hPort, [&](Port &port) {
        const InfoOutput output(sURL, piSize);
        if (!output.isComplete())
            return failMissingArgument();
        std::vector<std::string> urls;
        for (const PortUrl &url : port.urls())
            urls.push_back(url.url);
        return output.writeStringList(urls);
    });
}

GENTL_FUNCTION GCGetNumPortURLs(PORT_HANDLE hPort, std::uint32_t *piNumURLs)
{
    return withPort(hPort, [&](Port &port) {
        if (!piNumURLs)
            return failMissingArgument();
        *piNumURLs = static_cast<std::uint32_t>(port.urls().size());
        return GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION GCGetPortURLInfo(PORT_HANDLE hPort, std::uint32_t iURLIndex, URL_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return withPort(hPort, [&](Port &port) {
        const InfoOutput output(piType, pBuffer, piSize);
        if (!output.isComplete())
            return failMissingArgument();
        const std::vector<PortUrl> urls = port.urls();
        return iURLIndex < urls.size() ? writeUrlInfo(urls[iURLIndex], iInfoCmd, output)
                                       : failIndex(iURLIndex, static_cast<std::uint32_t>(urls.size()));
    });
}

} // extern "C"
