#include "tests/kit/measure/flatfield/FieldBench.h"

#include <gtest/gtest.h>
#include <vector>

SensorModel FieldBench::sensor(double shading, bool isColor)
{
    SensorModel model;
    model.width = 320;
    model.height = 240;
    model.isColor = isColor;
    model.shading = shading;
    model.darkCurrent = 0;
    return model;
}

FieldBench::FieldBench(const SensorModel &model, std::uint32_t pixelFormat)
    : m_model(model), m_pictures(model)
{
    settings.width = model.width;
    settings.height = model.isLineScan ? 16 : model.height;
    settings.pixelFormat = pixelFormat;
    settings.exposureTime = 9000;
}

FrameStack FieldBench::take(SceneTarget target, std::size_t count)
{
    FrameStack stack(m_model.isLineScan);
    for (std::size_t image = 0; image < count; ++image) {
        ++settings.frameNumber;
        RenderSettings present = settings;
        present.target = target;
        present.exposureTime *= image % 2 == 0 ? 1 : 1 + lightChange;
        add(stack, present);
    }
    return stack;
}

FrameStack FieldBench::repeat(SceneTarget target, std::size_t count)
{
    FrameStack stack(m_model.isLineScan);
    RenderSettings present = settings;
    present.target = target;
    for (std::size_t image = 0; image < count; ++image)
        add(stack, present);
    return stack;
}

void FieldBench::add(FrameStack &stack, const RenderSettings &present)
{
    const std::vector<std::uint8_t> bytes = m_pictures.picture(present);
    const RawImage picture{bytes.data(), bytes.size(), static_cast<std::uint32_t>(settings.width),
        static_cast<std::uint32_t>(settings.height), 0, settings.pixelFormat};
    EXPECT_TRUE(stack.add(picture, 0, 0).isEmpty());
}
