#include "tools/kit/measure/focus/FocusHistory.h"

#include "tools/kit/measure/focus/LeastSquares.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double trendWindow = 1.5; // Seconds.
constexpr double changing = 0.06; // Share of the peak per second; a moving scene and flicker stay below it.
constexpr double doneShare = 0.95;
constexpr double passedShare = 0.85; // How far the sharpness has to fall before a peak counts as passed.
constexpr double samePeak = 1.1; // A second turn through the same peak may find a higher value up to this.

constexpr double movementWindow = 1; // Seconds.
constexpr double movedRegion = 0.08; // Relative change of the brightness of a region; blur changes it less.
constexpr double steadyPicture = 0.03;

double relativeChange(double before, double after)
{
    return before > 0 ? std::abs(after / before - 1) : 0;
}

bool isSameView(const FocusMeasurement &a, const FocusMeasurement &b)
{
    return a.grid == b.grid && a.width == b.width && a.height == b.height;
}
} // namespace

void FocusHistory::add(double seconds, const FocusMeasurement &measurement)
{
    if (!measurement.isExposed || (m_samples.empty() && !measurement.isUsable()))
        return;
    if (!m_samples.empty() && !isSameView(m_samples.back().measurement, measurement))
        clear();
    m_regionPeaks.resize(measurement.regions.size());
    for (std::size_t i = 0; i < m_regionPeaks.size(); ++i)
        if (measurement.regions[i].isUsable())
            m_regionPeaks[i] = std::max(m_regionPeaks[i], measurement.regions[i].sharpness);
    if (m_samples.empty())
        m_lowestBefore = measurement.sharpness;
    if (measurement.sharpness > m_peak) {
        m_lowestBefore = std::min(m_lowestBefore, m_samples.empty() ? measurement.sharpness : m_lowestAfter);
        m_lowestAfter = m_peak = measurement.sharpness;
        m_peakTime = seconds;
    }
    m_lowestAfter = std::min(m_lowestAfter, measurement.sharpness);
    if (m_lowestBefore < passedShare * m_peak && m_lowestAfter < passedShare * m_peak)
        m_passedPeak = m_peak;
    m_samples.push_back({seconds, measurement});
    if (m_samples.size() > maxSamples)
        m_samples.pop_front();
}

void FocusHistory::clear()
{
    *this = {};
}

double FocusHistory::share() const
{
    return m_peak > 0 ? m_samples.back().measurement.sharpness / m_peak : 0;
}

std::optional<double> FocusHistory::regionPeak(std::size_t region) const
{
    if (region >= m_regionPeaks.size() || m_regionPeaks[region] <= 0)
        return {};
    return m_regionPeaks[region];
}

std::optional<double> FocusHistory::regionShare(std::size_t region) const
{
    const auto peak = regionPeak(region);
    if (!peak)
        return {};
    const RegionFocus &now = m_samples.back().measurement.regions[region];
    if (now.state == RegionFocus::State::TooDark || now.state == RegionFocus::State::Clipped)
        return {};
    return std::clamp(now.sharpness / *peak, 0.0, 1.0);
}

double FocusHistory::trend() const
{
    if (m_peak <= 0)
        return 0;
    LeastSquares line(2);
    const double now = m_samples.back().position;
    for (auto sample = m_samples.rbegin(); sample != m_samples.rend(); ++sample) {
        if (sample->position < now - trendWindow)
            break;
        line.add({1, sample->position - now}, sample->measurement.sharpness);
    }
    const auto parameters = line.solve();
    return parameters ? parameters->at(1) / m_peak : 0;
}

bool FocusHistory::hasPassedPeak() const
{
    return m_passedPeak > 0 && m_peak < samePeak * m_passedPeak;
}

FocusHistory::Advice FocusHistory::advice() const
{
    if (m_samples.empty())
        return Advice::None;
    const double trend = this->trend();
    const bool isFalling = m_lowestAfter < passedShare * m_peak && trend < -changing;
    if (hasPassedPeak() && share() >= doneShare)
        return Advice::Done;
    if (trend > changing)
        return Advice::KeepTurning;
    if (isFalling || (hasPassedPeak() && share() < passedShare))
        return Advice::TurnBack;
    return share() < doneShare ? Advice::KeepTurning : Advice::Turn;
}

bool FocusHistory::isMoving() const
{
    if (m_samples.empty())
        return false;
    const FocusMeasurement &now = m_samples.back().measurement;
    const auto before = std::find_if(m_samples.rbegin(), m_samples.rend(), [this](const FocusSample &sample) {
        return sample.position <= m_samples.back().position - movementWindow;
    });
    if (before == m_samples.rend()
        || relativeChange(before->measurement.brightness, now.brightness) > steadyPicture)
        return false;
    for (std::size_t i = 0; i < now.regions.size(); ++i)
        if (relativeChange(before->measurement.regions[i].brightness, now.regions[i].brightness)
            > movedRegion)
            return true;
    return false;
}

std::vector<FocusSample> FocusHistory::lastTurn() const
{
    const auto sharpness = [](const FocusSample &a, const FocusSample &b) {
        return a.measurement.sharpness < b.measurement.sharpness;
    };
    const auto top = std::find_if(m_samples.begin(), m_samples.end(),
        [this](const FocusSample &sample) { return sample.position >= m_peakTime; });
    const auto begin = std::min_element(m_samples.begin(), top, sharpness);
    const auto end = std::min_element(top, m_samples.end(), sharpness);
    return {begin, end == m_samples.end() ? end : end + 1};
}
