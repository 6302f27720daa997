#pragma once

#include "sdk/gentl/GenTLDevice.h"
#include "tests/camerahost/HostClient.h"
#include "tests/camerahost/QuirkProducer.h"

#include <functional>
#include <ostream>

/// One quirk of a producer: how the script, the exported functions or the description differ from those of an
/// ordinary producer. Rows of test tables derive from Quirk.
struct Quirk
{
    std::string name; ///< Letters and digits.
    std::string script;
    std::vector<std::string> missing = {}; ///< Functions that are not exported.
    std::function<std::string(std::string)> description = {}; ///< Changes the description.
};

inline std::ostream &operator<<(std::ostream &stream, const Quirk &quirk)
{
    return stream << quirk.name;
}

/// Names a test after the quirk of its row.
constexpr auto nameOf = [](const auto &row) { return row.param.name; };

/// Installs a producer with this quirk.
inline void install(QuirkProducer &producer, const Quirk &quirk)
{
    producer.setScript(quirk.script);
    producer.removeExports(quirk.missing);
    if (quirk.description)
        producer.setDescription(quirk.description(producer.description()));
}

/// Returns a rule for one info command.
inline std::string rule(const char *function, std::int32_t command, const std::string &action)
{
    return std::string(function) + ':' + std::to_string(command) + ' ' + action + '\n';
}

/// Returns the same rule for several commands.
inline std::string rules(
    const char *function, const std::vector<std::int32_t> &commands, const std::string &action)
{
    std::string lines;
    for (const std::int32_t command : commands)
        lines += rule(function, command, action);
    return lines;
}

/// Returns the text with one part replaced, which it must contain.
std::string replaced(std::string text, const std::string &part, const std::string &by);
