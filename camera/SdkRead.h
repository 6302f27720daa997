#pragma once

#include "CvxCPP/CvxCPP.h"

#include <QString>

#include <functional>
#include <new>
#include <optional>
#include <string>

/// Reads values from the camera SDK. A read fails if the SDK reports an error or if memory runs out.
namespace SdkRead {

/// Calls `read` and returns its result, or an empty value if memory runs out.
template <typename Read>
auto orEmpty(const Read &read) -> decltype(read())
{
    try {
        return read();
    } catch (const std::bad_alloc &) {
        return {};
    }
}

/// A StringGetter calls one string getter of the SDK. If the buffer is null, the getter sets `size` to the
/// length of the string. Otherwise the getter fills the buffer, which contains `size` bytes.
using StringGetter = std::function<CvxCPP::CvxError(char *buffer, unsigned &size)>;

/// Calls the getter for the length and again for the string. Returns the string up to its first NUL, or
/// nothing if one of the two calls fails.
std::optional<std::string> bytes(const StringGetter &getter);

/// Returns the value of a string feature up to its first NUL, or nothing if the value cannot be read.
std::optional<std::string> bytes(const CvxCPP::Feature &feature);

/// Decodes UTF-8. Returns nothing if the string could not be read or if memory runs out.
std::optional<QString> decoded(const std::optional<std::string> &bytes);

} // namespace SdkRead
