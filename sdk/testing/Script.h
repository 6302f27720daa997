#pragma once

#include "CvxCPP/CvxCPP.h"

#include <climits>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

/// What the scripted SDK answers: plain records that a test fills in. Defaults describe an SDK in which
/// everything works and no camera is connected.
namespace CvxScripted {

/// One text and how its two reading calls go.
struct Text
{
    Text() = default;
    Text(const char *text) : value(text) { }
    Text(std::string text) : value(std::move(text)) { }

    std::string value; ///< May hold NULs.
    CvxCPP::CvxError lengthError = CvxCPP::CvxErrorSuccess; ///< Answer to the call with a null buffer.
    CvxCPP::CvxError textError = CvxCPP::CvxErrorSuccess; ///< Answer to the call with a buffer.
    bool countsNul = true; ///< The length counts a closing NUL, and one is written.
    std::optional<unsigned> length; ///< Told instead of the true length.
    std::optional<unsigned> writtenSize; ///< Told by the second call instead of the number of bytes written.
};

/// What an interface tells while one value of "DeviceSelector" is set.
struct DeviceRecord
{
    Text id;
    Text vendor;
    CvxCPP::CvxError selectError = CvxCPP::CvxErrorSuccess;
};

/// One transport-layer interface. Cameras that share the record share the interface.
struct InterfaceRecord
{
    std::map<long, DeviceRecord> devices; ///< By selector value.
    std::optional<long> min; ///< Told instead of the smallest selector value.
    std::optional<long> max; ///< Told instead of the largest selector value.
    std::set<std::string> missingFeatures; ///< Names that give CvxErrorNotFound.
    std::set<std::string> nullFeatures; ///< Names that give success and no feature.
    long selected = 0; ///< What "DeviceSelector" is set to now; a value without a record has no texts.
};

/// One camera.
struct CameraRecord
{
    Text id;
    Text model;
    Text name;
    Text serialNumber;
    Text extendedId;
    std::uint32_t type = CvxCPP::CvxTransportLayerUnknown; ///< Also values the SDK does not name.
    std::shared_ptr<InterfaceRecord> iface; ///< Null: the call succeeds and gives none.
    bool nullHandle = false; ///< The list holds a null pointer in this place.
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
    std::string subject{}; ///< The feature's name, or the ID of the camera asked.
    bool asksLength = false; ///< Text calls: the buffer was null.
    long value = 0; ///< SetValue: the value.
    std::thread::id thread{};
};

/// Everything the SDK answers.
struct Script
{
    std::vector<CameraRecord> cameras;
    std::map<Function, CvxCPP::CvxError> errors; ///< Functions that fail, whoever is asked.
    std::optional<unsigned> countedCameras; ///< Told by CountCameras instead of the true count.
    std::optional<unsigned> filledCameras; ///< At most so many are filled in; told as the number written.

    /// Sees every call before it is answered, on the calling thread and with no lock held. It may block,
    /// throw, or give an error to answer with; 0 lets the script answer.
    std::function<CvxCPP::CvxError(const Call &)> intercept;
};

} // namespace CvxScripted
