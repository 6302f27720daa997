#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <utility>

/// The programming interface of the Corvix camera SDK.
///
/// Every class is abstract. A program imports one symbol from the library, CvxSystem::GetInstance(), and
/// calls everything else through virtual functions.
///
/// Errors: every function returns a CvxError; only CvxErrorSuccess (0) is success. A function that fails does
/// not change its output parameters, except for the content of a string buffer. No function throws, except
/// that GetInstance() and Feature::GetValue(std::string &) may throw std::bad_alloc.
///
/// Strings (every function with `char *` and `unsigned &size`) are UTF-8 and are read with two calls. With a
/// null buffer, the function stores the required size in `size`. With a buffer, `size` is its capacity; the
/// function writes the string and stores the number of bytes written. Sizes are in bytes and include the
/// terminating NUL, so an empty string has size 1. If the buffer is too small, the function returns
/// CvxErrorBufferTooSmall and the content of the buffer is undefined.
///
/// Threads: every function may be called from any thread at any time, also from several threads at once.
/// Functions return immediately unless their comment says how long they may block.
///
/// Lifetime: objects stay valid for as long as the program holds them. They return CvxErrorNotStarted once
/// the system that created them has been shut down, also after a new Startup(). A process created by fork()
/// must not use the system of its parent.

/// These macros contain the version of this header: its three parts, and CVXCPP_VERSION as a single number
/// that can be compared (version 1.2.3 is 10203). The library's SONAME contains the major version: a
/// program that was built against one major version cannot load the library of another one.
#define CVXCPP_VERSION_MAJOR 1
#define CVXCPP_VERSION_MINOR 0
#define CVXCPP_VERSION_PATCH 0
#define CVXCPP_VERSION (CVXCPP_VERSION_MAJOR * 10000 + CVXCPP_VERSION_MINOR * 100 + CVXCPP_VERSION_PATCH)

#define CVXCPP_API __attribute__((visibility("default")))

namespace CvxCPP {

/// The result of a call. CvxErrorSuccess is 0, and all error codes are negative.
using CvxError = std::int32_t;

constexpr CvxError CvxErrorSuccess = 0;
/// No memory, thread or file descriptor was left, or an observer called Shutdown().
constexpr CvxError CvxErrorFailed = -1;
/// The system does not run: Startup() has not succeeded, Shutdown() was called afterwards, or the system
/// has stopped because memory or threads were exhausted. In the last case, call Shutdown() and then
/// Startup().
constexpr CvxError CvxErrorNotStarted = -2;
constexpr CvxError CvxErrorAlreadyStarted = -3; ///< The system runs already, or an observer called Startup().
constexpr CvxError CvxErrorInvalidParameter = -4; ///< A pointer is null, or a value is out of range.
constexpr CvxError CvxErrorBufferTooSmall = -5; ///< The string does not fit into the buffer.
constexpr CvxError CvxErrorNotFound = -6; ///< There is no feature of this name.
/// There is no value at present, for example because there is no device.
constexpr CvxError CvxErrorNotAvailable = -7;
constexpr CvxError CvxErrorWrongType = -8; ///< The feature does not support this operation.
constexpr CvxError CvxErrorTimeout = -9; ///< The producer has not answered yet.
/// CvxProducerHost or CvxCameraHost is missing or not executable.
constexpr CvxError CvxErrorHostMissing = -10;
constexpr CvxError CvxErrorInUse = -11; ///< Another program or another Device object uses the camera.
constexpr CvxError CvxErrorDeviceLost = -12; ///< The camera is gone or does not answer; it will be reopened.
constexpr CvxError CvxErrorClosed = -13; ///< The device or the stream has been closed.
/// The feature is read-only or locked at present, or a watcher gets no images.
constexpr CvxError CvxErrorNotWritable = -14;
constexpr CvxError CvxErrorOutOfRange = -15; ///< The feature does not allow this value at present.
constexpr CvxError CvxErrorDevice = -16; ///< The camera or its producer reports a failure.

/// The technology that connects a camera to the computer.
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

/// The reason why an observer is called.
enum UpdateTriggerType : std::uint32_t
{
    UpdateTriggerPluggedIn = 0,
    UpdateTriggerPluggedOut = 1
};

/// One feature of an interface: a command, an integer or a string. Every function returns CvxErrorWrongType
/// if the feature is of another type, and otherwise CvxErrorNotStarted while the system does not run.
class CVXCPP_API Feature
{
public:
    virtual ~Feature() = default;

    /// Executes a command. The command "DeviceUpdateList" searches the interface for devices and replaces
    /// the list of devices that the other features refer to. If the last search of the interface ended, or
    /// GetCameras() returned a list, less than 1 s ago, the command uses the known devices.
    ///
    /// Blocks for at most 50 ms, or for at most 3 s if the system could not search for cameras recently, for
    /// example because the program was stopped. Returns immediately if the producer is searching already
    /// or has failed to answer an earlier request in time. If the producer does not answer in time, the
    /// result of the previous search stays valid, and the command succeeds with that result. Returns
    /// CvxErrorTimeout if there is no previous result, CvxErrorNotAvailable if the interface no longer
    /// exists, or CvxErrorFailed if memory is exhausted. The list of devices does not change if the command
    /// fails.
    virtual CvxError RunCommand() = 0;

