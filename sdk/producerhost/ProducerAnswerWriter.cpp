#include "sdk/producerhost/ProducerAnswerWriter.h"

#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;

std::string line(const json &answer)
{
    return answer.dump(-1, ' ', false, json::error_handler_t::replace) + '\n';
}

json toJson(const Problem &problem)
{
    return {{"call", problem.call}, {"code", problem.code}, {"text", problem.text}};
}

json toJson(const std::vector<Problem> &problems)
{
    json array = json::array();
    for (const Problem &problem : problems)
        array.push_back(toJson(problem));
    return array;
}

json toJson(const OpenInterface &interface)
{
    json devices = json::array();
    for (const DeviceDescription &device : interface.devices) {
        devices.push_back({{"id", device.id}, {"vendor", device.vendor}, {"model", device.model},
            {"serial", device.serial}, {"name", device.name}, {"type", device.type}});
    }
    return {{"number", interface.number}, {"id", interface.id},
        {"name", interface.name.empty() ? interface.id : interface.name}, {"type", interface.type},
        {"devices", std::move(devices)}};
}

} // namespace

std::string listAnswer(const std::vector<OpenInterface> &interfaces, const std::vector<Problem> &problems)
{
    json list = json::array();
    std::vector<Problem> all = problems;
    for (const OpenInterface &interface : interfaces) {
        list.push_back(toJson(interface));
        for (const Problem &problem : interface.problems)
            addProblem(all, problem);
    }
    return line({{"interfaces", std::move(list)}, {"problems", toJson(all)}});
}

std::string interfaceAnswer(const OpenInterface *interface)
{
    if (!interface)
        return line({{"interfaces", json::array()}, {"problems", json::array()}});
    return line(
        {{"interfaces", json::array({toJson(*interface)})}, {"problems", toJson(interface->problems)}});
}

std::string errorAnswer(const Problem &problem)
{
    return line({{"error", toJson(problem)}});
}

std::string endAnswer(const std::vector<Problem> &problems)
{
    return line({{"ended", true}, {"problems", toJson(problems)}});
}
