#pragma once

#include "CvxCPP/CvxCPP.h"
#include "CvxCPP/Image.h"
#include "CvxCPP/Node.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// Opened cameras: features and streams. Camera::Open() in CvxCPP.h returns a Device.
///
/// Each device is a process of its own, so neither a crash nor a hang of a producer reaches the program. If
/// the process ends, or the camera is unplugged, the device is lost: the library opens the camera with the
/// same ID again, once a second until the device is closed, writes back the features that the program has
/// written, in their order and with the selectors for which they were written, and continues a running
/// stream. Commands are not executed again.
///
/// Errors: every function returns a CvxResult. A function that fails does not change its output parameters.
/// No function throws, except that every function may throw std::bad_alloc.
///
/// Times: if the process of the camera ends during a call, the call may take one second longer than the
/// function says, because the library waits for the reason.
///
/// Threads: every function may be called from any thread at any time. Calls for one device are processed one
/// after the other; WaitForImage() and the functions of Image do not wait for them.
namespace CvxCPP {

/// The result of a call.
struct [[nodiscard]] CvxResult
{
    CvxError code = CvxErrorSuccess;
    std::string text; ///< For people: names camera, feature and reason; empty if the call succeeded.

    explicit operator bool() const { return code == CvxErrorSuccess; }
};

enum class DeviceState : std::uint8_t
{
    Open, ///< The camera answers.
    Lost, ///< The camera or its process is gone.
    Reopening, ///< The library is opening the camera again.
    Closed ///< The program has closed the device or shut the system down.
};

/// The library calls this observer for changes of one device. All observers of a device are called on one
/// thread of the library, one call at a time. No lock is held during a call. An observer may call every
/// function of the device except Close(), which would wait for its own caller. Exceptions are ignored.
/// Close(), RemoveObserver() and CvxSystem::Shutdown() wait for a running call, so an observer must not wait
/// for a thread that calls one of them.
class CVXCPP_API IDeviceObserver
{
public:
    virtual ~IDeviceObserver() = default;

    /// The values, limits or access of these nodes may have changed: after a write, all nodes that depend on
    /// the written one; after the start or the end of a stream, all nodes that it locks; after a loss, all
    /// nodes.
    virtual void NodesChanged(const std::vector<std::string> &names) = 0;

    /// `reason` is a text for people. The state Closed is the last call.
    virtual void StateChanged(DeviceState state, const std::string &reason) = 0;
};

/// Which images WaitForImage() returns if the program is slower than the camera.
enum class StreamPolicy : std::uint8_t
{
    EveryImage, ///< The oldest image. Once all buffers are in use, images are lost and counted as underruns.
    NewestImage ///< The newest image. Older ones are skipped and counted.
};

/// Counters since the start of the stream. They continue after the device was lost and opened again.
struct StreamStatistics
{
    std::uint64_t delivered = 0; ///< Images that the producer has delivered, including incomplete ones.
    std::uint64_t incomplete = 0; ///< Delivered images with missing data.
    std::uint64_t lost = 0; ///< Images that never arrived, by gaps in the frame IDs.
    std::uint64_t underruns = 0; ///< Images that were lost because no buffer was free.
    std::uint64_t skipped = 0; ///< Images that StreamPolicy::NewestImage has passed over.
    std::uint64_t bytes = 0; ///< Bytes of the delivered images.
    double imagesPerSecond = 0; ///< Mean over the last second or so; 0 before the second image.
    double bytesPerSecond = 0;
    std::uint32_t reopenCount = 0; ///< How often the stream was continued after a loss.
};

/// What happens to the values that a program has written for a while; see Device::BeginTemporaryChanges().
enum class TemporaryChanges : std::uint8_t
{
    PutBack, ///< The features get the values back that they had before.
    Keep ///< The features keep their present values.
};

/// A running stream. The last reference stops it.
class CVXCPP_API Stream
{
public:
    virtual ~Stream() = default;

    /// Waits for the next image, for at most `timeout`. Incomplete images are returned too. Several threads
    /// may wait; each image goes to one of them. Returns
    /// - CvxErrorTimeout if no image has arrived;
    /// - CvxErrorDeviceLost if the device is lost: the first call after the loss returns this at once, later
    ///   calls wait for the first image of the reopened device;
    /// - CvxErrorClosed if the stream is stopped or the device is closed; images that have arrived before can
    ///   still be fetched.
    virtual CvxResult WaitForImage(std::chrono::milliseconds timeout, std::shared_ptr<const Image> &image)
        = 0;