    /// Stores the smallest and the largest value of an integer, both inclusive. Returns CvxErrorNotAvailable
    /// if the interface has no device.
    virtual CvxError GetRange(long &min, long &max) const = 0;

    /// Sets an integer. Returns CvxErrorInvalidParameter if the value is out of range, or
    /// CvxErrorNotAvailable if the interface has no device.
    virtual CvxError SetValue(long value) = 0;

    /// Reads a string with two calls, as described at the top. Returns CvxErrorNotAvailable if the
    /// interface has no device, or CvxErrorBufferTooSmall. The function cannot read an integer and returns
    /// CvxErrorWrongType for it.
    virtual CvxError GetValue(char *buffer, unsigned &size) const = 0;

    /// Reads a string with one call. Returns the same errors as the function above. CvxErrorBufferTooSmall
    /// means that the value has grown during the call, because another thread has selected another device.
    /// May throw std::bad_alloc.
    CvxError GetValue(std::string &value) const;
};

/// An object that has features.
class CVXCPP_API FeatureContainer
{
public:
    virtual ~FeatureContainer() = default;

    /// Stores the feature of this name (case-sensitive) in `feature`. The feature keeps its container alive.
    /// Returns CvxErrorInvalidParameter if `name` is null, CvxErrorNotStarted while the system does not run,
    /// or CvxErrorNotFound if there is no such feature.
    virtual CvxError GetFeatureByName(const char *name, std::shared_ptr<Feature> &feature) = 0;
};

/// A GenTL interface, for example one network interface or one USB host controller. Its features are
/// "DeviceUpdateList" (command), "DeviceSelector" (integer: index of the selected device), "DeviceID" and
/// "DeviceVendorName" (strings: ID and vendor of the selected device).
///
/// The list of devices is a snapshot: only "DeviceUpdateList" changes it, so an index refers to the same
/// device until the next "DeviceUpdateList". If the selected index is beyond the end of the new list, the
/// last device is selected. All users of an Interface object share its list and its selection, so threads
/// that use them at the same time have to synchronise with each other.
class CVXCPP_API Interface : public FeatureContainer
{ };

/// What a program may do with an opened camera.
enum CvxAccess : std::uint32_t
{
    /// Only read features, and receive images while another program lets the camera send them, if the
    /// producer allows that. Never writes; allowed while another program controls the camera.
    CvxAccessWatch = 0,
    CvxAccessControl = 1, ///< Read, write and stream. Others may watch.
    CvxAccessExclusive = 2 ///< Read, write and stream. Nobody else may open the camera.
};

class Device; // Device.h
struct CvxResult; // Device.h

/// The data of one camera at the time when the camera was found; a Camera object never changes. Every
/// function returns CvxErrorNotStarted while the system does not run. The functions that read a string may
/// also return CvxErrorBufferTooSmall.
class CVXCPP_API Camera
{
public:
    virtual ~Camera() = default;

    /// Reads the camera's ID. If `extended` is false, the ID is the device ID that the producer reports,
    /// which is unique on its interface. If `extended` is true, the ID consists of the name of the
    /// producer's file, the interface ID and the device ID, joined by "/". The extended ID is unique unless
    /// two producers in different directories have the same file name. Reading the extended ID returns
    /// CvxErrorFailed if memory is exhausted.
    virtual CvxError GetID(char *buffer, unsigned &size, bool extended) const = 0;

    /// Reads the model name, which is empty if the producer reports none.
    virtual CvxError GetModel(char *buffer, unsigned &size) const = 0;

    /// Reads the display name, which is empty if the producer reports none.
    virtual CvxError GetName(char *buffer, unsigned &size) const = 0;

    /// Reads the serial number, which is empty if the producer reports none.
    virtual CvxError GetSerialNumber(char *buffer, unsigned &size) const = 0;

    /// Reads the name that a user has stored in the camera, which is empty if there is none or if the
    /// producer does not report it.
    virtual CvxError GetUserName(char *buffer, unsigned &size) const = 0;

    /// Stores the technology that connects the camera, or CvxTransportLayerUnknown if the producer reports
    /// a technology that CvxTransportLayerType does not contain. Returns CvxErrorFailed if memory is
    /// exhausted.
    virtual CvxError GetInterfaceType(CvxTransportLayerType &type) const = 0;

    /// Stores the interface that the camera is connected to.
    virtual CvxError GetInterface(std::shared_ptr<Interface> &iface) const = 0;

