#pragma once

#include "CvxCPP/CvxCPP.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

/// The records in which a test defines what the scripted SDK returns. By default, every call succeeds and no
/// camera is connected.
namespace CvxScripted {

/// A string that the caller reads in two calls: the first call returns the length, the second call the
/// string.
struct StringField
{
    StringField() = default;
    StringField(const char *text) : value(text) { }
    StringField(std::string text) : value(std::move(text)) { }

    std::string value; ///< May contain NULs.
    bool countsNul = true; ///< If true, the terminating NUL is counted and written too.
};

/// The values that an interface reports for one value of "DeviceSelector".
struct DeviceRecord
{
    StringField id;
    StringField vendor;
};

/// One transport-layer interface. Cameras that share the record share the interface.
struct InterfaceRecord
{
    std::map<long, DeviceRecord> devices; ///< The devices by their value of "DeviceSelector".
    std::optional<long> min; ///< If set, reported instead of the smallest selector value.
    std::optional<long> max; ///< If set, reported instead of the largest selector value.
    std::set<std::string> features{"DeviceUpdateList", "DeviceSelector", "DeviceID", "DeviceVendorName"};
    long selected = 0; ///< The current value of "DeviceSelector".
};

struct CameraRecord
{
    StringField id;
    StringField model;
    StringField name;
    StringField serialNumber;
    StringField extendedId{};
    std::uint32_t type = CvxCPP::CvxTransportLayerUnknown; ///< May be a value that the SDK does not define.
    std::shared_ptr<InterfaceRecord> iface{}; ///< If null, GetInterface() succeeds and returns null.
    bool nullHandle = false; ///< GetCameras() writes a null pointer for this camera.
    StringField userName{};
};

/// The SDK functions whose calls are recorded.
enum class Function
{
    Startup,
    Shutdown,
    RegisterCameraListObserver,
    RegisterInterfaceListObserver,
    CountCameras, ///< GetCameras() with a null array.
    FillCameras, ///< GetCameras() with an array.
    GetId,
    GetExtendedId,
    GetModel,
    GetName,
    GetSerialNumber,
    GetUserName,
    GetInterfaceType,
    GetInterface,
    GetFeatureByName,
    RunCommand,
    GetRange,
    SetValue,
    GetValue
};

/// One recorded call of an SDK function.
struct Call
{
    Function function;
    std::string subject{}; ///< The name of the feature or the ID of the camera; empty for other calls.
    bool asksLength = false; ///< True if the call reads a string and its buffer is null.
    long value = 0; ///< The argument of SetValue().
    std::thread::id thread{};
};

/// Everything that the scripted SDK returns.
struct Script
{
    std::vector<CameraRecord> cameras;
    std::map<Function, CvxCPP::CvxError> errors; ///< The functions that fail on every object.
    std::optional<unsigned> countedCameras; ///< If set, CountCameras reports this instead of the true count.
    /// If set, FillCameras writes at most this many handles and reports this number as the count.
    std::optional<unsigned> filledCameras;

    /// If set, every SDK call first calls this function, on the calling thread and without holding a lock.
    /// The function may block, throw, or return the error that the SDK call has to return. If the function
    /// returns 0, the other members of the script determine the result.
    std::function<CvxCPP::CvxError(const Call &)> intercept;
};

/// Records the call. Returns the error that the script defines for this call, or 0. Every scripted SDK
/// function calls answer() once.
CvxCPP::CvxError answer(Call call);

} // namespace CvxScripted
