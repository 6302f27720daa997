#pragma once

#include "tools/kit/measure/Measurements.h"

#include <memory>

/// Measures pictures. One object serves one thread; its working memory is reused.
class PictureMeter
{
public:
    PictureMeter();
    PictureMeter(PictureMeter &&) noexcept;
    PictureMeter &operator=(PictureMeter &&) noexcept;
    ~PictureMeter();

    /// Does what the function measure() does.
    Measurements measure(const RawImage &picture, const MeasureRequest &request);

private:
    class Workspace;
    std::unique_ptr<Workspace> m_workspace;
};
