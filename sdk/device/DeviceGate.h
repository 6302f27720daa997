#pragma once

#include "sdk/device/DeviceLife.h"
#include "sdk/device/HostChannel.h"
#include "sdk/device/StreamCore.h"
#include "sdk/process/WakeEvent.h"

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

/// Coordinates the threads of the program, which send requests to the host of a device, with the thread of
/// the device, which starts, watches and ends the host. Every function may be called from any thread unless
/// it says otherwise.
class DeviceGate
{
public:
    DeviceGate(Milliseconds reopenInterval, Milliseconds closeTimeout);

    // ---- For all threads ----

    CvxCPP::DeviceState state() const;
    CvxCPP::DeviceState state(std::uint32_t &reopenCount) const;

    /// The right to use the host, which one thread at a time has. The destructor passes it on.
    class Turn
    {
    public:
        Turn(DeviceGate &gate, std::shared_ptr<HostChannel> host, std::uint64_t number);
        Turn(Turn &&other) = default;
        Turn &operator=(Turn &&other) = delete;

        HostChannel &host() const { return *m_host; }
        std::uint64_t hostNumber() const { return m_number; }

    private:
        struct End
        {
            void operator()(DeviceGate *gate) const { gate->endTurn(); }
        };
        std::unique_ptr<DeviceGate, End> m_gate;
        std::shared_ptr<HostChannel> m_host;
        std::uint64_t m_number;
    };

    /// Waits for the right to use the host. Returns nothing if the device is not open, or at the deadline.
    std::optional<Turn> takeTurn(TimePoint deadline);

    /// Reports that this host cannot be used any more. The first report counts.
    void lose(std::uint64_t host, const Breakdown &reason);
    /// Returns why the device was last lost, as a sentence for people. Waits until the thread of the device
    /// knows how the host has ended, but not beyond the deadline.
    std::string lossReason(TimePoint deadline) const;
    /// Returns the number of the host that was started last.
    std::uint64_t hostNumber() const;

    /// Closes the device for the program. The thread of the device then ends the host.
    void close();

    /// The running stream; null if there is none. The stream changes only in a turn, or to null.
    std::shared_ptr<StreamCore> stream() const;
    void setStream(std::shared_ptr<StreamCore> stream);
    /// Returns true if this was the running stream.
    bool removeStream(const std::shared_ptr<StreamCore> &stream);

    // ---- For the thread of the device ----

    int wakeDescriptor() const { return m_wakeEvent.descriptor(); }
    void clearWake() const { m_wakeEvent.clear(); }

    /// Sets the host that is started now and returns its number. If the device was closed meanwhile, the
    /// channel is aborted.
    std::uint64_t setHost(std::shared_ptr<HostChannel> host);
    std::shared_ptr<HostChannel> host() const;
    void dropHost();

    /// Lets the program use the host. Returns false if the device was closed, or if the running stream is
    /// not `stream` any more.
    bool opened(const std::shared_ptr<StreamCore> &stream);
    bool reopeningFailed(const std::string &reason);
    bool beginReopening(TimePoint now);
    TimePoint nextReopening() const;

    /// Returns the number of turns so far.
    std::uint64_t turnCount() const;
    /// Waits until no thread uses the host. Returns false at the deadline.
    bool waitIdle(TimePoint deadline);

    Breakdown loss() const;
    /// Replaces the reason of the loss by one that tells how the host has ended.
    void explainLoss(const std::string &reason);
    TimePoint closeDeadline() const;

private:
    void endTurn();
    bool isOpen() const { return m_life.state() == CvxCPP::DeviceState::Open; }

    const Milliseconds m_closeTimeout;
    const WakeEvent m_wakeEvent; // Wakes the thread of the device.

    mutable std::mutex m_mutex; // Guards all members below.
    mutable std::condition_variable m_changed;
    DeviceLife m_life;
    std::shared_ptr<HostChannel> m_host;
    std::uint64_t m_hostNumber = 0;
    bool m_isBusy = false; // Whether a turn exists.
    std::uint64_t m_turnCount = 0;
    Breakdown m_loss;
    bool m_isLossExplained = true;
    std::shared_ptr<StreamCore> m_stream;
    TimePoint m_closeDeadline{};
};
