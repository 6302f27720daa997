#pragma once

#include "tests/kit/measure/flatfield/SensorPictures.h"
#include "tools/kit/measure/flatfield/FrameStack.h"

#include <cstdint>

constexpr std::uint32_t fieldMono8 = 0x01080001;
constexpr std::uint32_t fieldMono12 = 0x01100005;
constexpr std::uint32_t fieldMono12p = 0x010C0047;
constexpr std::uint32_t fieldBayerRG8 = 0x01080009;
constexpr std::uint32_t fieldBayerRG12 = 0x01100011;

/// A simulated sensor without defect pixels and focus errors, from which stacks of images are taken.
class FieldBench
{
public:
    /// Returns a sensor with shading and typical non-uniformity.
    static SensorModel sensor(double shading, bool isColor = false);

    explicit FieldBench(const SensorModel &model, std::uint32_t pixelFormat = fieldMono12);

    /// Takes images; each call takes later ones.
    FrameStack take(SceneTarget target, std::size_t count = 32);
    FrameStack dark(std::size_t count = 32) { return take(SceneTarget::LensCap, count); }
    FrameStack bright(std::size_t count = 32) { return take(SceneTarget::FlatField, count); }

    /// Takes the same image again and again, as of a scene that stands still.
    FrameStack repeat(SceneTarget target, std::size_t count);

    RenderSettings settings; ///< Exposure time for 60 to 80 % of the range.
    double lightChange = 0; ///< Relative change of the light from image to image; alternates.

private:
    void add(FrameStack &stack, const RenderSettings &present);

    const SensorModel m_model;
    SensorPictures m_pictures;
};
