#include "sdk/producerhost/ProducerAnswerWriter.h"

#include <algorithm>
#include <initializer_list>
#include <nlohmann/json.hpp>
#include <string_view>
#include <utility>

// Answers are written as they go: to build a tree of values first would take longer than many a producer.
// Each member and element is followed by a comma, of which closing takes the last one back.

namespace {

void appendQuoted(std::string &line, std::string_view text)
{
    const auto isPlain = [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; };
    if (std::all_of(text.begin(), text.end(), isPlain)) {
        line.append(1, '"').append(text).append(1, '"');
        return;
    }
    using nlohmann::json;
    line += json(text).dump(-1, ' ', false, json::error_handler_t::replace);
}

void close(std::string &line, char bracket)
{
    if (line.back() == ',')
        line.pop_back();
    line.append(1, bracket).append(1, ',');
}

void appendName(std::string &line, std::string_view name)
{
    line.append(1, '"').append(name).append("\":");
}

void appendNumber(std::string &line, std::string_view name, const std::string &number)
{
    appendName(line, name);
    line.append(number).append(1, ',');
}

void appendTexts(
    std::string &line, std::initializer_list<std::pair<std::string_view, std::string_view>> members)
{
    for (const auto &[name, text] : members) {
        appendName(line, name);
        appendQuoted(line, text);
        line += ',';
    }
}

void append(std::string &line, const Problem &problem)
{
    line += '{';
    appendTexts(line, {{"call", problem.call}});
    appendNumber(line, "code", std::to_string(problem.code));
    appendTexts(line, {{"text", problem.text}});
    close(line, '}');
}

void append(std::string &line, const DeviceDescription &device)
{
    line += '{';
    appendTexts(line,
        {{"id", device.id}, {"model", device.model}, {"name", device.name}, {"serial", device.serial},
            {"type", device.type}, {"vendor", device.vendor}});
    close(line, '}');
}

template <typename Record>
void appendList(std::string &line, std::string_view name, const std::vector<Record> &records);

void append(std::string &line, const OpenInterface &interface)
{
    line += '{';
    appendList(line, "devices", interface.devices);
    appendTexts(
        line, {{"id", interface.id}, {"name", interface.name.empty() ? interface.id : interface.name}});
    appendNumber(line, "number", std::to_string(interface.number));
    appendTexts(line, {{"type", interface.type}});
    close(line, '}');
}

template <typename Record>
void appendList(std::string &line, std::string_view name, const std::vector<Record> &records)
{
    appendName(line, name);
    line += '[';
    for (const Record &record : records)
        append(line, record);
    close(line, ']');
}

/// The members as an object on a line of its own.
std::string finished(std::string members)
{
    members.insert(0, 1, '{');
    close(members, '}');
    members.back() = '\n';
    return members;
}

} // namespace

std::string listAnswer(const std::vector<OpenInterface> &interfaces, const std::vector<Problem> &problems)
{
    std::vector<Problem> all = problems;
    for (const OpenInterface &interface : interfaces) {
        for (const Problem &problem : interface.problems)
            addProblem(all, problem);
    }
    std::string members;
    appendList(members, "interfaces", interfaces);
    appendList(members, "problems", all);
    return finished(std::move(members));
}

std::string interfaceAnswer(const OpenInterface *interface)
{
    if (!interface)
        return listAnswer({}, {});
    std::string members;
    appendName(members, "interfaces");
    members += '[';
    append(members, *interface);
    close(members, ']');
    appendList(members, "problems", interface->problems);
    return finished(std::move(members));
}

std::string errorAnswer(const Problem &problem)
{
    std::string members;
    appendName(members, "error");
    append(members, problem);
    return finished(std::move(members));
}

std::string endAnswer(const std::vector<Problem> &problems)
{
    std::string members;
    appendNumber(members, "ended", "true");
    appendList(members, "problems", problems);
    return finished(std::move(members));
}
