#include "sdk/doctor/Finding.h"

#include <algorithm>

bool hasProblem(const Findings &findings)
{
    return std::any_of(findings.begin(), findings.end(),
        [](const Finding &finding) { return finding.severity >= Severity::Warning; });
}

const char *severityText(Severity severity)
{
    static constexpr const char *texts[] = {"ok", "notice", "warning", "error"};
    return texts[static_cast<std::size_t>(severity)];
}

std::string shellWord(const std::string &text)
{
    constexpr char harmless[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_./:,+-";
    if (!text.empty() && text.find_first_not_of(harmless) == std::string::npos)
        return text;
    std::string word = "'";
    for (const char character : text)
        word += character == '\'' ? std::string("'\\''") : std::string(1, character);
    return word + '\'';
}
