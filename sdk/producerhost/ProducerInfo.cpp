#include "sdk/producerhost/ProducerInfo.h"

#include <array>
#include <cstring>

namespace {

/// The functions without which a camera cannot be opened or cannot stream. A producer also needs one of the
/// two that announce a buffer.
constexpr const char *streamFunctions[]
    = {"IFOpenDevice", "DevGetPort", "DevClose", "GCReadPort", "GCWritePort", "DevGetNumDataStreams",
        "DevGetDataStreamID", "DevOpenDataStream", "DSClose", "DSQueueBuffer", "DSStartAcquisition",
        "DSStopAcquisition", "DSRevokeBuffer", "GCRegisterEvent", "EventGetData"};

std::string readString(const ProducerLibrary &library, GenTL::PGCGetInfo function, GenTL::TL_INFO_CMD command)
{
    std::array<char, 512> text{}; // If the text is longer, the call fails and the text is ignored.
    std::size_t size = text.size() - 1;
    GenTL::INFO_DATATYPE type = GenTL::INFO_DATATYPE_STRING;
    if (library.call("GCGetInfo", function, command, &type, static_cast<void *>(text.data()), &size))
        return {};
    return std::string(text.data(), strnlen(text.data(), text.size() - 1));
}

std::uint32_t readNumber(
    const ProducerLibrary &library, GenTL::PGCGetInfo function, GenTL::TL_INFO_CMD command)
{
    std::array<std::uint32_t, 2> number{}; // Twice the space, because some producers write 64 bits.
    std::size_t size = sizeof number;
    GenTL::INFO_DATATYPE type = GenTL::INFO_DATATYPE_UINT32;
    if (library.call("GCGetInfo", function, command, &type, static_cast<void *>(number.data()), &size))
        return 0;
    return number[0];
}

} // namespace

ProducerInfoReply readProducerInfo(const ProducerLibrary &library)
{
    ProducerInfoReply info;
    if (const auto function = reinterpret_cast<GenTL::PGCGetInfo>(library.find("GCGetInfo"))) {
        info.vendor = readString(library, function, GenTL::TL_INFO_VENDOR);
        info.model = readString(library, function, GenTL::TL_INFO_MODEL);
        info.version = readString(library, function, GenTL::TL_INFO_VERSION);
        info.genTlMajor = readNumber(library, function, GenTL::TL_INFO_GENTL_VER_MAJOR);
        info.genTlMinor = readNumber(library, function, GenTL::TL_INFO_GENTL_VER_MINOR);
    }
    for (const char *name : streamFunctions) {
        if (!library.find(name))
            info.missingFunctions.emplace_back(name);
    }
    if (!library.find("DSAnnounceBuffer") && !library.find("DSAllocAndAnnounceBuffer"))
        info.missingFunctions.emplace_back("DSAnnounceBuffer");
    return info;
}
