#pragma once

#include "CvxCPP/CvxCPP.h"

#include <string>

/// Reads a text by the two-call protocol; an error gives "<error N>".
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

inline std::string plainId(const CvxCPP::Camera &camera)
{
    return textOf([&](char *buffer, unsigned &size) { return camera.GetID(buffer, size, false); });
}

inline std::string extendedId(const CvxCPP::Camera &camera)
{
    return textOf([&](char *buffer, unsigned &size) { return camera.GetID(buffer, size, true); });
}

inline std::string modelOf(const CvxCPP::Camera &camera)
{
    return textOf([&](char *buffer, unsigned &size) { return camera.GetModel(buffer, size); });
}

inline std::string nameOf(const CvxCPP::Camera &camera)
{
    return textOf([&](char *buffer, unsigned &size) { return camera.GetName(buffer, size); });
}

inline std::string serialOf(const CvxCPP::Camera &camera)
{
    return textOf([&](char *buffer, unsigned &size) { return camera.GetSerialNumber(buffer, size); });
}

inline std::string valueOf(const CvxCPP::Feature &feature)
{
    return textOf([&](char *buffer, unsigned &size) { return feature.GetValue(buffer, size); });
}
