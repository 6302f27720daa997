#pragma once

#include "sdk/gentl/GenTL.h"

/// The part of the GenICam GenTL C interface that opened devices need: ports, events, devices, data streams
/// and buffers. GenTL.h describes the source and the notation.
namespace GenTL {

// ---- Used Data Types ---------------------------------------------------------------------------------

using DEV_HANDLE = void *;
using DS_HANDLE = void *;
using PORT_HANDLE = void *;
using BUFFER_HANDLE = void *;
using EVENT_HANDLE = void *;
using EVENTSRC_HANDLE = void *;

using DEVICE_ACCESS_FLAGS = std::int32_t;
using PORT_INFO_CMD = std::int32_t;
using URL_INFO_CMD = std::int32_t;
using URL_SCHEME_ID = std::int32_t;
using EVENT_TYPE = std::int32_t;
using EVENT_INFO_CMD = std::int32_t;
using EVENT_DATA_INFO_CMD = std::int32_t;
using STREAM_INFO_CMD = std::int32_t;
using BUFFER_INFO_CMD = std::int32_t;
using BUFFER_PART_INFO_CMD = std::int32_t;
using ACQ_START_FLAGS = std::int32_t;
using ACQ_STOP_FLAGS = std::int32_t;
using ACQ_QUEUE_TYPE = std::int32_t;

// ---- Device Enumerations -----------------------------------------------------------------------------

constexpr DEVICE_ACCESS_FLAGS DEVICE_ACCESS_UNKNOWN = 0;
constexpr DEVICE_ACCESS_FLAGS DEVICE_ACCESS_NONE = 1;
constexpr DEVICE_ACCESS_FLAGS DEVICE_ACCESS_READONLY = 2;
constexpr DEVICE_ACCESS_FLAGS DEVICE_ACCESS_CONTROL = 3;
constexpr DEVICE_ACCESS_FLAGS DEVICE_ACCESS_EXCLUSIVE = 4;

// ---- Port Enumerations -------------------------------------------------------------------------------

constexpr PORT_INFO_CMD PORT_INFO_ID = 0; // STRING
constexpr PORT_INFO_CMD PORT_INFO_VENDOR = 1; // STRING
constexpr PORT_INFO_CMD PORT_INFO_MODEL = 2; // STRING
constexpr PORT_INFO_CMD PORT_INFO_TLTYPE = 3; // STRING
constexpr PORT_INFO_CMD PORT_INFO_MODULE = 4; // STRING, one of the module names below
constexpr PORT_INFO_CMD PORT_INFO_LITTLE_ENDIAN = 5; // BOOL8
constexpr PORT_INFO_CMD PORT_INFO_BIG_ENDIAN = 6; // BOOL8
constexpr PORT_INFO_CMD PORT_INFO_ACCESS_READ = 7; // BOOL8
constexpr PORT_INFO_CMD PORT_INFO_ACCESS_WRITE = 8; // BOOL8
constexpr PORT_INFO_CMD PORT_INFO_ACCESS_NA = 9; // BOOL8
constexpr PORT_INFO_CMD PORT_INFO_ACCESS_NI = 10; // BOOL8
constexpr PORT_INFO_CMD PORT_INFO_VERSION = 11; // STRING
constexpr PORT_INFO_CMD PORT_INFO_PORTNAME = 12; // STRING, name of the port in the register description

constexpr const char *systemModuleName = "TLSystem";
constexpr const char *interfaceModuleName = "TLInterface";
constexpr const char *deviceModuleName = "TLDevice";
constexpr const char *dataStreamModuleName = "TLDataStream";
constexpr const char *bufferModuleName = "TLBuffer";
constexpr const char *remoteDeviceModuleName = "Device";

constexpr URL_INFO_CMD URL_INFO_URL = 0; // STRING; since 1.1 like the next five
constexpr URL_INFO_CMD URL_INFO_SCHEMA_VER_MAJOR = 1; // INT32
constexpr URL_INFO_CMD URL_INFO_SCHEMA_VER_MINOR = 2; // INT32
constexpr URL_INFO_CMD URL_INFO_FILE_VER_MAJOR = 3; // INT32
constexpr URL_INFO_CMD URL_INFO_FILE_VER_MINOR = 4; // INT32
constexpr URL_INFO_CMD URL_INFO_FILE_VER_SUBMINOR = 5; // INT32
constexpr URL_INFO_CMD URL_INFO_FILE_SHA1_HASH = 6; // BUFFER of 20 bytes; since 1.4
constexpr URL_INFO_CMD URL_INFO_FILE_REGISTER_ADDRESS = 7; // UINT64; since 1.5 like the next three
constexpr URL_INFO_CMD URL_INFO_FILE_SIZE = 8; // UINT64
constexpr URL_INFO_CMD URL_INFO_SCHEME = 9; // INT32, URL_SCHEME_ID
constexpr URL_INFO_CMD URL_INFO_FILENAME = 10; // STRING

constexpr URL_SCHEME_ID URL_SCHEME_LOCAL = 0;
constexpr URL_SCHEME_ID URL_SCHEME_HTTP = 1;
constexpr URL_SCHEME_ID URL_SCHEME_FILE = 2;

// ---- Event Enumerations ------------------------------------------------------------------------------

constexpr EVENT_TYPE EVENT_ERROR = 0;
constexpr EVENT_TYPE EVENT_NEW_BUFFER = 1; // Data streams only.
constexpr EVENT_TYPE EVENT_FEATURE_INVALIDATE = 2;
constexpr EVENT_TYPE EVENT_FEATURE_CHANGE = 3;
constexpr EVENT_TYPE EVENT_REMOTE_DEVICE = 4;
constexpr EVENT_TYPE EVENT_MODULE = 5; // since 1.4

constexpr EVENT_INFO_CMD EVENT_EVENT_TYPE = 0; // INT32
constexpr EVENT_INFO_CMD EVENT_NUM_IN_QUEUE = 1; // SIZET
constexpr EVENT_INFO_CMD EVENT_NUM_FIRED = 2; // UINT64
constexpr EVENT_INFO_CMD EVENT_SIZE_MAX = 3; // SIZET; since 1.2
constexpr EVENT_INFO_CMD EVENT_INFO_DATA_SIZE_MAX = 4; // SIZET; since 1.2

constexpr EVENT_DATA_INFO_CMD EVENT_DATA_ID = 0;
constexpr EVENT_DATA_INFO_CMD EVENT_DATA_VALUE = 1;
constexpr EVENT_DATA_INFO_CMD EVENT_DATA_NUMID = 2; // UINT64; since 1.3

// ---- Data Stream Enumerations ------------------------------------------------------------------------

constexpr STREAM_INFO_CMD STREAM_INFO_ID = 0; // STRING
constexpr STREAM_INFO_CMD STREAM_INFO_NUM_DELIVERED = 1; // UINT64, since the last start
constexpr STREAM_INFO_CMD STREAM_INFO_NUM_UNDERRUN = 2; // UINT64, since the stream was opened
constexpr STREAM_INFO_CMD STREAM_INFO_NUM_ANNOUNCED = 3; // SIZET
constexpr STREAM_INFO_CMD STREAM_INFO_NUM_QUEUED = 4; // SIZET, including the buffer that is being filled
constexpr STREAM_INFO_CMD STREAM_INFO_NUM_AWAIT_DELIVERY = 5; // SIZET
constexpr STREAM_INFO_CMD STREAM_INFO_NUM_STARTED = 6; // UINT64, since the stream was opened
constexpr STREAM_INFO_CMD STREAM_INFO_PAYLOAD_SIZE = 7; // SIZET
constexpr STREAM_INFO_CMD STREAM_INFO_IS_GRABBING = 8; // BOOL8
constexpr STREAM_INFO_CMD STREAM_INFO_DEFINES_PAYLOADSIZE = 9; // BOOL8
constexpr STREAM_INFO_CMD STREAM_INFO_TLTYPE = 10; // STRING
constexpr STREAM_INFO_CMD STREAM_INFO_NUM_CHUNKS_MAX = 11; // SIZET; since 1.3
constexpr STREAM_INFO_CMD STREAM_INFO_BUF_ANNOUNCE_MIN = 12; // SIZET; since 1.3
constexpr STREAM_INFO_CMD STREAM_INFO_BUF_ALIGNMENT = 13; // SIZET; since 1.3

constexpr ACQ_START_FLAGS ACQ_START_FLAGS_DEFAULT = 0;
constexpr ACQ_STOP_FLAGS ACQ_STOP_FLAGS_DEFAULT = 0; // The image in progress is finished first.
constexpr ACQ_STOP_FLAGS ACQ_STOP_FLAGS_KILL = 1; // The image in progress is delivered incomplete.

constexpr ACQ_QUEUE_TYPE ACQ_QUEUE_INPUT_TO_OUTPUT = 0;
constexpr ACQ_QUEUE_TYPE ACQ_QUEUE_OUTPUT_DISCARD = 1;
constexpr ACQ_QUEUE_TYPE ACQ_QUEUE_ALL_TO_INPUT = 2;
constexpr ACQ_QUEUE_TYPE ACQ_QUEUE_UNQUEUED_TO_INPUT = 3;
constexpr ACQ_QUEUE_TYPE ACQ_QUEUE_ALL_DISCARD = 4;

// ---- Buffer Enumerations -----------------------------------------------------------------------------

constexpr BUFFER_INFO_CMD BUFFER_INFO_BASE = 0; // PTR
constexpr BUFFER_INFO_CMD BUFFER_INFO_SIZE = 1; // SIZET
constexpr BUFFER_INFO_CMD BUFFER_INFO_USER_PTR = 2; // PTR
constexpr BUFFER_INFO_CMD BUFFER_INFO_TIMESTAMP = 3; // UINT64, ticks of the camera
constexpr BUFFER_INFO_CMD BUFFER_INFO_NEW_DATA = 4; // BOOL8
constexpr BUFFER_INFO_CMD BUFFER_INFO_IS_QUEUED = 5; // BOOL8
constexpr BUFFER_INFO_CMD BUFFER_INFO_IS_ACQUIRING = 6; // BOOL8
constexpr BUFFER_INFO_CMD BUFFER_INFO_IS_INCOMPLETE = 7; // BOOL8
constexpr BUFFER_INFO_CMD BUFFER_INFO_TLTYPE = 8; // STRING
constexpr BUFFER_INFO_CMD BUFFER_INFO_SIZE_FILLED = 9; // SIZET
constexpr BUFFER_INFO_CMD BUFFER_INFO_WIDTH = 10; // SIZET; since 1.2, like all up to FILENAME
constexpr BUFFER_INFO_CMD BUFFER_INFO_HEIGHT = 11; // SIZET
constexpr BUFFER_INFO_CMD BUFFER_INFO_XOFFSET = 12; // SIZET
constexpr BUFFER_INFO_CMD BUFFER_INFO_YOFFSET = 13; // SIZET
constexpr BUFFER_INFO_CMD BUFFER_INFO_XPADDING = 14; // SIZET, bytes after each line
constexpr BUFFER_INFO_CMD BUFFER_INFO_YPADDING = 15; // SIZET, bytes after the last line
constexpr BUFFER_INFO_CMD BUFFER_INFO_FRAMEID = 16; // UINT64
constexpr BUFFER_INFO_CMD BUFFER_INFO_IMAGEPRESENT = 17; // BOOL8
constexpr BUFFER_INFO_CMD BUFFER_INFO_IMAGEOFFSET = 18; // SIZET
constexpr BUFFER_INFO_CMD BUFFER_INFO_PAYLOADTYPE = 19; // SIZET
constexpr BUFFER_INFO_CMD BUFFER_INFO_PIXELFORMAT = 20; // UINT64
constexpr BUFFER_INFO_CMD BUFFER_INFO_PIXELFORMAT_NAMESPACE = 21; // UINT64
constexpr BUFFER_INFO_CMD BUFFER_INFO_DELIVERED_IMAGEHEIGHT = 22; // SIZET
constexpr BUFFER_INFO_CMD BUFFER_INFO_DELIVERED_CHUNKPAYLOADSIZE = 23; // SIZET
constexpr BUFFER_INFO_CMD BUFFER_INFO_CHUNKLAYOUTID = 24; // UINT64
constexpr BUFFER_INFO_CMD BUFFER_INFO_FILENAME = 25; // STRING
constexpr BUFFER_INFO_CMD BUFFER_INFO_PIXEL_ENDIANNESS = 26; // INT32; since 1.4, like all up to 30
constexpr BUFFER_INFO_CMD BUFFER_INFO_DATA_SIZE = 27; // SIZET
constexpr BUFFER_INFO_CMD BUFFER_INFO_TIMESTAMP_NS = 28; // UINT64
constexpr BUFFER_INFO_CMD BUFFER_INFO_DATA_LARGER_THAN_BUFFER = 29; // BOOL8
constexpr BUFFER_INFO_CMD BUFFER_INFO_CONTAINS_CHUNKDATA = 30; // BOOL8
constexpr BUFFER_INFO_CMD BUFFER_INFO_IS_COMPOSITE = 31; // BOOL8; since 1.6

constexpr BUFFER_PART_INFO_CMD BUFFER_PART_INFO_BASE = 0; // PTR; all since 1.5
constexpr BUFFER_PART_INFO_CMD BUFFER_PART_INFO_DATA_SIZE = 1; // SIZET
constexpr BUFFER_PART_INFO_CMD BUFFER_PART_INFO_DATA_TYPE = 2; // SIZET
constexpr BUFFER_PART_INFO_CMD BUFFER_PART_INFO_DATA_FORMAT = 3; // UINT64
constexpr BUFFER_PART_INFO_CMD BUFFER_PART_INFO_DATA_FORMAT_NAMESPACE = 4; // UINT64
constexpr BUFFER_PART_INFO_CMD BUFFER_PART_INFO_WIDTH = 5; // SIZET
constexpr BUFFER_PART_INFO_CMD BUFFER_PART_INFO_HEIGHT = 6; // SIZET
constexpr BUFFER_PART_INFO_CMD BUFFER_PART_INFO_XOFFSET = 7; // SIZET
constexpr BUFFER_PART_INFO_CMD BUFFER_PART_INFO_YOFFSET = 8; // SIZET
constexpr BUFFER_PART_INFO_CMD BUFFER_PART_INFO_XPADDING = 9; // SIZET

constexpr std::size_t PART_DATATYPE_2D_IMAGE = 1;

constexpr std::size_t PAYLOAD_TYPE_UNKNOWN = 0;
constexpr std::size_t PAYLOAD_TYPE_IMAGE = 1;
constexpr std::size_t PAYLOAD_TYPE_RAW_DATA = 2;
constexpr std::size_t PAYLOAD_TYPE_FILE = 3;
constexpr std::size_t PAYLOAD_TYPE_CHUNK_DATA = 4; // Often an image with chunks; deprecated in 1.5.
constexpr std::size_t PAYLOAD_TYPE_JPEG = 5; // since 1.4
constexpr std::size_t PAYLOAD_TYPE_JPEG2000 = 6; // since 1.4
constexpr std::size_t PAYLOAD_TYPE_H264 = 7; // since 1.4
constexpr std::size_t PAYLOAD_TYPE_CHUNK_ONLY = 8; // since 1.4
constexpr std::size_t PAYLOAD_TYPE_MULTI_PART = 10; // since 1.5

constexpr std::uint64_t PIXELFORMAT_NAMESPACE_UNKNOWN = 0;
constexpr std::uint64_t PIXELFORMAT_NAMESPACE_GEV = 1; // The same numbers as PFNC_32BIT.
constexpr std::uint64_t PIXELFORMAT_NAMESPACE_IIDC = 2;
constexpr std::uint64_t PIXELFORMAT_NAMESPACE_PFNC_16BIT = 3; // since 1.4
constexpr std::uint64_t PIXELFORMAT_NAMESPACE_PFNC_32BIT = 4; // since 1.4

constexpr std::int32_t PIXELENDIANNESS_UNKNOWN = 0;
constexpr std::int32_t PIXELENDIANNESS_LITTLE = 1;
constexpr std::int32_t PIXELENDIANNESS_BIG = 2;

// ---- Structures --------------------------------------------------------------------------------------

#pragma pack(push, 1)
/// The data of EVENT_NEW_BUFFER.
struct EVENT_NEW_BUFFER_DATA
{
    BUFFER_HANDLE BufferHandle;
    void *pUserPointer;
};
struct PORT_REGISTER_STACK_ENTRY // since 1.1
{
    std::uint64_t Address;
    void *pBuffer;
    std::size_t Size;
};
struct SINGLE_CHUNK_DATA // since 1.3
{
    std::uint64_t ChunkID;
    std::ptrdiff_t ChunkOffset;
    std::size_t ChunkLength; // Without the trailer that contains ID and length.
};
#pragma pack(pop)

// ---- Function Declarations ---------------------------------------------------------------------------

extern "C" {

// Port functions.
GENTL_FUNCTION GCReadPort(PORT_HANDLE hPort, std::uint64_t iAddress, void *pBuffer, std::size_t *piSize);
GENTL_FUNCTION GCWritePort(
    PORT_HANDLE hPort, std::uint64_t iAddress, const void *pBuffer, std::size_t *piSize);
GENTL_FUNCTION GCGetPortURL(PORT_HANDLE hPort, char *sURL, std::size_t *piSize);
GENTL_FUNCTION GCGetPortInfo(
    PORT_HANDLE hPort, PORT_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize);
GENTL_FUNCTION GCGetNumPortURLs(PORT_HANDLE hPort, std::uint32_t *piNumURLs); // since 1.1
GENTL_FUNCTION GCGetPortURLInfo(PORT_HANDLE hPort, std::uint32_t iURLIndex, URL_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize); // since 1.1
GENTL_FUNCTION GCReadPortStacked(
    PORT_HANDLE hPort, PORT_REGISTER_STACK_ENTRY *pEntries, std::size_t *piNumEntries); // since 1.1
GENTL_FUNCTION GCWritePortStacked(
    PORT_HANDLE hPort, PORT_REGISTER_STACK_ENTRY *pEntries, std::size_t *piNumEntries); // since 1.1

// Event functions.
GENTL_FUNCTION GCRegisterEvent(EVENTSRC_HANDLE hEventSrc, EVENT_TYPE iEventID, EVENT_HANDLE *phEvent);
GENTL_FUNCTION GCUnregisterEvent(EVENTSRC_HANDLE hEventSrc, EVENT_TYPE iEventID);
GENTL_FUNCTION EventGetData(EVENT_HANDLE hEvent, void *pBuffer, std::size_t *piSize, std::uint64_t iTimeout);
GENTL_FUNCTION EventGetDataInfo(EVENT_HANDLE hEvent, const void *pInBuffer, std::size_t iInSize,
    EVENT_DATA_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pOutBuffer, std::size_t *piOutSize);
GENTL_FUNCTION EventGetInfo(
    EVENT_HANDLE hEvent, EVENT_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize);
GENTL_FUNCTION EventFlush(EVENT_HANDLE hEvent);
GENTL_FUNCTION EventKill(EVENT_HANDLE hEvent);

// Device functions.
GENTL_FUNCTION IFOpenDevice(
    IF_HANDLE hIface, const char *sDeviceID, DEVICE_ACCESS_FLAGS iOpenFlag, DEV_HANDLE *phDevice);
GENTL_FUNCTION DevGetPort(DEV_HANDLE hDevice, PORT_HANDLE *phRemoteDevice);
GENTL_FUNCTION DevGetNumDataStreams(DEV_HANDLE hDevice, std::uint32_t *piNumDataStreams);
GENTL_FUNCTION DevGetDataStreamID(
    DEV_HANDLE hDevice, std::uint32_t iIndex, char *sDataStreamID, std::size_t *piSize);
GENTL_FUNCTION DevOpenDataStream(DEV_HANDLE hDevice, const char *sDataStreamID, DS_HANDLE *phDataStream);
GENTL_FUNCTION DevGetInfo(
    DEV_HANDLE hDevice, DEVICE_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize);
GENTL_FUNCTION DevClose(DEV_HANDLE hDevice);
GENTL_FUNCTION DevGetParentIF(DEV_HANDLE hDevice, IF_HANDLE *phIface); // since 1.4

// Data stream functions.
GENTL_FUNCTION DSAnnounceBuffer(
    DS_HANDLE hDataStream, void *pBuffer, std::size_t iSize, void *pPrivate, BUFFER_HANDLE *phBuffer);
GENTL_FUNCTION DSAllocAndAnnounceBuffer(
    DS_HANDLE hDataStream, std::size_t iSize, void *pPrivate, BUFFER_HANDLE *phBuffer);
GENTL_FUNCTION DSFlushQueue(DS_HANDLE hDataStream, ACQ_QUEUE_TYPE iOperation);
GENTL_FUNCTION DSStartAcquisition(
    DS_HANDLE hDataStream, ACQ_START_FLAGS iStartFlags, std::uint64_t iNumToAcquire);
GENTL_FUNCTION DSStopAcquisition(DS_HANDLE hDataStream, ACQ_STOP_FLAGS iStopFlags);
GENTL_FUNCTION DSGetInfo(DS_HANDLE hDataStream, STREAM_INFO_CMD iInfoCmd, INFO_DATATYPE *piType,
    void *pBuffer, std::size_t *piSize);
GENTL_FUNCTION DSGetBufferID(DS_HANDLE hDataStream, std::uint32_t iIndex, BUFFER_HANDLE *phBuffer);
GENTL_FUNCTION DSClose(DS_HANDLE hDataStream);
GENTL_FUNCTION DSRevokeBuffer(
    DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer, void **ppBuffer, void **ppPrivate);
GENTL_FUNCTION DSQueueBuffer(DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer);
GENTL_FUNCTION DSGetBufferInfo(DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer, BUFFER_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize);
GENTL_FUNCTION DSGetBufferChunkData(DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer,
    SINGLE_CHUNK_DATA *pChunkData, std::size_t *piNumChunks); // since 1.3
GENTL_FUNCTION DSGetParentDev(DS_HANDLE hDataStream, DEV_HANDLE *phDevice); // since 1.4
GENTL_FUNCTION DSGetNumBufferParts(
    DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer, std::uint32_t *piNumParts); // since 1.5
GENTL_FUNCTION DSGetBufferPartInfo(DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer, std::uint32_t iPartIndex,
    BUFFER_PART_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer,
    std::size_t *piSize); // since 1.5

} // extern "C"

} // namespace GenTL
