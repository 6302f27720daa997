#include "sdk/cvxcpp/CtiSearchPath.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <pugixml.hpp>
#include <string_view>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t LargestFile = 16U << 20; // Bytes; what comes later is not read.

/// The content of a regular file; empty for anything else, so that a pipe in its place does not hold us up.
std::string readFile(const std::string &path)
{
    std::string content;
    const int descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return content;
    struct stat file
    { };
    if (fstat(descriptor, &file) == 0 && S_ISREG(file.st_mode)) {
        content.resize(std::min(static_cast<std::size_t>(file.st_size), LargestFile));
        std::size_t done = 0;
        while (done < content.size()) {
            const ssize_t count = read(descriptor, content.data() + done, content.size() - done);
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0)
                break;
            done += static_cast<std::size_t>(count);
        }
        content.resize(done);
    }
    close(descriptor);
    return content;
}

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

std::string_view localName(std::string_view name)
{
    return name.substr(name.rfind(':') + 1); // Without a colon the sum is 0.
}

bool isNamed(const pugi::xml_node &element, std::string_view name)
{
    const std::string_view local = localName(element.name());
    return local.size() == name.size() && strncasecmp(local.data(), name.data(), name.size()) == 0;
}

bool isDeclared(pugi::xml_node element, std::string_view qualifiedName)
{
    const std::size_t colon = qualifiedName.find(':');
    if (colon == std::string_view::npos)
        return true;
    const std::string_view prefix = qualifiedName.substr(0, colon);
    if (prefix == "xml" || prefix == "xmlns")
        return true;
    const std::string declaration = "xmlns:" + std::string(prefix);
    for (; element; element = element.parent()) {
        if (element.attribute(declaration.c_str()))
            return true;
    }
    return false;
}

/// An undeclared namespace prefix is a fault of the file, for elements and for attributes.
bool hasDeclaredPrefixes(const pugi::xml_node &element)
{
    const auto attributes = element.attributes();
    return isDeclared(element, element.name())
        && std::all_of(attributes.begin(), attributes.end(),
            [&](const pugi::xml_attribute &attribute) { return isDeclared(element, attribute.name()); });
}

/// Reads the Path elements in the order of the file and stops at the first fault.
class PathReader
{
public:
    explicit PathReader(const std::string &content) : m_content(content)
    {
        constexpr unsigned options = pugi::parse_default | pugi::parse_ws_pcdata;
        m_result = m_document.load_buffer(content.data(), content.size(), options);
    }

    std::vector<std::string> read()
    {
        const pugi::xml_node root = firstElement(m_document);
        for (pugi::xml_node element = root; element;) {
            if (!enter(element))
                break;
            pugi::xml_node next = isPath(element) ? pugi::xml_node() : firstElement(element);
            while (!next && element) {
                leave(element);
                if (element == root)
                    return m_paths; // What follows the root element is a fault.
                next = nextElement(element);
                if (!next)
                    element = element.parent();
            }
            element = next;
        }
        return m_paths;
    }

private:
    static pugi::xml_node firstElement(const pugi::xml_node &parent)
    {
        const pugi::xml_node first = parent.first_child();
        return !first || first.type() == pugi::node_element ? first : nextElement(first);
    }

    static pugi::xml_node nextElement(pugi::xml_node node)
    {
        do
            node = node.next_sibling();
        while (node && node.type() != pugi::node_element);
        return node;
    }

    bool isPath(const pugi::xml_node &element) const { return m_isInside && isNamed(element, "Path"); }

    /// False at a fault.
    bool enter(const pugi::xml_node &element)
    {
        if (!hasDeclaredPrefixes(element))
            return false;
        if (isNamed(element, "CtiPaths"))
            m_isInside = true;
        if (!isPath(element))
            return true;
        if (firstElement(element) || !isClosed(element))
            return false;
        std::string text;
        for (const pugi::xml_node &child : element.children())
            text += child.value();
        m_paths.push_back(trimmed(text));
        return true;
    }

    void leave(const pugi::xml_node &element)
    {
        if (isNamed(element, "CtiPaths"))
            m_isInside = false; // Also when it stands within another one.
    }

    /// Whether the element ends before the fault that ended the reading, if there was one.
    bool isClosed(const pugi::xml_node &element) const
    {
        if (m_result)
            return true;
        const auto start = static_cast<std::size_t>(std::max<std::ptrdiff_t>(element.offset_debug(), 0));
        const auto end = std::min(static_cast<std::size_t>(m_result.offset), m_content.size());
        if (start >= end)
            return false;
        const std::string_view source = std::string_view(m_content).substr(start, end - start);
        const std::size_t tag = source.find("</" + std::string(element.name()));
        return (tag != std::string_view::npos && source.find('>', tag) != std::string_view::npos)
            || source.substr(0, source.find('>')).find('/') != std::string_view::npos; // "<Path/>"
    }

    const std::string &m_content;
    pugi::xml_document m_document;
    pugi::xml_parse_result m_result;
    std::vector<std::string> m_paths;
    bool m_isInside = false;
};

void appendOnce(std::vector<std::string> &directories, const std::string &directory)
{
    if (std::find(directories.begin(), directories.end(), directory) == directories.end())
        directories.push_back(directory);
}

void appendPath(std::vector<std::string> &directories, const std::string &path,
    const std::string &installRoot, const std::string &configurationFile)
{
    if (path.empty())
        return;
    if (path.front() == '/') {
        appendOnce(directories, path); // Need not exist now.
        return;
    }
    const std::string bases[]
        = {installRoot, std::filesystem::path(configurationFile).parent_path().string()};
    for (const std::string &base : bases) {
        const std::string directory = std::filesystem::path(base) / path;
        struct stat status
        { };
        if (stat(directory.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) {
            appendOnce(directories, directory);
            return;
        }
    }
}

} // namespace

std::vector<std::string> configuredCtiDirectories(
    const std::string &installRoot, const std::string &configurationFile)
{
    std::vector<std::string> directories;
    const std::string content = readFile(configurationFile);
    if (!content.empty()) {
        for (const std::string &path : PathReader(content).read())
            appendPath(directories, path, installRoot, configurationFile);
    }
    if (directories.empty())
        directories.push_back(installRoot + "/cti");
    return directories;
}

std::vector<std::string> searchPathDirectories(const char *searchPath)
{
    std::vector<std::string> directories;
    std::string_view rest = searchPath ? searchPath : "";
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(':'), rest.size());
        if (end > 0)
            directories.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return directories;
}
