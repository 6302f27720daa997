#include "sdk/features/FeatureFile.h"

#include "sdk/text/Utf8.h"

#include <algorithm>
#include <map>
#include <optional>

namespace {

constexpr std::string_view signature = "# {05D8C294-F295-4dfb-9D01-096BD04049F4}";
constexpr std::string_view containerGuid = "{4709CB3C-7322-4460-84C3-DA11DDA09939}";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t";

// The files of real cameras have some hundred lines; a look-up table may add some hundred kilobytes.
constexpr std::size_t maxSize = 16U << 20U;
constexpr std::size_t maxProblems = 1000;
constexpr std::size_t maxNameInMessage = 60;

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(blanks);
    return first == text.npos ? std::string_view()
                              : text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

/// Returns the text before the separator and removes both from `rest`.
std::string_view takeUntil(std::string_view &rest, std::string_view separators)
{
    const std::string_view head = rest.substr(0, rest.find_first_of(separators));
    rest.remove_prefix(std::min(rest.size(), head.size() + 1));
    return head;
}

bool isNameCharacter(char character)
{
    const auto isBetween
        = [character](char first, char last) { return character >= first && character <= last; };
    return isBetween('a', 'z') || isBetween('A', 'Z') || isBetween('0', '9')
        || std::string_view("_:.-").find(character) != std::string_view::npos;
}

bool isName(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), isNameCharacter);
}

bool isControl(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return (byte < 0x20 && character != '\t') || byte == 0x7F;
}

bool isCleanText(std::string_view text)
{
    return std::none_of(text.begin(), text.end(), isControl) && toValidUtf8(text) == text;
}

/// Returns true if the text starts with selectors in braces. A text in braces without "=" is a value.
bool startsWithSelectors(std::string_view text)
{
    return !text.empty() && text.front() == '{' && text.substr(0, text.find('}')).find('=') != text.npos;
}

/// A line that cannot be used.
struct BadLine
{
    std::string text;
};

using ParsedLine = std::variant<FeatureSetting, BadLine>;

std::string quoted(std::string_view name)
{
    return '"' + toLine(name.substr(0, maxNameInMessage)) + '"';
}

/// Removes the separator between name and value: tabulators, or blanks in their place. A text may start with
/// blanks, so blanks after a tabulator belong to it.
std::string_view withoutSeparator(std::string_view text)
{
    text.remove_prefix(std::min(text.size(), text.find_first_not_of(' ')));
    return text.substr(std::min(text.size(), text.find_first_not_of('\t')));
}

/// Parses the selectors between braces: "Selector=Value", separated by tabulators or blanks.
std::optional<std::vector<SelectorSetting>> parseSelectors(std::string_view text)
{
    std::vector<SelectorSetting> selectors;
    while (!text.empty()) {
        const std::string_view part = takeUntil(text, blanks);
        if (part.empty())
            continue;
        const std::size_t equals = part.find('=');
        if (equals == part.npos || !isName(part.substr(0, equals))
            || !fitsFeatureFile(part.substr(equals + 1)))
            return std::nullopt;
        selectors.push_back({std::string(part.substr(0, equals)), std::string(part.substr(equals + 1))});
    }
    return selectors;
}

/// Parses the value of a setting, which selectors in braces may precede.
ParsedLine parseValue(FeatureSetting setting, std::string_view rest)
{
    if (!isCleanText(rest))
        return BadLine{"The value of " + quoted(setting.name)
            + " contains control characters or bytes that are not UTF-8."};
    if (startsWithSelectors(rest)) {
        const std::size_t end = rest.find('}');
        auto selectors = end == rest.npos ? std::nullopt : parseSelectors(rest.substr(1, end - 1));
        if (!selectors)
            return BadLine{"The selectors of " + quoted(setting.name)
                + " cannot be read: they have the form {Selector=Value}."};
        setting.selectors = std::move(*selectors);
        rest = withoutSeparator(rest.substr(end + 1));
    }
    if (trimmed(rest).empty())
        return BadLine{quoted(setting.name) + " has no value."};
    if (startsWithSelectors(rest))
        return BadLine{quoted(setting.name) + " has selectors in two places."};
    setting.value = rest;
    return setting;
}

ParsedLine parseLine(std::string_view line)
{
    const std::string_view name = line.substr(0, line.find_first_of(blanks));
    if (!isName(name))
        return BadLine{quoted(name) + " is not the name of a feature."};
    FeatureSetting setting;
    setting.name = name;
    return parseValue(std::move(setting), withoutSeparator(line.substr(name.size())));
}

std::string refusal(std::string_view firstLine)
{
    if (firstLine.find(containerGuid) != firstLine.npos)
        return "The file contains the settings of several devices at once, which cannot be loaded. Save the "
               "settings of the camera alone.";
    return "The file is not a settings file: its first line is not \"" + std::string(signature) + "\".";
}

} // namespace

std::variant<FeatureFile, std::string> parseFeatureFile(std::string_view text)
{
    if (text.empty())
        return "The file is empty.";
    if (text.size() > maxSize)
        return "The file is too large for a settings file.";
    if (text.substr(0, byteOrderMark.size()) == byteOrderMark)
        text.remove_prefix(byteOrderMark.size());
    const auto takeLine = [&text] {
        const std::string_view line = takeUntil(text, "\n");
        return !line.empty() && line.back() == '\r' ? line.substr(0, line.size() - 1) : line;
    };
    if (const std::string_view first = takeLine(); trimmed(first) != signature)
        return refusal(first);

    FeatureFile file;
    for (unsigned number = 2; !text.empty(); ++number) {
        std::string_view line = takeLine();
        line.remove_prefix(std::min(line.size(), line.find_first_not_of(blanks)));
        if (line.empty() || line.front() == '#')
            continue;
        ParsedLine parsed = parseLine(line);
        if (auto *const bad = std::get_if<BadLine>(&parsed)) {
            if (file.problems.size() == maxProblems)
                return "The file is not a settings file: more than " + std::to_string(maxProblems)
                    + " lines cannot be read.";
            file.problems.push_back({number, std::move(bad->text)});
            continue;
        }
        file.settings.push_back(std::get<FeatureSetting>(std::move(parsed)));
        file.settings.back().line = number;
    }
    return file;
}

std::string formatFeatureFile(const std::vector<FeatureSetting> &settings, const std::string &device)
{
    std::string text = std::string(signature) + "\n# Device = " + toLine(device) + '\n';
    const auto addLine
        = [&text](const std::string &name, const std::string &value) { text += name + '\t' + value + '\n'; };
    std::map<std::string, std::string> inForce;
    for (const FeatureSetting &setting : settings) {
        // Another value of a selector may bring other values of the selectors after it.
        bool hasChanged = false;
        for (const SelectorSetting &selector : setting.selectors) {
            std::string &current = inForce[selector.name];
            hasChanged = hasChanged || current != selector.value;
            current = selector.value;
            if (hasChanged)
                addLine(selector.name, selector.value);
        }
        addLine(setting.name, setting.value);
    }
    return text;
}

bool fitsFeatureFile(std::string_view value)
{
    return !trimmed(value).empty() && value.front() != '\t' && isCleanText(value)
        && !startsWithSelectors(value);
}
