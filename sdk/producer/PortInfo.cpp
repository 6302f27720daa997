#include "sdk/producer/PortInfo.h"

#include "sdk/producer/LastError.h"

using namespace GenTL;

namespace {

GC_ERROR failNotKnown()
{
    return fail(GC_ERR_NOT_AVAILABLE, "This is not known about the register description.");
}

GC_ERROR writeVersionPart(const std::optional<PortUrl::Version> &version,
    std::int32_t PortUrl::Version::*part, const InfoOutput &output)
{
    return version ? output.writeInt32((*version).*part) : failNotKnown();
}

GC_ERROR writeIfKnown(const std::optional<std::uint64_t> &value, const InfoOutput &output)
{
    return value ? output.writeUint64(*value) : failNotKnown();
}

} // namespace

GC_ERROR writePortInfo(const PortDescription &port, PORT_INFO_CMD command, const InfoOutput &output)
{
    switch (command) {
    case PORT_INFO_ID:
        return output.writeString(port.id);
    case PORT_INFO_VENDOR:
        return output.writeString(port.vendor);
    case PORT_INFO_MODEL:
        return output.writeString(port.model);
    case PORT_INFO_TLTYPE:
        return output.writeString(port.tlType);
    case PORT_INFO_MODULE:
        return output.writeString(port.module);
    case PORT_INFO_LITTLE_ENDIAN:
        return output.writeBool8(!port.isBigEndian);
    case PORT_INFO_BIG_ENDIAN:
        return output.writeBool8(port.isBigEndian);
    case PORT_INFO_ACCESS_READ:
        return output.writeBool8(port.canRead);
    case PORT_INFO_ACCESS_WRITE:
        return output.writeBool8(port.canWrite);
    case PORT_INFO_ACCESS_NA:
        return output.writeBool8(!port.canRead && !port.canWrite);
    case PORT_INFO_ACCESS_NI:
        return output.writeBool8(false);
    case PORT_INFO_VERSION:
        return output.writeString(port.version);
    case PORT_INFO_PORTNAME:
        return output.writeString(port.portName);
    default:
        return failUnknownCommand(command);
    }
}

GC_ERROR writeUrlInfo(const PortUrl &url, URL_INFO_CMD command, const InfoOutput &output)
{
    switch (command) {
    case URL_INFO_URL:
        return output.writeString(url.url);
    case URL_INFO_SCHEMA_VER_MAJOR:
        return writeVersionPart(url.schemaVersion, &PortUrl::Version::major, output);
    case URL_INFO_SCHEMA_VER_MINOR:
        return writeVersionPart(url.schemaVersion, &PortUrl::Version::minor, output);
    case URL_INFO_FILE_VER_MAJOR:
        return writeVersionPart(url.fileVersion, &PortUrl::Version::major, output);
    case URL_INFO_FILE_VER_MINOR:
        return writeVersionPart(url.fileVersion, &PortUrl::Version::minor, output);
    case URL_INFO_FILE_VER_SUBMINOR:
        return writeVersionPart(url.fileVersion, &PortUrl::Version::subminor, output);
    case URL_INFO_FILE_SHA1_HASH:
        return failNotKnown();
    case URL_INFO_FILE_REGISTER_ADDRESS:
        return writeIfKnown(url.address, output);
    case URL_INFO_FILE_SIZE:
        return writeIfKnown(url.size, output);
    case URL_INFO_SCHEME:
        return url.scheme ? output.writeInt32(*url.scheme) : failNotKnown();
    case URL_INFO_FILENAME:
        return output.writeString(url.fileName);
    default:
        return failUnknownCommand(command);
    }
}
