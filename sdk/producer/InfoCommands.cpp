#include "sdk/producer/InfoCommands.h"

#include "sdk/producer/LastError.h"

using namespace GenTL;

namespace {

GC_ERROR failOnlyWhenOpen()
{
    return fail(GC_ERR_NOT_AVAILABLE, "Only an open device reports this.");
}

} // namespace

GC_ERROR writeProducerInfo(const ProducerIdentity &identity, const std::filesystem::path &producerFile,
    TL_INFO_CMD command, const InfoOutput &output)
{
    switch (command) {
    case TL_INFO_ID:
        return output.writeString(identity.id);
    case TL_INFO_VENDOR:
        return output.writeString(identity.vendor);
    case TL_INFO_MODEL:
        return output.writeString(identity.model);
    case TL_INFO_VERSION:
        return output.writeString(identity.version);
    case TL_INFO_TLTYPE:
        return output.writeString(identity.tlType);
    case TL_INFO_NAME:
        return output.writeString(producerFile.filename().string());
    case TL_INFO_PATHNAME:
        return output.writeString(producerFile.string());
    case TL_INFO_DISPLAYNAME:
        return output.writeString(identity.displayName);
    case TL_INFO_CHAR_ENCODING:
        return output.writeInt32(TL_CHAR_ENCODING_UTF8);
    case TL_INFO_GENTL_VER_MAJOR:
        return output.writeUint32(genTlMajor);
    case TL_INFO_GENTL_VER_MINOR:
        return output.writeUint32(genTlMinor);
    default:
        return failUnknownCommand(command);
    }
}

GC_ERROR writeInterfaceInfo(
    const InterfaceRecord &record, INTERFACE_INFO_CMD command, const InfoOutput &output)
{
    switch (command) {
    case INTERFACE_INFO_ID:
        return output.writeString(record.id);
    case INTERFACE_INFO_DISPLAYNAME:
        return output.writeString(record.displayName);
    case INTERFACE_INFO_TLTYPE:
        return output.writeString(record.tlType);
    default:
        return failUnknownCommand(command);
    }
}

GC_ERROR writeDeviceInfo(const DeviceRecord &record, DEVICE_INFO_CMD command, const InfoOutput &output)
{
    switch (command) {
    case DEVICE_INFO_ID:
        return output.writeString(record.id);
    case DEVICE_INFO_VENDOR:
        return output.writeString(record.vendor);
    case DEVICE_INFO_MODEL:
        return output.writeString(record.model);
    case DEVICE_INFO_TLTYPE:
        return output.writeString(record.tlType);
    case DEVICE_INFO_DISPLAYNAME:
        return output.writeString(record.displayName);
    case DEVICE_INFO_ACCESS_STATUS:
        return output.writeInt32(record.accessStatus);
    case DEVICE_INFO_USER_DEFINED_NAME:
        return output.writeString(record.userName);
    case DEVICE_INFO_SERIAL_NUMBER:
        return output.writeString(record.serial);
    case DEVICE_INFO_VERSION:
        return record.version.empty() ? failOnlyWhenOpen() : output.writeString(record.version);
    case DEVICE_INFO_TIMESTAMP_FREQUENCY:
        return failOnlyWhenOpen();
    default:
        return failUnknownCommand(command);
    }
}
