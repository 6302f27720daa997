#include "camera/SdkRead.h"

#include <cstring>

using CvxCPP::CvxErrorSuccess;

std::optional<std::string> SdkRead::bytes(const StringGetter &getter)
{
    return orEmpty([&]() -> std::optional<std::string> {
        unsigned size = 0;
        if (getter(nullptr, size) != CvxErrorSuccess)
            return std::nullopt;
        std::string buffer(size, '\0');
        if (size > 0 && getter(buffer.data(), size) != CvxErrorSuccess)
            return std::nullopt;
        buffer.resize(std::strlen(buffer.c_str())); // The reported length may include the terminating NUL.
        return buffer;
    });
}

std::optional<std::string> SdkRead::bytes(const CvxCPP::Feature &feature)
{
    return orEmpty([&]() -> std::optional<std::string> {
        std::string value;
        if (feature.GetValue(value) != CvxErrorSuccess)
            return std::nullopt;
        return value;
    });
}

std::optional<QString> SdkRead::decoded(const std::optional<std::string> &bytes)
{
    return orEmpty([&]() -> std::optional<QString> {
        if (!bytes)
            return std::nullopt;
        return QString::fromStdString(*bytes);
    });
}
