#include "tests/camerahost/QuirkProducer.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

QuirkProducer::QuirkProducer(const std::string &script)
{
    std::filesystem::copy_file(QUIRK_PRODUCER, ctiPath());
    setDescription(readFile(QUIRK_DESCRIPTION));
    setScript(script);
}

void QuirkProducer::setScript(const std::string &script)
{
    writeFile(m_directory.path() / "quirk.script", script);
}

void QuirkProducer::removeExports(const std::vector<std::string> &functions)
{
    std::string library = readFile(ctiPath());
    for (const std::string &function : functions) {
        // The hash of the original name still leads to the symbol, but the name is not equal any more.
        const std::string entry = std::string(1, '\0') + function + '\0';
        const auto place = library.find(entry);
        ASSERT_NE(place, std::string::npos) << function;
        library[place + 1] = '_';
    }
    writeFile(ctiPath(), library);
}

void QuirkProducer::setDescription(const std::string &content)
{
    writeFile(m_directory.path() / "quirk.xml", content);
}

std::string QuirkProducer::description() const
{
    return readFile(m_directory.path() / "quirk.xml");
}

std::vector<std::string> QuirkProducer::log() const
{
    std::vector<std::string> calls;
    std::istringstream lines(readFile(m_directory.path() / "quirk.log"));
    for (std::string line; std::getline(lines, line);)
        calls.push_back(line.substr(line.find(' ') + 1));
    return calls;
}

std::size_t QuirkProducer::count(const std::string &call) const
{
    const auto calls = log();
    return static_cast<std::size_t>(std::count_if(
        calls.begin(), calls.end(), [&](const std::string &line) { return line.rfind(call, 0) == 0; }));
}
