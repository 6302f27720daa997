#include "sdk/cvxcpp/CtiPathsDocument.h"

#include <cstddef>
#include <expat.h>
#include <memory>
#include <new>
#include <string_view>
#include <strings.h>
#include <utility>

namespace {

std::string trimmed(std::string_view text)
{
    constexpr const char *whiteSpace = " \t\r\n";
    const std::size_t start = text.find_first_not_of(whiteSpace);
    if (start == std::string_view::npos)
        return {};
    return std::string(text.substr(start, text.find_last_not_of(whiteSpace) + 1 - start));
}

bool isNamed(std::string_view element, const char *name)
{
    element.remove_prefix(element.rfind(':') + 1); // If there is no prefix, npos + 1 is 0.
    return strcasecmp(std::string(element).c_str(), name) == 0;
}

/// The state of the callbacks while Expat reads the document.
struct Reading
{
    std::vector<std::string> paths;
    std::string text; // Content of the current Path element.
    bool isInCtiPaths = false;
    bool isInPath = false;
};

void startElement(void *data, const char *name, const char **)
{
    auto &reading = *static_cast<Reading *>(data);
    if (isNamed(name, "CtiPaths"))
        reading.isInCtiPaths = true;
    else if (reading.isInCtiPaths && isNamed(name, "Path"))
        reading.isInPath = true;
}

void endElement(void *data, const char *name)
{
    auto &reading = *static_cast<Reading *>(data);
    if (isNamed(name, "CtiPaths")) {
        reading.isInCtiPaths = false;
    } else if (reading.isInPath && isNamed(name, "Path")) {
        reading.isInPath = false;
        std::string path = trimmed(reading.text);
        if (!path.empty())
            reading.paths.push_back(std::move(path));
        reading.text.clear();
    }
}

void addText(void *data, const char *text, int length)
{
    auto &reading = *static_cast<Reading *>(data);
    if (reading.isInPath)
        reading.text.append(text, static_cast<std::size_t>(length));
}

} // namespace

std::vector<std::string> readCtiPaths(const std::string &document)
{
    Reading reading;
    const std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser(
        XML_ParserCreate(nullptr), XML_ParserFree);
    if (!parser)
        throw std::bad_alloc();
    XML_SetUserData(parser.get(), &reading);
    XML_SetElementHandler(parser.get(), startElement, endElement);
    XML_SetCharacterDataHandler(parser.get(), addText);
    // An error ends the parsing; the paths before the error are valid.
    XML_Parse(parser.get(), document.data(), static_cast<int>(document.size()), XML_TRUE);
    return reading.paths;
}
