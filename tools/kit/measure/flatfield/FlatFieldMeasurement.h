#pragma once

#include "tools/kit/measure/flatfield/FlatFieldResult.h"
#include "tools/kit/measure/flatfield/FrameStack.h"
#include "tools/kit/measure/run/MeasureContext.h"

#include <cstddef>
#include <memory>
#include <optional>

struct FlatFieldOptions
{
    std::size_t images = 32; ///< Dark and bright images that the correction is made of.
    GainDetail detail = GainDetail::EveryPixel;
    GainLevel level = GainLevel::Mean;
    bool setsExposure = false; ///< Sets the exposure time for the bright images.

    /// Further images that the correction is checked with.
    std::size_t checkImages() const { return images / 2 > 2 ? images / 2 : 2; }
};

/// Takes dark images, then bright images, and computes the correction. The two steps are measurements of
/// their own, between which the person uncovers the lens. Both switch automatic functions, gamma and the
/// camera's own correction off. The memory does not grow with the number of images.
class FlatFieldMeasurement
{
public:
    explicit FlatFieldMeasurement(const FlatFieldOptions &options);
    ~FlatFieldMeasurement();

    /// Takes the dark images. Fails with a sentence if they cannot be used.
    Sentence takeDark(const MeasureContext &context);

    /// Takes the bright images and computes the correction. Needs hasDark(). If it fails, the dark images
    /// stay, so the step can be repeated.
    Sentence takeBright(const MeasureContext &context);

    void setOptions(const FlatFieldOptions &options) { m_options = options; }
    bool hasDark() const { return m_dark != nullptr; }

    /// Warnings about the dark images.
    const std::vector<Sentence> &darkWarnings() const { return m_darkWarnings; }

    /// The value of a dark pixel, 0 without dark images.
    double darkLevel() const { return m_dark ? m_dark->brightestLevel() : 0; }

    /// The correction of the last successful takeBright(); empty before.
    const std::optional<FlatFieldResult> &result() const { return m_result; }

private:
    struct Analog; // Settings that both steps must have in common.

    Sentence takeStacks(const MeasureContext &context, FrameStack &reference,
        const std::function<Sentence(const CvxCPP::Image &)> &check);
    Sentence restoreAnalog(CvxCPP::Device &device) const;
    Sentence build(const FrameStack &bright, FlatFieldResult &result) const;

    FlatFieldOptions m_options;
    bool m_isLineScan = false;
    std::unique_ptr<FrameStack> m_dark; // Null until the dark images were taken.
    std::unique_ptr<FrameStack> m_darkCheck;
    std::unique_ptr<Analog> m_analog;
    ReferenceSettings m_darkSettings;
    std::vector<Sentence> m_darkWarnings;
    std::optional<FlatFieldResult> m_result;
};