    /// Returns immediately. Also succeeds after the stream was stopped.
    virtual CvxResult GetStatistics(StreamStatistics &statistics) const = 0;

    /// Stops the camera and the stream. Images that the program holds stay valid. Also succeeds if the stream
    /// is stopped already, or if the camera is lost. Failures of the camera and of the producer are ignored,
    /// because the stream has ended nevertheless. Blocks for at most 3 s. If the producer hangs, its process
    /// is ended, and the device is opened again without the stream; if the hang was not noticed before the
    /// 3 s were over, the function returns CvxErrorTimeout.
    virtual CvxResult Stop() = 0;
};

/// An opened camera. The last reference closes it.
///
/// Every function may return CvxErrorClosed after Close() or CvxSystem::Shutdown(), and CvxErrorDeviceLost
/// while the camera is lost. The functions for nodes may also return
/// - CvxErrorNotFound if there is no node of this name;
/// - CvxErrorDevice if the camera or the producer reports a failure;
/// - CvxErrorTimeout if the camera has not answered within 5 s: its process is killed, and the device is
///   lost; or, without any further effect, if other calls have occupied the camera for so long.
class CVXCPP_API Device
{
public:
    virtual ~Device() = default;

    /// Returns the nodes in the order of the camera's categories; every category comes before its nodes. The
    /// list was read when the camera was opened, so the function returns immediately.
    virtual CvxResult GetNodes(std::vector<NodeInfo> &nodes) const = 0;

    /// Reads value, limits and access of some nodes from the camera. A node whose value cannot be read does
    /// not make the call fail; see NodeState::problem. Blocks for at most 5 s.
    virtual CvxResult ReadStates(const std::vector<std::string> &names, std::vector<NodeState> &states) = 0;

    /// Reads the value of a node from the camera. Returns CvxErrorNotAvailable if the node cannot be read at
    /// present, or CvxErrorWrongType for a category or a command. Blocks for at most 5 s.
    virtual CvxResult Read(const std::string &name, NodeValue &value) = 0;

    /// Writes the value of a node. Integers are accepted for floats. Returns CvxErrorWrongType if the value
    /// is of another type, CvxErrorOutOfRange if it is beyond the limits, between two increments, not an
    /// available entry or of the wrong length, CvxErrorInvalidParameter for a string with a zero byte,
    /// CvxErrorNotAvailable if the camera does not have the node at present, or CvxErrorNotWritable if the
    /// node is read-only or locked; the text says why. Blocks for at most 5 s. The observers are then
    /// notified of all nodes that depend on this one.
    virtual CvxResult Write(const std::string &name, const NodeValue &value) = 0;

    /// Executes a command and returns when the camera has accepted it; NodeState::isCommandDone tells when it
    /// is done. Returns CvxErrorWrongType if the node is no command, CvxErrorNotAvailable if the camera does
    /// not have it at present, or CvxErrorNotWritable. Blocks for at most 5 s.
    virtual CvxResult Execute(const std::string &name) = 0;

    /// Reads a value as text, or writes a text as the value: integers decimal or, with "0x", hexadecimal;
    /// floats with "." and all digits; booleans "true" or "false" ("1" and "0" are accepted); registers as
    /// hexadecimal digits. The texts do not depend on the locale. Returns the errors of Read() and Write(),
    /// and CvxErrorInvalidParameter if the text is not a value of the node's type.
    virtual CvxResult ReadText(const std::string &name, std::string &text) = 0;
    virtual CvxResult WriteText(const std::string &name, const std::string &text) = 0;

    // These functions read and write a value of one type. They return CvxErrorWrongType if the node is of
    // another type, and otherwise what Read() and Write() return.
    CvxResult ReadInteger(const std::string &name, std::int64_t &value) { return readAs(name, value); }
    CvxResult ReadFloat(const std::string &name, double &value) { return readAs(name, value); }
    CvxResult ReadBoolean(const std::string &name, bool &value) { return readAs(name, value); }
    CvxResult ReadString(const std::string &name, std::string &value) { return readAs(name, value); }
    CvxResult ReadRegister(const std::string &name, std::vector<std::uint8_t> &value)
    {
        return readAs(name, value);
    }
    CvxResult WriteInteger(const std::string &name, std::int64_t value) { return Write(name, value); }
    CvxResult WriteFloat(const std::string &name, double value) { return Write(name, value); }
    CvxResult WriteBoolean(const std::string &name, bool value) { return Write(name, value); }
    /// Writes a string or the name of an enumeration's entry.
    CvxResult WriteString(const std::string &name, const std::string &value) { return Write(name, value); }
    CvxResult WriteRegister(const std::string &name, const std::vector<std::uint8_t> &value)
    {
        return Write(name, value);
    }

