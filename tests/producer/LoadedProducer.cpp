#include "tests/producer/LoadedProducer.h"

#include <dlfcn.h>
#include <stdexcept>

namespace {

void *load(const std::filesystem::path &file)
{
    void *const library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library)
        throw std::runtime_error(dlerror());
    return library;
}

} // namespace

LoadedProducer::LoadedProducer(const std::filesystem::path &file)
    : m_file(std::filesystem::canonical(file)), m_library(load(m_file))
{ }

LoadedProducer::~LoadedProducer()
{
    dlclose(m_library);
}

void *LoadedProducer::symbol(const std::string &name) const
{
    void *const found = dlsym(m_library, name.c_str());
    if (!found)
        throw std::runtime_error(m_file.string() + " does not export " + name);
    return found;
}

std::vector<std::string> discoveryFunctions()
{
#define CORVIX_NAME(name) #name,
    return {CORVIX_DISCOVERY_FUNCTIONS(CORVIX_NAME)};
#undef CORVIX_NAME
}

const std::vector<std::string> &unsupportedFunctions()
{
    static const std::vector<std::string> names{"GCReadPort", "GCWritePort", "GCGetPortURL", "GCGetPortInfo",
        "GCGetNumPortURLs", "GCGetPortURLInfo", "GCReadPortStacked", "GCWritePortStacked", "GCRegisterEvent",
        "GCUnregisterEvent", "EventGetData", "EventGetDataInfo", "EventGetInfo", "EventFlush", "EventKill",
        "IFOpenDevice", "DevGetPort", "DevGetNumDataStreams", "DevGetDataStreamID", "DevOpenDataStream",
        "DevGetInfo", "DevClose", "DevGetParentIF", "DSAnnounceBuffer", "DSAllocAndAnnounceBuffer",
        "DSFlushQueue", "DSStartAcquisition", "DSStopAcquisition", "DSGetInfo", "DSGetBufferID", "DSClose",
        "DSRevokeBuffer", "DSQueueBuffer", "DSGetBufferInfo", "DSGetBufferChunkData", "DSGetParentDev",
        "DSGetNumBufferParts", "DSGetBufferPartInfo", "DSAnnounceCompositeBuffer", "DSGetBufferInfoStacked",
        "DSGetBufferPartInfoStacked", "DSGetNumFlows", "DSGetFlowInfo", "DSGetNumBufferSegments",
        "DSGetBufferSegmentInfo"};
    return names;
}
