#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <utility>

/// The programming interface of the Corvix camera SDK.
///
/// Everything here but one function is an abstract class: a program takes a single symbol from libCvxCPP.so,
/// CvxSystem::GetInstance(), and reaches the rest through virtual calls.
///
/// Errors: every function returns a CvxError; only 0 is success. Nothing throws.
///
/// Text (all functions that take `char *` and `unsigned &`): UTF-8, read with two calls. With a null buffer
/// the function stores the needed length in `size`; with a buffer, `size` is its capacity in bytes and
/// becomes the number of bytes written. The length counts the closing NUL, so an empty text has length 1. A
/// buffer that is too small gives CvxErrorBufferTooSmall and leaves its content undefined.
///
/// Threads: every function may be called from any thread at any time after Startup(). Objects obtained from
/// the system stay valid for as long as they are held, but answer only while the system runs.
#define CVXCPP_API __attribute__((visibility("default")))

namespace CvxCPP {

/// 0 is success, everything else a failure. The library's own codes are negative:
using CvxError = std::int32_t;

constexpr CvxError CvxErrorSuccess = 0;
constexpr CvxError CvxErrorFailed = -1; ///< Unspecified failure, for example out of memory.
constexpr CvxError CvxErrorNotStarted = -2; ///< Startup() has not succeeded, or Shutdown() came since.
constexpr CvxError CvxErrorAlreadyStarted = -3; ///< Startup() while the system runs.
constexpr CvxError CvxErrorInvalidParameter = -4; ///< A null pointer or a value out of range.
constexpr CvxError CvxErrorBufferTooSmall = -5; ///< A text does not fit the buffer given.
constexpr CvxError CvxErrorNotFound = -6; ///< No such feature.
constexpr CvxError CvxErrorNotAvailable
    = -7; ///< The feature has no value now, for example no device is there.
constexpr CvxError CvxErrorWrongType = -8; ///< The feature is of another type, or may not be written.
constexpr CvxError CvxErrorTimeout = -9; ///< No answer in time.
constexpr CvxError CvxErrorHostMissing = -10; ///< CvxProducerHost is missing or may not be executed.

/// The technology a camera is attached by.
enum CvxTransportLayerType : std::uint32_t
{
    CvxTransportLayerUnknown = 0,
    CvxTransportLayerGigE = 1,
    CvxTransportLayerCameraLink = 2,
    CvxTransportLayerIIDC = 3,
    CvxTransportLayerUVC = 4,
    CvxTransportLayerCoaXPress = 5,
    CvxTransportLayerCameraLinkHS = 6,
    CvxTransportLayerUSB = 7,
    CvxTransportLayerEthernet = 8,
    CvxTransportLayerPCI = 9,
    CvxTransportLayerCustom = 10,
    CvxTransportLayerMixed = 11
};

/// Why a list observer is called.
enum UpdateTriggerType : std::uint32_t
{
    UpdateTriggerPluggedIn = 0,
    UpdateTriggerPluggedOut = 1
};

/// One feature of a module: a command, an integer or a text. Calls that do not suit its type give
/// CvxErrorWrongType.
class CVXCPP_API Feature
{
public:
    virtual ~Feature() = default;

    /// Executes a command and returns when it is done, after 3 s, or at once while the producer has an answer
    /// overdue. What the last search has found stays then; CvxErrorTimeout when there is nothing of it.
    virtual CvxError RunCommand() = 0;

    /// Gives the smallest and the largest value of an integer, both inclusive.
    virtual CvxError GetRange(long &min, long &max) const = 0;

    /// Sets an integer; CvxErrorInvalidParameter when it is out of range.
    virtual CvxError SetValue(long value) = 0;

    /// Reads a text with two calls, as described at the top.
    virtual CvxError GetValue(char *buffer, unsigned &size) const = 0;

    /// Reads a text in one go; `value` stays as it was when the read fails. May throw std::bad_alloc.
    CvxError GetValue(std::string &value) const;
};

/// Something that has features by name.
class CVXCPP_API FeatureContainer
{
public:
    virtual ~FeatureContainer() = default;