    /// Begins temporary changes: from now on, the process of the camera remembers the value that a feature
    /// has before it is written for the first time, with the values of its selectors. If the program crashes,
    /// is killed, or closes the device before EndTemporaryChanges(), this process stops the stream and writes
    /// the remembered values back, the last change first, then the selectors; if the camera or its producer
    /// does not answer, it gives up after 5 s. Other programs find the camera in use meanwhile. If the device
    /// is lost and opened again, its temporary values are written again as usual, and the remembered values
    /// stay remembered.
    ///
    /// Commands, for example to load a user set, are not undone. Features that the camera itself changes as a
    /// consequence of a write are put back only if the program has written them, too.
    ///
    /// Returns CvxErrorAlreadyStarted if temporary changes of this device have begun already, or
    /// CvxErrorNotWritable if the device only watches. Blocks for at most 5 s.
    virtual CvxResult BeginTemporaryChanges() = 0;

    /// Ends the temporary changes. The stream goes on. The observers are notified of all nodes that are put
    /// back.
    ///
    /// Returns CvxErrorNotWritable if the camera refuses some values, for example because the running stream
    /// locks these features; the text names them. Their values stay remembered: the next
    /// EndTemporaryChanges() or the end of the device puts them back. Returns CvxErrorNotAvailable if no
    /// temporary changes have begun. Returns CvxErrorDeviceLost if the camera is lost; the changes end
    /// nevertheless, and the values are put back as soon as the camera is open again. Blocks for at most 5 s.
    virtual CvxResult EndTemporaryChanges(TemporaryChanges how) = 0;

    /// Starts the stream with this number of buffers, 2 to 256, or more if the producer needs more. Locks the
    /// features that must not change during a stream, then starts the camera.
    ///
    /// With CvxAccessWatch, or if the producer could open the camera only for reading, nothing is written to
    /// the camera: images arrive when and as long as another program lets the camera send them. If that
    /// program changes the size or the layout of the images, the device is lost and opened again within about
    /// a second, or later if the camera answers slowly, and the stream continues; images that do not fit into
    /// the buffers until then are incomplete.
    ///
    /// Returns CvxErrorAlreadyStarted if a stream of this device runs, CvxErrorNotWritable if this device
    /// only watches and the producer refuses it the stream, usually because the camera sends its images only
    /// to the program that controls it; otherwise CvxErrorNotAvailable if the camera has no stream,
    /// CvxErrorInUse if another program uses the stream, CvxErrorNotFound if the producer does not know the
    /// stream any more, CvxErrorInvalidParameter, CvxErrorDevice, CvxErrorFailed if there is no memory for
    /// the buffers, or CvxErrorTimeout if the camera has not answered in time: its process is killed, and the
    /// device is lost. Blocks for at most 10 s.
    virtual CvxResult StartStream(unsigned buffers, StreamPolicy policy, std::shared_ptr<Stream> &stream) = 0;

    /// Registers an observer, which the device keeps until it is removed or the device is closed. Returns
    /// CvxErrorInvalidParameter if `observer` is null.
    virtual CvxResult AddObserver(const std::shared_ptr<IDeviceObserver> &observer) = 0;
    /// Removes an observer and waits until it is not being called any more, unless the observer makes the
    /// call. Also succeeds if the observer is not registered.
    virtual CvxResult RemoveObserver(const std::shared_ptr<IDeviceObserver> &observer) = 0;

    /// Returns the state of the device and how often it was lost and opened again. Never fails.
    virtual DeviceState GetState(std::uint32_t &reopenCount) const = 0;

    /// Stops the stream, closes the camera and releases the observers. Also succeeds if the device is closed
    /// already. Blocks for at most 3 s, or 6 s if temporary changes have to be put back; a producer that has
    /// not closed the camera by then is killed. An
    /// observer that blocks delays the function. Returns CvxErrorFailed, without any effect, if an observer
    /// of this device makes the call.
    virtual CvxResult Close() = 0;

private:
    template <typename Value>
    CvxResult readAs(const std::string &name, Value &value)
    {
        NodeValue read;
        CvxResult result = Read(name, read);
        if (!result)
            return result;
        auto *const typed = std::get_if<Value>(&read);
        if (!typed)
            return {CvxErrorWrongType, "The feature \"" + name + "\" is of another type."};
        value = std::move(*typed);
        return result;
    }
};

} // namespace CvxCPP
