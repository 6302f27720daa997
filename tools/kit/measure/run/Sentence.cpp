#include "tools/kit/measure/run/Sentence.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

std::string partText(const Sentence::Part &part)
{
    if (const auto *const text = std::get_if<std::string>(&part))
        return *text;
    const auto &number = std::get<SentenceNumber>(part);
    std::array<char, 400> digits{}; // The largest double has 309 digits before the decimal point.
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number.value,
        std::chars_format::fixed, std::clamp(number.decimals, 0, 20));
    return {digits.data(), end.ptr};
}

} // namespace

Sentence untranslated(const std::string &text)
{
    return text.empty() ? Sentence{} : Sentence{"%1", {text}};
}

std::string toEnglish(const Sentence &sentence)
{
    std::string english;
    for (const char *next = sentence.text; next && *next; ++next) {
        const bool isPlace = next[0] == '%' && next[1] >= '1' && next[1] <= '9';
        const auto index = isPlace ? static_cast<std::size_t>(next[1] - '1') : sentence.parts.size();
        if (index >= sentence.parts.size()) {
            english += *next;
            continue;
        }
        english += partText(sentence.parts[index]);
        ++next;
    }
    return english;
}