    /// Finds a feature by its SFNC name; CvxErrorNotFound when the module has none of that name.
    virtual CvxError GetFeatureByName(const char *name, std::shared_ptr<Feature> &feature) = 0;
};

/// A transport-layer interface, for example one network card or one USB host. Its features are those of the
/// GenTL interface module's device enumeration: "DeviceUpdateList" (command), "DeviceSelector" (integer, the
/// index of a device), "DeviceID" and "DeviceVendorName" (texts of the selected device).
class CVXCPP_API Interface : public FeatureContainer
{ };

/// One camera, as it was when it was listed.
class CVXCPP_API Camera
{
public:
    virtual ~Camera() = default;

    /// Reads the camera's ID: the plain one is what its interface calls it; the extended one (the name of the
    /// producer's file, interface ID and device ID joined by "/") is unique as long as no two files in
    /// different directories have the same name.
    virtual CvxError GetID(char *buffer, unsigned &size, bool extended) const = 0;

    /// Reads the model name; empty when the producer tells none.
    virtual CvxError GetModel(char *buffer, unsigned &size) const = 0;

    /// Reads the name meant for people.
    virtual CvxError GetName(char *buffer, unsigned &size) const = 0;

    /// Reads the serial number; empty when the producer tells none.
    virtual CvxError GetSerialNumber(char *buffer, unsigned &size) const = 0;

    /// Gives the technology the camera is attached by.
    virtual CvxError GetInterfaceType(CvxTransportLayerType &type) const = 0;

    /// Gives the interface the camera is attached to.
    virtual CvxError GetInterface(std::shared_ptr<Interface> &iface) const = 0;
};

/// Told of every camera that comes or goes; one of which anything that Camera tells changes, goes and comes.
/// Called on a thread of the system, which holds no lock meanwhile.
class CVXCPP_API ICameraListObserver
{
public:
    virtual ~ICameraListObserver() = default;
    virtual void CameraListChanged(std::shared_ptr<Camera> camera, UpdateTriggerType reason) = 0;
};

/// Told of every interface that comes or goes. Called on a thread of the system, which holds no lock
/// meanwhile.
class CVXCPP_API IInterfaceListObserver
{
public:
    virtual ~IInterfaceListObserver() = default;
    virtual void InterfaceListChanged(std::shared_ptr<Interface> iface, UpdateTriggerType reason) = 0;
};

/// The camera system of the process.
class CVXCPP_API CvxSystem
{
public:
    /// The one system object; it exists for as long as the process does.
    static CvxSystem &GetInstance();

    /// Brings the system up: loads the transport-layer producers and starts watching for cameras. Waits for
    /// no producer. CvxErrorAlreadyStarted when the system runs, CvxErrorHostMissing when the program that
    /// loads producers is missing. A system without producers starts all the same.
    virtual CvxError Startup() = 0;

    /// Ends the system, drops all observers and returns when no callback runs any more, at the latest after
    /// about 2 s. May be called at any time, also after a failed or without a start; but not from a callback.
    virtual CvxError Shutdown() = 0;

    /// Adds an observer; it is called until Shutdown(). CvxErrorInvalidParameter for a null pointer,
    /// CvxErrorNotStarted when the system does not run.
    virtual CvxError RegisterCameraListObserver(const std::shared_ptr<ICameraListObserver> &observer) = 0;

    /// As above, for interfaces.
    virtual CvxError RegisterInterfaceListObserver(const std::shared_ptr<IInterfaceListObserver> &observer)
        = 0;

    /// Lists the cameras, with two calls. With a null array: searches, unless a search ended less than 1 s
    /// ago, and stores the number of cameras in `count`; it waits for at most 3 s, and what a slower producer
    /// finds is announced. With an array of `count` elements: fills it with the cameras that the search
    /// found, at most `count` of them, and stores the number written.
    virtual CvxError GetCameras(std::shared_ptr<Camera> *cameras, unsigned &count) = 0;

protected:
    CvxSystem() = default;
    virtual ~CvxSystem() = default;
    CvxSystem(const CvxSystem &) = delete;
    CvxSystem &operator=(const CvxSystem &) = delete;
};

inline CvxError Feature::GetValue(std::string &value) const
{
    unsigned size = 0;
    CvxError error = GetValue(nullptr, size);
    if (error != CvxErrorSuccess)
        return error;
    std::string buffer(size, '\0');
    if (size > 0)
        error = GetValue(buffer.data(), size);
    if (error != CvxErrorSuccess)
        return error;
    buffer.resize(std::strlen(buffer.c_str())); // The length counts a NUL, the value does not.
    value = std::move(buffer);
    return CvxErrorSuccess;
}

} // namespace CvxCPP
