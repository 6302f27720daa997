#include "tools/kit/measure/focus/FocusSweep.h"

#include <algorithm>
#include <cmath>

using namespace CvxCPP;

namespace {
constexpr double fineMargin = 1.5; // Around the regions' coarse peaks, in coarse steps.
constexpr double outerShare = 0.1; // This share of the peaks at each end does not widen the fine search.
constexpr double minContrast = 1.2; // Highest to lowest sharpness of a sweep that has a peak.

struct Range
{
    double from;
    double to;
};

/// One search.
class Sweep
{
public:
    Sweep(const MeasureContext &context, const SweepOptions &options, SweepResult &result)
        : m_context(context), m_options(options), m_result(result)
    { }

    Sentence run()
    {
        const FocusAxis &axis = m_result.axis;
        if (const CvxResult read = readPosition(m_context.device, axis, m_result.startPosition); !read)
            return untranslated(read.text);
        if (Sentence problem = measureRange({axis.min, axis.max}, m_options.coarseSteps, m_result.coarse);
            !problem.isEmpty())
            return problem;
        if (Sentence problem = contrastProblem(); !problem.isEmpty())
            return problem;
        const Range fine = fineRange();
        if (Sentence problem = approach(fine.from); !problem.isEmpty())
            return problem;
        if (Sentence problem = measureRange(fine, m_options.fineSteps, m_result.fine); !problem.isEmpty())
            return problem;
        m_result.analysis = analyseFocus(m_result.fine);
        if (!m_result.analysis.best)
            return noPeakSentence();
        m_result.bestPosition = axis.nearest(*m_result.analysis.best);
        if (Sentence problem = approach(m_result.bestPosition); !problem.isEmpty())
            return problem;
        return measureAt(m_result.bestPosition, m_result.last);
    }

private:
    std::size_t total() const { return m_options.coarseSteps + m_options.fineSteps + 1; }

    Sentence measureRange(const Range &range, std::size_t steps, std::vector<FocusSample> &samples)
    {
        for (std::size_t i = 0; i < steps; ++i) {
            const double share = static_cast<double>(i) / static_cast<double>(steps - 1);
            FocusSample sample;
            sample.position = m_result.axis.nearest(range.from + share * (range.to - range.from));
            if (!samples.empty() && samples.back().position >= sample.position) {
                ++m_done; // The increments of the camera are coarser than the steps.
                continue;
            }
            if (Sentence problem = measureAt(sample.position, sample.measurement); !problem.isEmpty())
                return problem;
            samples.push_back(std::move(sample));
        }
        return {};
    }

    double coarseStep() const
    {
        return (m_result.axis.max - m_result.axis.min) / static_cast<double>(m_options.coarseSteps - 1);
    }

    /// Moves the lens below the position, so that it comes from there: the mechanics have play.
    Sentence approach(double position)
    {
        return moveTo(m_result.axis.nearest(std::max(m_result.axis.min, position - coarseStep())));
    }

    Sentence moveTo(double position)
    {
        if (const CvxResult written = writePosition(m_context.device, m_result.axis, position); !written)
            return untranslated(written.text);
        return waitForLens();
    }

    Sentence measureAt(double position, FocusMeasurement &measurement)
    {
        if (Sentence problem = moveTo(position); !problem.isEmpty())
            return problem;
        const MeasureProgress progress
            = [this](std::size_t, std::size_t) { return m_context.progress(m_done, total()); };
        Sentence problem = takeImages({m_context.device, m_context.frames, progress}, 1, usualImageLimit,
            [this, &measurement](const Image &image) {
                return m_meter.measure(rawImage(image), m_options.focus, measurement);
            });
        ++m_done;
        return problem;
    }

    /// Lets the images pass that show the lens in movement.
    Sentence waitForLens()
    {
        using Clock = std::chrono::steady_clock;
        const Clock::time_point end = Clock::now() + m_options.settle;
        while (Clock::now() < end) {
            if (!m_context.progress(m_done, total()))
                return cancelledSentence();
            std::shared_ptr<const Image> image;
            const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
            const CvxResult result = m_context.frames.next(left + std::chrono::milliseconds(1), image);
            if (!result && result.code != CvxErrorTimeout)
                return untranslated(result.text);
        }
        return {};
    }

    /// Returns why the coarse samples show no peak; empty if they do.
    Sentence contrastProblem() const
    {
        const FocusSample *sharpest = nullptr;
        double lowest = 0;
        for (const FocusSample &sample : m_result.coarse) {
            if (!sharpest || sample.measurement.sharpness > sharpest->measurement.sharpness)
                sharpest = &sample;
            lowest = &sample == &m_result.coarse.front() ? sample.measurement.sharpness
                                                         : std::min(lowest, sample.measurement.sharpness);
        }
        if (!sharpest)
            return noPeakSentence();
        if (!sharpest->measurement.isUsable())
            return sharpest->measurement.problem;
        return sharpest->measurement.sharpness > minContrast * lowest ? Sentence{} : noPeakSentence();
    }

    /// Returns the coarse sample in which a region is sharpest; null if it is never exposed well.
    const FocusSample *sharpestCoarse(std::size_t region) const
    {
        const FocusSample *sharpest = nullptr;
        for (const FocusSample &sample : m_result.coarse) {
            const RegionFocus &focus = sample.measurement.regions[region];
            if (focus.state == RegionFocus::State::TooDark || focus.state == RegionFocus::State::Clipped)
                continue;
            if (!sharpest || focus.sharpness > sharpest->measurement.regions[region].sharpness)
                sharpest = &sample;
        }
        return sharpest;
    }

    /// Returns the range that contains the coarse peaks of nearly all regions.
    Range fineRange() const
    {
        std::vector<double> peaks;
        for (std::size_t region = 0; region < m_options.focus.grid.size(); ++region) {
            const FocusSample *const sharpest = sharpestCoarse(region);
            if (sharpest && sharpest->measurement.regions[region].isUsable())
                peaks.push_back(sharpest->position);
        }
        if (peaks.empty())
            return {m_result.axis.min, m_result.axis.max};
        std::sort(peaks.begin(), peaks.end());
        const auto outer = static_cast<std::size_t>(outerShare * static_cast<double>(peaks.size()));
        return {std::max(m_result.axis.min, peaks[outer] - fineMargin * coarseStep()),
            std::min(m_result.axis.max, peaks[peaks.size() - 1 - outer] + fineMargin * coarseStep())};
    }

    static Sentence noPeakSentence()
    {
        return {QT_TRANSLATE_NOOP("Sentence",
            "The picture became sharp at no position of the lens. Point the camera at something with "
            "structure, check the distance, and search again.")};
    }

    const MeasureContext &m_context;
    const SweepOptions &m_options;
    SweepResult &m_result;
    FocusMeter m_meter;
    std::size_t m_done = 0;
};
} // namespace

Sentence sweepFocus(const MeasureContext &context, const SweepOptions &options, SweepResult &result)
{
    const auto axis = findFocusAxis(context.device);
    if (!axis)
        return {QT_TRANSLATE_NOOP("Sentence",
            "The camera cannot move its lens: it has no feature for the position of the focus, for example "
            "LensFocusPosition. Turn the lens by hand.")};
    result = {};
    result.axis = *axis;
    return Sweep(context, options, result).run();
}
