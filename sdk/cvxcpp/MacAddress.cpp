#include "sdk/cvxcpp/MacAddress.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace {

// Every real ID and serial number is shorter. The limit bounds the time for a hostile one.
constexpr std::size_t maxTextLength = 128;
constexpr std::size_t digitsPerAddress = 12;
constexpr std::size_t groupsPerAddress = 6;
constexpr MacAddress broadcastAddress = 0xFFFFFFFFFFFF;

/// Returns nothing if the character is no hexadecimal digit.
std::optional<unsigned> hexadecimalDigit(char character)
{
    if (character >= '0' && character <= '9')
        return character - '0';
    if (character >= 'a' && character <= 'f')
        return character - 'a' + 10;
    if (character >= 'A' && character <= 'F')
        return character - 'A' + 10;
    return std::nullopt;
}

/// Returns true for ASCII letters and digits, and for every byte of a character outside ASCII.
bool isWordCharacter(char character)
{
    return (character >= '0' && character <= '9') || (character >= 'a' && character <= 'z')
        || (character >= 'A' && character <= 'Z') || static_cast<unsigned char>(character) >= 0x80;
}

struct Word
{
    std::size_t begin = 0, length = 0;
    std::optional<MacAddress> value; // The value of the word if it consists of hexadecimal digits.

    bool isGroup() const { return length == 2 && value; }
};

std::vector<Word> wordsOf(std::string_view text)
{
    std::vector<Word> words;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!isWordCharacter(text[i]))
            continue;
        const bool isContinued = !words.empty() && words.back().begin + words.back().length == i;
        Word &word = isContinued ? words.back() : words.emplace_back(Word{i, 0, MacAddress(0)});
        const auto digit = hexadecimalDigit(text[i]);
        word.value = word.value && digit ? std::optional(*word.value << 4 | *digit) : std::nullopt;
        ++word.length;
    }
    return words;
}

/// Returns the number of words from `first` on that are groups of two digits with the same separator.
std::size_t countGroups(std::string_view text, const std::vector<Word> &words, std::size_t first)
{
    std::size_t count = 0;
    char separator = '\0';
    for (std::size_t i = first; i < words.size() && words[i].isGroup(); ++i, ++count) {
        if (i == first)
            continue;
        const std::size_t end = words[i - 1].begin + 2;
        if (separator == '\0')
            separator = text[end];
        const bool isSeparated = words[i].begin == end + 1 && text[end] == separator;
        if (!isSeparated || (separator != ':' && separator != '-'))
            break;
    }
    return count;
}

bool isDeviceAddress(MacAddress address)
{
    return address != 0 && address != broadcastAddress;
}

} // namespace

std::vector<MacAddress> macAddressesIn(std::string_view text)
{
    text = text.substr(0, maxTextLength);
    const std::vector<Word> words = wordsOf(text);
    std::vector<MacAddress> addresses;
    for (std::size_t i = 0; i < words.size();) {
        const std::size_t groups = std::max<std::size_t>(countGroups(text, words, i), 1);
        MacAddress address = 0;
        if (groups == groupsPerAddress) {
            for (std::size_t group = i; group < i + groups; ++group)
                address = address << 8 | *words[group].value;
        } else if (words[i].length == digitsPerAddress && words[i].value) {
            address = *words[i].value;
        }
        if (isDeviceAddress(address))
            addresses.push_back(address);
        i += groups;
    }
    return addresses;
}

std::vector<MacAddress> digitSequencesIn(std::string_view text)
{
    std::vector<MacAddress> sequences;
    MacAddress digits = 0;
    std::size_t count = 0;
    for (const char character : text.substr(0, maxTextLength)) {
        if (!isWordCharacter(character))
            continue;
        const auto digit = hexadecimalDigit(character);
        count = digit ? count + 1 : 0;
        digits = digit ? (digits << 4 | *digit) & broadcastAddress : 0;
        if (count >= digitsPerAddress && isDeviceAddress(digits))
            sequences.push_back(digits);
    }
    return sequences;
}
