#pragma once

#include <cstddef>
#include <cstdint>

/// The part of the GenICam GenTL C interface that the enumeration of interfaces and devices needs.
/// GenTLDevice.h contains the rest.
///
/// Function names, argument lists and numbers are taken from the chapter "Software Interface" of the public
/// GenICam GenTL Standard. The heading of each block below is the title of its section in this chapter.
/// "since" names the version of the standard that introduced an entry; all other entries exist since
/// version 1.0.
///
/// Everything is in namespace GenTL, but the functions have C linkage, so a producer exports their plain
/// names. A consumer does not link against the functions, but casts the result of dlsym() to a P… pointer
/// type.
namespace GenTL {

// ---- Used Data Types ---------------------------------------------------------------------------------

using GC_ERROR = std::int32_t;
using TL_HANDLE = void *;
using IF_HANDLE = void *;

/// A truth value in one byte: 0 is false, every other value is true. The type is not bool, because a producer
/// may write a byte that is neither 0 nor 1.
using bool8_t = std::uint8_t;

// The C interface passes every enumeration as a 32-bit integer. A producer may define additional values.
using INFO_DATATYPE = std::int32_t;
using TL_INFO_CMD = std::int32_t;
using INTERFACE_INFO_CMD = std::int32_t;
using DEVICE_INFO_CMD = std::int32_t;
using DEVICE_ACCESS_STATUS = std::int32_t;
using TL_CHAR_ENCODING = std::int32_t;

// ---- Numeric Constants -------------------------------------------------------------------------------

constexpr void *GENTL_INVALID_HANDLE = nullptr; // since 1.4
constexpr std::uint64_t GENTL_INFINITE = 0xFFFFFFFFFFFFFFFFU; // Milliseconds; since 1.4

// ---- Error Handling ----------------------------------------------------------------------------------

constexpr GC_ERROR GC_ERR_SUCCESS = 0;
constexpr GC_ERROR GC_ERR_ERROR = -1001; // Unspecified.
constexpr GC_ERROR GC_ERR_NOT_INITIALIZED = -1002; // GCInitLib was not called.
constexpr GC_ERROR GC_ERR_NOT_IMPLEMENTED = -1003; // Function or info command not supported.
constexpr GC_ERROR GC_ERR_RESOURCE_IN_USE = -1004; // Initialised or opened already.
constexpr GC_ERROR GC_ERR_ACCESS_DENIED = -1005;
constexpr GC_ERROR GC_ERR_INVALID_HANDLE = -1006; // NULL, foreign or closed.
constexpr GC_ERROR GC_ERR_INVALID_ID = -1007; // No such interface or device.
constexpr GC_ERROR GC_ERR_NO_DATA = -1008;
constexpr GC_ERROR GC_ERR_INVALID_PARAMETER = -1009; // Before 1.4 also a bad index or a short buffer.
constexpr GC_ERROR GC_ERR_IO = -1010;
constexpr GC_ERROR GC_ERR_TIMEOUT = -1011;
constexpr GC_ERROR GC_ERR_ABORT = -1012; // since 1.1
constexpr GC_ERROR GC_ERR_INVALID_BUFFER = -1013; // since 1.1
constexpr GC_ERROR GC_ERR_NOT_AVAILABLE = -1014; // No value yet, for example before an update; since 1.2
constexpr GC_ERROR GC_ERR_INVALID_ADDRESS = -1015; // since 1.3
constexpr GC_ERROR GC_ERR_BUFFER_TOO_SMALL = -1016; // since 1.4
constexpr GC_ERROR GC_ERR_INVALID_INDEX = -1017; // since 1.4
constexpr GC_ERROR GC_ERR_PARSING_CHUNK_DATA = -1018; // since 1.4
constexpr GC_ERROR GC_ERR_INVALID_VALUE = -1019; // since 1.4
constexpr GC_ERROR GC_ERR_RESOURCE_EXHAUSTED = -1020; // since 1.4
constexpr GC_ERROR GC_ERR_OUT_OF_MEMORY = -1021; // since 1.4
constexpr GC_ERROR GC_ERR_BUSY = -1022; // since 1.5
constexpr GC_ERROR GC_ERR_AMBIGUOUS = -1023; // since 1.6
constexpr GC_ERROR GC_ERR_CUSTOM_ID = -10000; // Producers may define this and all lower numbers.

// ---- Library and System Enumerations -----------------------------------------------------------------

constexpr INFO_DATATYPE INFO_DATATYPE_UNKNOWN = 0;
constexpr INFO_DATATYPE INFO_DATATYPE_STRING = 1; // NUL-terminated; the size includes the NUL.
constexpr INFO_DATATYPE INFO_DATATYPE_STRINGLIST = 2; // NUL-terminated strings in a row, then one extra NUL.
constexpr INFO_DATATYPE INFO_DATATYPE_INT16 = 3;
constexpr INFO_DATATYPE INFO_DATATYPE_UINT16 = 4;
constexpr INFO_DATATYPE INFO_DATATYPE_INT32 = 5;
constexpr INFO_DATATYPE INFO_DATATYPE_UINT32 = 6;
constexpr INFO_DATATYPE INFO_DATATYPE_INT64 = 7;
constexpr INFO_DATATYPE INFO_DATATYPE_UINT64 = 8;
constexpr INFO_DATATYPE INFO_DATATYPE_FLOAT64 = 9;
constexpr INFO_DATATYPE INFO_DATATYPE_PTR = 10;
constexpr INFO_DATATYPE INFO_DATATYPE_BOOL8 = 11;
constexpr INFO_DATATYPE INFO_DATATYPE_SIZET = 12;
constexpr INFO_DATATYPE INFO_DATATYPE_BUFFER = 13;
constexpr INFO_DATATYPE INFO_DATATYPE_PTRDIFF = 14; // since 1.3
constexpr INFO_DATATYPE INFO_DATATYPE_CUSTOM_ID = 1000;

// GCGetInfo and TLGetInfo.
constexpr TL_INFO_CMD TL_INFO_ID = 0; // STRING
constexpr TL_INFO_CMD TL_INFO_VENDOR = 1; // STRING
constexpr TL_INFO_CMD TL_INFO_MODEL = 2; // STRING
constexpr TL_INFO_CMD TL_INFO_VERSION = 3; // STRING
constexpr TL_INFO_CMD TL_INFO_TLTYPE = 4; // STRING, one of the transport layer types below
constexpr TL_INFO_CMD TL_INFO_NAME = 5; // STRING, file name with extension
constexpr TL_INFO_CMD TL_INFO_PATHNAME = 6; // STRING, full path with file name
constexpr TL_INFO_CMD TL_INFO_DISPLAYNAME = 7; // STRING
constexpr TL_INFO_CMD TL_INFO_CHAR_ENCODING = 8; // INT32, TL_CHAR_ENCODING; since 1.4
constexpr TL_INFO_CMD TL_INFO_GENTL_VER_MAJOR = 9; // UINT32; since 1.5
constexpr TL_INFO_CMD TL_INFO_GENTL_VER_MINOR = 10; // UINT32; since 1.5
constexpr TL_INFO_CMD TL_INFO_CUSTOM_ID = 1000;

constexpr TL_CHAR_ENCODING TL_CHAR_ENCODING_ASCII = 0; // since 1.4
constexpr TL_CHAR_ENCODING TL_CHAR_ENCODING_UTF8 = 1; // since 1.4

// Transport layer types: strings, compared case-sensitively.
constexpr const char *TLTypeGEVName = "GEV"; // GigE Vision
constexpr const char *TLTypeU3VName = "U3V"; // USB3 Vision; since 1.4
constexpr const char *TLTypeCLName = "CL"; // Camera Link
constexpr const char *TLTypeCLHSName = "CLHS"; // Camera Link HS; since 1.3
constexpr const char *TLTypeCXPName = "CXP"; // CoaXPress; since 1.3
constexpr const char *TLTypeIIDCName = "IIDC"; // Cameras on IEEE 1394
constexpr const char *TLTypeUVCName = "UVC"; // USB video class
constexpr const char *TLTypeETHERNETName = "Ethernet"; // Ethernet without GigE Vision; since 1.3
constexpr const char *TLTypePCIName = "PCI"; // since 1.3
constexpr const char *TLTypeMixedName = "Mixed"; // Several technologies; for a system module only.
constexpr const char *TLTypeCustomName = "Custom"; // Any other technology.

// ---- Interface Enumerations --------------------------------------------------------------------------

// TLGetInterfaceInfo and IFGetInfo.
constexpr INTERFACE_INFO_CMD INTERFACE_INFO_ID = 0; // STRING
constexpr INTERFACE_INFO_CMD INTERFACE_INFO_DISPLAYNAME = 1; // STRING
constexpr INTERFACE_INFO_CMD INTERFACE_INFO_TLTYPE = 2; // STRING
constexpr INTERFACE_INFO_CMD INTERFACE_INFO_CUSTOM_ID = 1000;

// ---- Device Enumerations -----------------------------------------------------------------------------

// The commands of IFGetDeviceInfo and DevGetInfo. The values since 1.4 may be unknown until the device is
// opened.
constexpr DEVICE_INFO_CMD DEVICE_INFO_ID = 0; // STRING
constexpr DEVICE_INFO_CMD DEVICE_INFO_VENDOR = 1; // STRING
constexpr DEVICE_INFO_CMD DEVICE_INFO_MODEL = 2; // STRING
constexpr DEVICE_INFO_CMD DEVICE_INFO_TLTYPE = 3; // STRING
constexpr DEVICE_INFO_CMD DEVICE_INFO_DISPLAYNAME = 4; // STRING
constexpr DEVICE_INFO_CMD DEVICE_INFO_ACCESS_STATUS = 5; // INT32, DEVICE_ACCESS_STATUS
constexpr DEVICE_INFO_CMD DEVICE_INFO_USER_DEFINED_NAME = 6; // STRING; since 1.4
constexpr DEVICE_INFO_CMD DEVICE_INFO_SERIAL_NUMBER = 7; // STRING; since 1.4
constexpr DEVICE_INFO_CMD DEVICE_INFO_VERSION = 8; // STRING; since 1.4
constexpr DEVICE_INFO_CMD DEVICE_INFO_TIMESTAMP_FREQUENCY = 9; // UINT64, ticks per second; since 1.4
constexpr DEVICE_INFO_CMD DEVICE_INFO_CUSTOM_ID = 1000;

constexpr DEVICE_ACCESS_STATUS DEVICE_ACCESS_STATUS_UNKNOWN = 0;
constexpr DEVICE_ACCESS_STATUS DEVICE_ACCESS_STATUS_READWRITE = 1;
constexpr DEVICE_ACCESS_STATUS DEVICE_ACCESS_STATUS_READONLY = 2;
constexpr DEVICE_ACCESS_STATUS DEVICE_ACCESS_STATUS_NOACCESS = 3;
constexpr DEVICE_ACCESS_STATUS DEVICE_ACCESS_STATUS_BUSY = 4; // Held by another process or host; since 1.5
constexpr DEVICE_ACCESS_STATUS DEVICE_ACCESS_STATUS_OPEN_READWRITE = 5; // Held by this process; since 1.5
constexpr DEVICE_ACCESS_STATUS DEVICE_ACCESS_STATUS_OPEN_READONLY = 6; // Held by this process; since 1.5
constexpr DEVICE_ACCESS_STATUS DEVICE_ACCESS_STATUS_CUSTOM_ID = 1000;

// ---- Function Declarations ---------------------------------------------------------------------------

// This macro exports a function even if the producer is built with hidden visibility.
#define GENTL_FUNCTION __attribute__((visibility("default"))) GenTL::GC_ERROR

extern "C" {

// Library functions.
GENTL_FUNCTION GCInitLib();
GENTL_FUNCTION GCCloseLib();
GENTL_FUNCTION GCGetInfo(TL_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize);
GENTL_FUNCTION GCGetLastError(GC_ERROR *piErrorCode, char *sErrText, std::size_t *piSize);

// System functions.
GENTL_FUNCTION TLOpen(TL_HANDLE *phTL);
GENTL_FUNCTION TLClose(TL_HANDLE hTL);
GENTL_FUNCTION TLGetInfo(
    TL_HANDLE hTL, TL_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize);
GENTL_FUNCTION TLUpdateInterfaceList(TL_HANDLE hTL, bool8_t *pbChanged, std::uint64_t iTimeout);
GENTL_FUNCTION TLGetNumInterfaces(TL_HANDLE hTL, std::uint32_t *piNumIfaces);
GENTL_FUNCTION TLGetInterfaceID(TL_HANDLE hTL, std::uint32_t iIndex, char *sID, std::size_t *piSize);
GENTL_FUNCTION TLGetInterfaceInfo(TL_HANDLE hTL, const char *sIfaceID, INTERFACE_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize);
GENTL_FUNCTION TLOpenInterface(TL_HANDLE hTL, const char *sIfaceID, IF_HANDLE *phIface);

// Interface functions.
GENTL_FUNCTION IFClose(IF_HANDLE hIface);
GENTL_FUNCTION IFGetInfo(
    IF_HANDLE hIface, INTERFACE_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize);
GENTL_FUNCTION IFUpdateDeviceList(IF_HANDLE hIface, bool8_t *pbChanged, std::uint64_t iTimeout);
GENTL_FUNCTION IFGetNumDevices(IF_HANDLE hIface, std::uint32_t *piNumDevices);
GENTL_FUNCTION IFGetDeviceID(IF_HANDLE hIface, std::uint32_t iIndex, char *sIDeviceID, std::size_t *piSize);
GENTL_FUNCTION IFGetDeviceInfo(IF_HANDLE hIface, const char *sDeviceID, DEVICE_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize);
GENTL_FUNCTION IFGetParentTL(IF_HANDLE hIface, TL_HANDLE *phSystem); // since 1.4; may be absent

} // extern "C"

// The pointer types for the results of dlsym().
using PGCInitLib = decltype(&GCInitLib);
using PGCCloseLib = decltype(&GCCloseLib);
using PGCGetInfo = decltype(&GCGetInfo);
using PGCGetLastError = decltype(&GCGetLastError);
using PTLOpen = decltype(&TLOpen);
using PTLClose = decltype(&TLClose);
using PTLGetInfo = decltype(&TLGetInfo);
using PTLUpdateInterfaceList = decltype(&TLUpdateInterfaceList);
using PTLGetNumInterfaces = decltype(&TLGetNumInterfaces);
using PTLGetInterfaceID = decltype(&TLGetInterfaceID);
using PTLGetInterfaceInfo = decltype(&TLGetInterfaceInfo);
using PTLOpenInterface = decltype(&TLOpenInterface);
using PIFClose = decltype(&IFClose);
using PIFGetInfo = decltype(&IFGetInfo);
using PIFUpdateDeviceList = decltype(&IFUpdateDeviceList);
using PIFGetNumDevices = decltype(&IFGetNumDevices);
using PIFGetDeviceID = decltype(&IFGetDeviceID);
using PIFGetDeviceInfo = decltype(&IFGetDeviceInfo);
using PIFGetParentTL = decltype(&IFGetParentTL);

} // namespace GenTL
