#include "tools/kit/measure/run/MeasureContext.h"

#include "tools/kit/measure/run/FreshImageRule.h"

#include <algorithm>
#include <initializer_list>
#include <optional>

using namespace CvxCPP;
using Nanoseconds = std::chrono::nanoseconds;

namespace {

constexpr std::chrono::milliseconds progressInterval{100}; // A cancelled measurement ends within this time.
constexpr std::size_t maxIncomplete = 20; // One after the other.

/// Returns the value of the first of these features that the camera has.
std::optional<double> firstPositive(Device &device, std::initializer_list<const char *> names)
{
    for (const char *const name : names) {
        double value = 0;
        if (device.ReadFloat(name, value) && value > 0)
            return value;
    }
    return std::nullopt;
}

Nanoseconds toNanoseconds(double seconds)
{
    constexpr double longest = 3600; // No camera exposes longer.
    return std::chrono::duration_cast<Nanoseconds>(
        std::chrono::duration<double>(std::clamp(seconds, 0.0, longest)));
}

FreshImageRule::Timing readTiming(Device &device)
{
    FreshImageRule::Timing timing;
    // Both are in microseconds.
    timing.exposure
        = toNanoseconds(firstPositive(device, {"ExposureTime", "ExposureTimeAbs"}).value_or(0) * 1e-6);
    const auto rate = firstPositive(device,
        {"AcquisitionResultingFrameRate", "ResultingFrameRate", "ResultingFrameRateAbs",
            "AcquisitionFrameRate", "AcquisitionFrameRateAbs"});
    if (rate)
        timing.period = std::max(toNanoseconds(1 / *rate), timing.exposure);
    std::string trigger;
    timing.isTriggered = device.ReadString("TriggerMode", trigger) && trigger == "On";
    return timing;
}

std::uint64_t now()
{
    // The steady clock of this platform is CLOCK_MONOTONIC, in which ImageInfo::receivedAt is measured.
    return static_cast<std::uint64_t>(
        Nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count());
}

Sentence noImageSentence(bool isTriggered, std::chrono::duration<double> waited)
{
    const SentenceNumber seconds{waited.count(), 0};
    if (isTriggered)
        return {
            QT_TRANSLATE_NOOP("Sentence",
                "The camera has sent no image for %1 s, because it waits for a trigger. Trigger it, or set "
                "TriggerMode to Off, and measure again."),
            {seconds}};
    return {QT_TRANSLATE_NOOP("Sentence",
                "The camera has sent no image for %1 s. Check whether the live picture moves, and the cable, "
                "then measure again."),
        {seconds}};
}

Sentence failureSentence(const CvxResult &result)
{
    if (result.code == CvxErrorDeviceLost)
        return {QT_TRANSLATE_NOOP("Sentence",
                    "The camera was lost during the measurement. Check its cable and its power, wait until "
                    "the picture is back, then measure again. (%1)"),
            {result.text}};
    if (result.code == CvxErrorClosed)
        return {QT_TRANSLATE_NOOP("Sentence",
            "The stream has ended during the measurement. Start the live picture and measure again.")};
    return untranslated(result.text);
}

/// Takes images one after the other, and says why one cannot be taken.
class ImageTaking
{
public:
    ImageTaking(const MeasureContext &context, std::size_t count, Nanoseconds imageLimit)
        : m_context(context),
          m_count(count),
          m_timing(readTiming(context.device)),
          m_rule(now(), m_timing),
          m_limit(imageLimit + m_rule.delay())
    { }

    Sentence run(const std::function<Sentence(const Image &)> &take)
    {
        m_context.frames.discard();
        for (; m_done < m_count; ++m_done) {
            std::shared_ptr<const Image> image;
            if (Sentence problem = waitForGood(image); !problem.isEmpty())
                return problem;
            if (Sentence problem = take(*image); !problem.isEmpty())
                return problem;
        }
        return m_context.progress(m_done, m_count) ? Sentence{} : cancelledSentence();
    }

private:
    /// Waits for the next image that is complete and was exposed late enough.
    Sentence waitForGood(std::shared_ptr<const Image> &image)
    {
        const auto start = std::chrono::steady_clock::now();
        std::size_t incomplete = 0;
        for (;;) {
            if (!m_context.progress(m_done, m_count))
                return cancelledSentence();
            const auto waited = std::chrono::steady_clock::now() - start;
            const CvxResult result = m_context.frames.next(progressInterval, image);
            if (!result && result.code != CvxErrorTimeout)
                return failureSentence(result);
            if (result && m_rule.isFresh(image->GetInfo())) {
                if (image->GetInfo().isComplete)
                    return {};
                if (++incomplete > maxIncomplete)
                    return incompleteSentence();
            }
            if (waited >= m_limit)
                return noImageSentence(m_timing.isTriggered, waited);
        }
    }

    static Sentence incompleteSentence()
    {
        return {QT_TRANSLATE_NOOP("Sentence",
            "The images arrive with missing data. Check the cable and the network card (\"cvxctl doctor\" "
            "helps), or lower the image rate, then measure again.")};
    }

    const MeasureContext &m_context;
    const std::size_t m_count;
    const FreshImageRule::Timing m_timing;
    FreshImageRule m_rule;
    const Nanoseconds m_limit; // For each image.
    std::size_t m_done = 0;
};

} // namespace

Sentence cancelledSentence()
{
    return {QT_TRANSLATE_NOOP("Sentence", "The measurement was cancelled.")};
}

Sentence takeImages(const MeasureContext &context, std::size_t count, std::chrono::milliseconds imageLimit,
    const std::function<Sentence(const Image &)> &take)
{
    return ImageTaking(context, count, imageLimit).run(take);
}
