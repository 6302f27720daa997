#pragma once

#include "sdk/simulator/RegisterBank.h"

#include <cstdint>

/// Decides when a camera that runs freely takes its images. All times are nanoseconds of the monotonic clock.
class AcquisitionClock
{
public:
    /// The next image is due at once.
    void restart(std::int64_t now) { m_next = now; }

    /// Sets the time from one image to the next one. The next image is due after a period at the latest.
    void setPeriod(std::int64_t period, std::int64_t now);
    std::int64_t period() const { return m_period; }

    /// Returns when the next image is due.
    std::int64_t nextImage() const { return m_next; }

    /// Called when an image was taken. A camera that is late by more than an image does not catch up.
    void imageTaken(std::int64_t now);

private:
    std::int64_t m_period = 0;
    std::int64_t m_next = 0;
};

/// Returns the time from one image to the next one without triggers; 0 if images are taken as fast as
/// possible.
std::int64_t imagePeriod(const RegisterBank &bank);

/// Returns the shortest time between two images that the link allows.
std::int64_t transferTime(const RegisterBank &bank);
