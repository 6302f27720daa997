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

/// The answers of the scripted SDK: plain records that a test fills in. By default every call succeeds and no
/// camera is connected.
namespace CvxScripted {

/// A string that is read in two calls.
struct StringField
{
    StringField() = default;
    StringField(const char *text) : value(text) { }
    StringField(std::string text) : value(std::move(text)) { }

    std::string value; ///< May contain NULs.
    bool countsNul = true; ///< The length includes a terminating NUL, which is also written.
};

/// What an interface reports while one value of "DeviceSelector" is set.
struct DeviceRecord
{
    StringField id;
    StringField vendor;
};

/// One transport-layer interface. Cameras that share the record share the interface.
struct InterfaceRecord
{
    std::map<long, DeviceRecord> devices; ///< By selector value.
    std::optional<long> min; ///< Reported instead of the smallest selector value.
    std::optional<long> max; ///< Reported instead of the largest selector value.
    std::set<std::string> features{"DeviceUpdateList", "DeviceSelector", "DeviceID", "DeviceVendorName"};
    long selected = 0; ///< The current value of "DeviceSelector".
};

/// One camera.
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
};

/// The functions of the SDK.
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
    GetInterfaceType,
    GetInterface,
    GetFeatureByName,
    RunCommand,
    GetRange,
    SetValue,
    GetValue
};

/// One call that reached the SDK.
struct Call
{
    Function function;
    std::string subject{}; ///< Name of the feature, or ID of the camera.
    bool asksLength = false; ///< String getters: the buffer was null.
    long value = 0; ///< Argument of SetValue.
    std::thread::id thread{};
};

/// All answers of the SDK.
struct Script
{
    std::vector<CameraRecord> cameras;
    std::map<Function, CvxCPP::CvxError> errors; ///< Functions that fail on every object.
    std::optional<unsigned> countedCameras; ///< Reported by CountCameras instead of the true count.
    std::optional<unsigned> filledCameras; ///< Upper limit of the handles written; also the count reported.

    /// Called before every call is answered, on the calling thread and with no lock held. It may block,
    /// throw, or return the error to answer with. If it returns 0, the records answer the call.
    std::function<CvxCPP::CvxError(const Call &)> intercept;
};

/// Records the call and returns the error that the script has for its function, or 0. Every scripted SDK
/// function calls this first.
CvxCPP::CvxError answer(Call call);

} // namespace CvxScripted
