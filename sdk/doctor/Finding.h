#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// How much a finding matters.
enum class Severity : std::uint8_t
{
    Ok, ///< Checked, and nothing to correct.
    Notice, ///< Worth knowing; cameras work nevertheless.
    Warning, ///< Cameras may be missing, slow or incomplete.
    Error ///< Something does not work.
};

/// One result of a check. All texts are plain English sentences of one line, for people; texts that come from
/// cameras or producers contain no control characters.
struct Finding
{
    Severity severity = Severity::Ok;
    std::string subject; ///< What was checked, for example "enp3s0".
    std::string what; ///< What was found.
    std::string why; ///< Why it matters; may be empty.
    std::string command; ///< The command that corrects it or shows more; may be empty.
};

using Findings = std::vector<Finding>;

/// Returns true if a finding is a warning or an error.
bool hasProblem(const Findings &findings);

/// Returns the severity as one word, for example "warning".
const char *severityText(Severity severity);

/// Returns the text as one word of a shell command, in quotes if it needs them. Names of cameras and files
/// can contain anything, and a person may copy the command.
std::string shellWord(const std::string &text);
