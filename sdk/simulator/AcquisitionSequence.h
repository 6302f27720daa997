#pragma once

#include "sdk/simulator/AcquisitionClock.h"
#include "sdk/simulator/TriggerInput.h"

#include <cstdint>
#include <optional>

/// Decides when the camera takes its next image: after the start of the acquisition, by its own clock or by
/// triggers, until the number of images is reached. All times are nanoseconds of the monotonic clock.
class AcquisitionSequence
{
public:
    explicit AcquisitionSequence(const RegisterFile &registers);

    /// Takes over the settings.
    void update(const RegisterBank &bank, std::int64_t now);

    /// Returns when the next image is complete; nothing if no acquisition runs or a trigger is missing.
    std::optional<std::int64_t> nextImage();

    /// Called when the image of nextImage() was taken.
    void imageTaken(std::int64_t now);

    /// Returns true if the camera takes images as fast as it gets buffers for them.
    bool isUnlimited() const { return m_clock.period() == 0 && !hasTriggers(); }

    /// Returns the time from one image to the next one if the camera runs freely.
    std::int64_t period() const { return m_clock.period(); }

    /// Returns true if the last image of the acquisition was taken.
    bool isFinished() const { return m_imageLimit != 0 && m_images >= m_imageLimit; }

    /// Returns the number of images that were taken since the start of the acquisition.
    std::uint64_t images() const { return m_images; }

private:
    bool hasTriggers() const { return m_frameTrigger.isOn() || m_lineTrigger.isOn(); }
    void restart(std::int64_t now);
    bool takeStart();
    bool takeFrame();
    std::optional<std::int64_t> takeLines();

    TriggerInput m_startTrigger;
    TriggerInput m_frameTrigger;
    TriggerInput m_lineTrigger;
    AcquisitionClock m_clock;

    bool m_isActive = false;
    std::int64_t m_starts = 0; // Number of acquisitions since power-on.
    std::uint64_t m_imageLimit = 0; // 0: no limit.
    std::uint32_t m_lines = 1; // Lines in an image.
    std::int64_t m_imageTime = 0; // Time from the start of a triggered image to its end.

    std::uint64_t m_images = 0;
    std::int64_t m_readyTime = 0; // Triggers are accepted from this time on.
    bool m_isStarted = false; // The acquisition has got its trigger.
    std::optional<std::int64_t> m_frameStart;
    std::optional<std::int64_t> m_imageEnd;
};
