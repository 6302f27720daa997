#pragma once

#include "CvxCPP/CvxCPP.h"

#include <string>

/// Reads a string with one call for its size and one for its content. Returns "<error N>" if a call fails.
template <typename Read>
std::string textOf(const Read &read)
{
    unsigned size = 0;
    CvxCPP::CvxError error = read(nullptr, size);
    std::string text(size, '\0');
    if (error == CvxCPP::CvxErrorSuccess)
        error = read(text.data(), size);
    if (error != CvxCPP::CvxErrorSuccess)
        return "<error " + std::to_string(error) + ">";
    return text.substr(0, text.find('\0'));
}

inline std::string idOf(const CvxCPP::Camera &camera, bool isExtended)
{
    return textOf([&](char *buffer, unsigned &size) { return camera.GetID(buffer, size, isExtended); });
}

inline std::string extendedId(const CvxCPP::Camera &camera)
{
    return idOf(camera, true);
}

inline std::string valueOf(const CvxCPP::Feature &feature)
{
    return textOf([&](char *buffer, unsigned &size) { return feature.GetValue(buffer, size); });
}
