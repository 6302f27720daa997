#include "sdk/cvxcpp/CtiPathsDocument.h"

#include "sdk/cvxcpp/Utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#define XML_DTD // Debian builds Expat with it; its header hides the limits of expansion otherwise.
#include <expat.h>
#include <iconv.h>
#include <memory>
#include <string_view>
#include <strings.h>
#include <utility>

namespace {

/// Unicode white space at either end goes, as the rest of the SDK does it.
std::string trimmed(std::string_view text)
{
    static constexpr std::string_view spaces[] = {" ", "\t", "\n", "\v", "\f", "\r", "\xC2\x85", "\xC2\xA0",
        "\xE1\x9A\x80", "\xE2\x80\x80", "\xE2\x80\x81", "\xE2\x80\x82", "\xE2\x80\x83", "\xE2\x80\x84",
        "\xE2\x80\x85", "\xE2\x80\x86", "\xE2\x80\x87", "\xE2\x80\x88", "\xE2\x80\x89", "\xE2\x80\x8A",
        "\xE2\x80\xA8", "\xE2\x80\xA9", "\xE2\x80\xAF", "\xE2\x81\x9F", "\xE3\x80\x80"};
    const auto cut = [&text](bool atStart) {
        return std::any_of(std::begin(spaces), std::end(spaces), [&](std::string_view space) {
            if (text.size() < space.size()
                || text.substr(atStart ? 0 : text.size() - space.size(), space.size()) != space)
                return false;
            if (atStart)
                text.remove_prefix(space.size());
            else
                text.remove_suffix(space.size());
            return true;
        });
    };
    while (cut(true)) { }
    while (cut(false)) { }
    return std::string(text);
}

/// UTF-16 or UTF-32, by a byte order mark or by the NUL bytes around the first characters.
bool hasWideCharacters(std::string_view document)
{
    const std::string_view start = document.substr(0, 4);
    const std::string_view mark = start.substr(0, 2);
    return start.find('\0') != std::string_view::npos || mark == "\xFF\xFE" || mark == "\xFE\xFF";
}

/// Without a character that the end of the document cuts in two.
std::string_view wholeCharacters(std::string_view document)
{
    std::size_t start = document.size();
    while (start > 0 && document.size() - start < 4) {
        const auto byte = static_cast<unsigned char>(document[--start]);
        if (byte < 0x80 || byte > 0xBF) { // No continuation.
            const std::size_t length = byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
            const bool isCut = byte >= 0xC2 && byte <= 0xF4 && document.size() - start < length;
            return isCut ? document.substr(0, start) : document;
        }
    }
    return document;
}

bool isUtf8(std::string_view document)
{
    document = wholeCharacters(document);
    return toValidUtf8(document) == document;
}

/// Empty when the encoding is unknown or the document has characters that are not of it.
std::string toUtf8(const std::string &document, const std::string &encoding)
{
    const iconv_t converter = iconv_open("UTF-8", encoding.c_str());
    if (reinterpret_cast<std::intptr_t>(converter) == -1)
        return {};
    std::string converted(document.size() * 4, '\0'); // A character takes four bytes at the most.
    char *from = const_cast<char *>(document.data()); // Read only.
    char *to = converted.data();
    std::size_t fromLeft = document.size();
    std::size_t toLeft = converted.size();
    const bool failed = iconv(converter, &from, &fromLeft, &to, &toLeft) == std::size_t(-1);
    iconv_close(converter);
    converted.resize(failed ? 0 : converted.size() - toLeft);
    return converted;
}

/// Reads the Path elements in the order of the document and stops at the first fault.
class PathReader
{
public:
    /// Null for the encoding that the document declares.
    explicit PathReader(const char *encoding = nullptr)
        : m_parser(XML_ParserCreateNS(encoding, Separator), XML_ParserFree)
    {
        if (!m_parser)
            return;
        XML_SetUserData(m_parser.get(), this);
        XML_SetElementHandler(m_parser.get(), start, end);
        XML_SetCharacterDataHandler(m_parser.get(), text);
        XML_SetUnknownEncodingHandler(m_parser.get(), unknownEncoding, this);
        XML_SetXmlDeclHandler(m_parser.get(), declaration);
        XML_SetEntityDeclHandler(m_parser.get(), declareEntity);
        // Parameter entities of the document itself; for those outside it there is no handler, and so no way.
        XML_SetParamEntityParsing(m_parser.get(), XML_PARAM_ENTITY_PARSING_ALWAYS);
        XML_SetBillionLaughsAttackProtectionMaximumAmplification(m_parser.get(), LargestAmplification);
        XML_SetBillionLaughsAttackProtectionActivationThreshold(m_parser.get(), LargestExpansion);
    }