    /// Opens the camera in a process of its own and reads the list of its features. Device.h declares the
    /// types. Returns CvxErrorInUse with the producer's text if another program uses the camera,
    /// CvxErrorNotFound if the producer does not find the camera any more, CvxErrorNotAvailable if the camera
    /// does not offer this access, CvxErrorDevice if the producer or the camera fails, for example if its
    /// description is broken, CvxErrorTimeout, CvxErrorHostMissing or CvxErrorFailed. A camera whose last
    /// user has crashed may be in use for some seconds, so the function tries again for 5 s before it returns
    /// CvxErrorInUse. Blocks for at most 20 s.
    virtual CvxResult Open(CvxAccess access, std::shared_ptr<Device> &device) = 0;
};

/// The library calls this observer for every camera that appears or disappears.
///
/// The cameras in the first result of GetCameras() are not reported as plugged in. If the program has not
/// called GetCameras() within 2 s of Startup(), every camera is reported. A camera whose data changes is
/// reported as plugged out, then as plugged in. A change is usually noticed within 2 s, the interval at
/// which producers are polled. If the program has just called GetCameras(), calls of observers are delayed
/// by up to 0.5 s.
///
/// Threads: all observers are called on one thread of the library, one after the other, in the order of
/// their registration. Cameras that disappear are reported first, then interfaces that disappear, new
/// interfaces and new cameras. No lock is held during a call, so an observer may block. An observer that
/// blocks delays the later calls and Shutdown(). An observer must not wait for a thread that calls
/// Shutdown().
///
/// An observer may call every function of this interface, with two exceptions: Startup() returns
/// CvxErrorAlreadyStarted and Shutdown() returns CvxErrorFailed. An exception that an observer throws is
/// caught and ignored: the other observers are called as usual.
class CVXCPP_API ICameraListObserver
{
public:
    virtual ~ICameraListObserver() = default;
    virtual void CameraListChanged(std::shared_ptr<Camera> camera, UpdateTriggerType reason) = 0;
};

/// The library calls this observer for every interface that appears or disappears, whether the interface
/// has cameras or not. The rules of ICameraListObserver apply. Producers are asked for new interfaces every
/// 10 s.
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
    /// Returns the only system object. The object is never destroyed; the system is shut down when the
    /// process exits.
    static CvxSystem &GetInstance();

    /// Starts the system: begins to load the GenTL producers and to search for cameras. Does not wait for
    /// any producer; blocks only while another thread is in Startup() or Shutdown(). Also succeeds if there
    /// is no producer. Returns CvxErrorAlreadyStarted if the system runs or an observer makes the call,
    /// CvxErrorHostMissing if the program that loads producers is missing or not executable, or
    /// CvxErrorFailed if no memory, thread or file descriptor is left.
    virtual CvxError Startup() = 0;

    /// Stops the system, closes all devices, and releases all observers. Also succeeds if the system does not
    /// run. Returns CvxErrorFailed, without any effect, if an observer makes the call. Blocks until no
    /// observer is being called any more, every device has been closed or, after 3 s (6 s with temporary
    /// changes), its process killed, and every producer has been closed or, after about 2 s, killed. A
    /// producer that is searching is killed after 150 ms, because a search cannot be interrupted. Calls that
    /// are blocked in other threads return CvxErrorNotStarted.
    virtual CvxError Shutdown() = 0;

    /// Registers an observer, which the system keeps until Shutdown(). An observer that is registered twice
    /// is called twice. Returns CvxErrorInvalidParameter if `observer` is null, CvxErrorNotStarted if the
    /// system does not run, or CvxErrorFailed if memory is exhausted.
    virtual CvxError RegisterCameraListObserver(const std::shared_ptr<ICameraListObserver> &observer) = 0;

    /// Registers an interface observer. The rules of RegisterCameraListObserver() apply.
    virtual CvxError RegisterInterfaceListObserver(const std::shared_ptr<IInterfaceListObserver> &observer)
        = 0;

    /// Returns the cameras with two calls.
    ///
    /// With a null array, the function stores the number of known cameras in `count`. The system searches
    /// for cameras by itself, every 2 s or when a producer reports a change, so the function returns what is
    /// known. It also starts a search, unless one is running or ended less than 250 ms ago, and blocks for at
    /// most 50 ms until the search has ended. If there was no search yet, or none recently because the
    /// program was stopped, the function waits for the search instead: usually for 200 ms, at most for 3 s.
    ///
    /// A producer that has not answered by then contributes the cameras of its previous answer. The cameras
    /// that it finds later are reported to the observers. After 3 s without an answer, the next calls do not
    /// wait for this producer until it has answered in time again. A producer contributes at most 1,000
    /// cameras.
    ///
    /// With an array of `count` elements, the function copies the cameras of the last search into the
    /// array, as many as fit, and stores the number of copied cameras in `count`, which is 0 if there is no
    /// camera. The function does not search, unless there was no search since Startup(). The last search
    /// may have been made by another thread: if several threads call the function at the same time, the
    /// second call may return fewer cameras than the first call counted.
    ///
    /// Returns CvxErrorNotStarted if the system does not run, or CvxErrorFailed if memory is exhausted.
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
    // The size includes the terminating NUL, but the value must not contain it.
    buffer.resize(std::strlen(buffer.c_str()));
    value = std::move(buffer);
    return CvxErrorSuccess;
}

} // namespace CvxCPP
