#include "tests/sdk/producer/Script.h"

#include <algorithm>
#include <dlfcn.h>
#include <fstream>
#include <sstream>

namespace {

std::string unescaped(const std::string &text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isByte = text.compare(i, 2, "\\x") == 0 && i + 3 < text.size();
        result += isByte ? static_cast<char>(std::stoi(text.substr(i + 2, 2), nullptr, 16)) : text[i];
        i += isByte ? 3 : 0;
    }
    return result;
}

Fields split(const std::string &text)
{
    Fields fields;
    std::istringstream stream(text);
    for (std::string field; std::getline(stream, field, '|');)
        fields.push_back(unescaped(field));
    if (text.empty() || text.back() == '|')
        fields.emplace_back(); // getline() does not return a last field that is empty.
    return fields;
}

void readLine(const std::string &line, Script &script)
{
    const std::string keyword = line.substr(0, line.find(' '));
    const std::string rest = line.substr(std::min(keyword.size() + 1, line.size()));
    const Fields fields = split(rest);
    if (keyword == "interface")
        script.interfaces.push_back(fields);
    for (int i = 1; keyword == "interfaces" && i <= std::stoi(rest); ++i)
        script.interfaces.push_back({"net" + std::to_string(i)});
    if (keyword == "device")
        script.devices.emplace(fields[0], ScriptedDevice{Fields(fields.begin() + 1, fields.end())});
    if (keyword == "late")
        script.devices.emplace(
            fields.at(1), ScriptedDevice{Fields(fields.begin() + 2, fields.end()), std::stoul(fields[0])});
    for (int i = 1; keyword == "devices" && i <= std::stoi(fields.at(1)); ++i) {
        const std::string number = std::to_string(i);
        const std::string prefix = fields.size() > 2 ? fields[2] : "D";
        script.devices.emplace(fields[0],
            ScriptedDevice{{prefix + number, "Vendor", "Model " + number, "SN" + number, "Name", "GEV"}});
    }
    if (keyword == "quiet")
        script.isQuiet = true;
    if (keyword == "self-updating")
        script.isSelfUpdating = true;
    if (keyword == "fault")
        script.faults[rest.substr(0, rest.find(' '))] = rest.substr(rest.find(' ') + 1);
}

} // namespace

const std::string &basePath()
{
    static const std::string path = [] {
        Dl_info info{};
        dladdr(reinterpret_cast<const void *>(&basePath), &info);
        const std::string file = info.dli_fname;
        return file.substr(0, file.rfind('.'));
    }();
    return path;
}

std::string scriptPath()
{
    return basePath() + ".script";
}

Script readScriptFile()
{
    Script script;
    std::ifstream file(scriptPath());
    for (std::string line; std::getline(file, line);)
        readLine(line, script);
    return script;
}
