#pragma once

#include "tools/kit/measure/focus/FocusMeasurement.h"
#include "tools/kit/measure/focus/FocusSeries.h"

#include <deque>
#include <optional>
#include <vector>

/// The sharpness over time while a lens is being turned: holds the peaks and says how to go on.
class FocusHistory
{
public:
    static constexpr double trendSeconds = 60;
    static constexpr std::size_t maxSamples = 6000; ///< Ten minutes with ten measurements per second.

    /// What the person at the lens should do.
    enum class Advice
    {
        None, ///< Nothing was measured yet.
        Turn, ///< Turn the lens in any direction.
        KeepTurning,
        TurnBack,
        Done ///< The sharpness was lower on both sides, and it is at its peak now.
    };

    /// Adds a measurement; `seconds` never falls. Pictures that are too dark or overexposed
    /// are left out, and so are pictures without edges before the first one with edges. Another grid
    /// or size of the picture begins a new history.
    void add(double seconds, const FocusMeasurement &measurement);

    /// Forgets everything, because the camera looks at something else.
    void clear();

    /// The samples since the last clear(), the oldest first; their positions are the times.
    const std::deque<FocusSample> &samples() const { return m_samples; }

    double peak() const { return m_peak; } ///< Highest sharpness; 0 if there is none.
    double peakTime() const { return m_peakTime; }
    double share() const; ///< Present sharpness as a share of the peak.

    /// Returns the highest sharpness of a region; nothing if the region never had edges.
    std::optional<double> regionPeak(std::size_t region) const;

    /// Returns the present share of the peak of a region; nothing if the region never had edges, or is too
    /// dark or clipped now.
    std::optional<double> regionShare(std::size_t region) const;

    /// Returns the change of the sharpness during the last seconds, as a share of the peak per second.
    double trend() const;

    Advice advice() const;

    /// What the camera looks at has moved during the last second: the regions have become brighter and
    /// darker, but the picture has not. The regions' shares then also change with what they contain.
    bool isMoving() const;

    /// The sharpness was at its present peak, and lower on both sides of it.
    bool hasPassedPeak() const;

    /// Returns the samples of the last turn of the lens through the best position: since the sharpness was
    /// lowest before the peak. The order in which the regions became sharp says how the focus is tilted.
    std::vector<FocusSample> lastTurn() const;

private:
    std::deque<FocusSample> m_samples;
    double m_peak = 0;
    double m_peakTime = 0;
    double m_lowestBefore = 0; // Lowest sharpness before the peak, and after it.
    double m_lowestAfter = 0;
    double m_passedPeak = 0; // The peak when the sharpness had fallen on both sides; 0 if it has not.
    std::vector<double> m_regionPeaks; // 0 for a region that never had edges.
};