    std::vector<std::string> read(const std::string &document)
    {
        if (m_parser) // A fault is no news: what came before it counts.
            XML_Parse(m_parser.get(), document.data(), static_cast<int>(document.size()), XML_TRUE);
        return m_paths;
    }

    /// The document declares none, or that one.
    bool isInUtf8() const { return strcasecmp(m_encoding.c_str(), "UTF-8") == 0; }

    /// The one that the document declares, where the parser does not know it; empty otherwise.
    const std::string &unknownEncoding() const { return m_unknownEncoding; }

private:
    static constexpr char Separator = '\x1F'; // Of namespace and name; in no document.
    static constexpr int MostEntities = 256; // The parser nests them on the stack.
    static constexpr float LargestAmplification = 16;
    static constexpr unsigned long long LargestExpansion = 1U << 20; // Bytes that are never too much.

    static PathReader &self(void *reader) { return *static_cast<PathReader *>(reader); }

    static bool isNamed(std::string_view element, std::string_view name)
    {
        element.remove_prefix(element.rfind(Separator) + 1); // Without one the sum is 0.
        return element.size() == name.size() && strncasecmp(element.data(), name.data(), name.size()) == 0;
    }

    static void declaration(void *reader, const char *version, const char *encoding, int)
    {
        if (version && std::string_view(version) != "1.0")
            XML_StopParser(self(reader).m_parser.get(), XML_FALSE);
        if (encoding)
            self(reader).m_encoding = encoding;
    }

    static int unknownEncoding(void *reader, const char *name, XML_Encoding *)
    {
        self(reader).m_unknownEncoding = name;
        return XML_STATUS_ERROR;
    }

    static void start(void *reader, const char *name, const char **) { self(reader).startElement(name); }
    void startElement(const char *name)
    {
        if (std::exchange(m_isInPath, false)) // No element may stand in a Path.
            XML_StopParser(m_parser.get(), XML_FALSE);
        else if (isNamed(name, "CtiPaths"))
            m_isInside = true;
        else if (m_isInside && isNamed(name, "Path"))
            m_isInPath = true;
    }

    static void end(void *reader, const char *name) { self(reader).endElement(name); }
    void endElement(const char *name)
    {
        if (std::exchange(m_isInPath, false)) {
            m_paths.push_back(trimmed(m_text));
            m_text.clear();
        } else if (isNamed(name, "CtiPaths")) {
            m_isInside = false; // Also when it stands within another one.
        }
    }

    static void text(void *reader, const char *data, int length)
    {
        if (self(reader).m_isInPath)
            self(reader).m_text.append(data, static_cast<std::size_t>(length));
    }

    static void declareEntity(void *reader, const char *, int, const char *, int, const char *, const char *,
        const char *, const char *)
    {
        if (++self(reader).m_entities > MostEntities)
            XML_StopParser(self(reader).m_parser.get(), XML_FALSE);
    }

    std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> m_parser;
    std::vector<std::string> m_paths;
    std::string m_text; // Of the Path that is open.
    std::string m_encoding = "UTF-8";
    std::string m_unknownEncoding;
    int m_entities = 0;
    bool m_isInside = false;
    bool m_isInPath = false;
};

} // namespace

std::vector<std::string> readCtiPaths(std::string document)
{
    const bool isWide = hasWideCharacters(document);
    if (!isWide) // The launcher reads in text mode: there is no carriage return anywhere.
        document.erase(std::remove(document.begin(), document.end(), '\r'), document.end());
    PathReader reader;
    std::vector<std::string> paths = reader.read(document);
    if (!reader.unknownEncoding().empty())
        return PathReader("UTF-8").read(toUtf8(document, reader.unknownEncoding()));
    if (!isWide && reader.isInUtf8() && !isUtf8(document))
        paths.clear(); // A wrong encoding is found before anything is read, there as here.
    return paths;
}
