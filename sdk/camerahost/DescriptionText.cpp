#include "sdk/camerahost/DescriptionText.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view endTag = "</RegisterDescription";

bool isBlank(char c)
{
    return c == '\0' || std::isspace(static_cast<unsigned char>(c));
}

/// Returns the position after the end tag of the root element, or npos.
std::size_t findEnd(const std::string &bytes)
{
    for (std::size_t at = bytes.find(endTag); at != std::string::npos; at = bytes.find(endTag, at + 1)) {
        std::size_t end = at + endTag.size();
        while (end < bytes.size() && isBlank(bytes[end]))
            ++end;
        if (end < bytes.size() && bytes[end] == '>')
            return end + 1;
    }
    return std::string::npos;
}

} // namespace

std::string_view withoutBlanks(std::string_view text)
{
    constexpr const char *blanks = " \t\r\n";
    const std::size_t start = text.find_first_not_of(blanks);
    if (start == std::string_view::npos)
        return {};
    return text.substr(start, text.find_last_not_of(blanks) + 1 - start);
}

std::variant<std::string, DescriptionProblem> tidyDescription(std::string bytes)
{
    const std::size_t length = bytes.size();
    if (bytes.compare(0, byteOrderMark.size(), byteOrderMark) == 0)
        bytes.erase(0, byteOrderMark.size());
    bytes.erase(bytes.begin(), std::find_if_not(bytes.begin(), bytes.end(), isBlank));
    if (bytes.empty() || bytes.front() != '<')
        return DescriptionProblem{
            "the description of " + std::to_string(length) + " bytes is not an XML document"};
    const std::size_t end = findEnd(bytes);
    if (end == std::string::npos)
        return DescriptionProblem{"the description is incomplete: its " + std::to_string(length)
            + " bytes do not contain the end tag"};
    bytes.resize(end);
    return bytes;
}
