#include "sdk/simulator/ConfigurationFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <tuple>
#include <utility>

bool ConfigurationFile::State::operator==(const State &other) const
{
    return std::tie(openError, modified, size) == std::tie(other.openError, other.modified, other.size);
}

ConfigurationFile::ConfigurationFile(std::filesystem::path path)
    : m_path(std::move(path)),
      m_lastGood(std::make_shared<const SimulatorConfiguration>(defaultConfiguration()))
{ }

std::shared_ptr<const SimulatorConfiguration> ConfigurationFile::current()
{
    const std::lock_guard lock(m_mutex);
    // The time stamp is read before the file is opened, so if the file changes between these two steps, the
    // next call reads the file again.
    std::error_code ignored; // Ignored because opening the file below reports the error.
    State state{};
    state.modified = std::filesystem::last_write_time(m_path, ignored);
    state.size = std::filesystem::file_size(m_path, ignored);
    std::ifstream stream(m_path, std::ios::binary);
    state.openError = stream ? 0 : errno;

    const bool isMissing = state.openError == ENOENT;
    if (!(m_state == state)) {
        m_state = state;
        if (state.openError == 0)
            read(stream);
        else if (!isMissing)
            reportProblem(std::strerror(state.openError));
    }
    return isMissing ? std::make_shared<const SimulatorConfiguration>(defaultConfiguration()) : m_lastGood;
}

void ConfigurationFile::read(std::istream &stream)
{
    try {
        const std::string text{std::istreambuf_iterator<char>(stream), {}};
        m_lastGood = std::make_shared<const SimulatorConfiguration>(parseConfiguration(text));
    } catch (const std::runtime_error &problem) {
        reportProblem(problem.what());
    }
}

void ConfigurationFile::reportProblem(const char *problem) const
{
    constexpr int maxLength = 500; // In bytes. The JSON parser quotes all the text that it has read.
    std::fprintf(stderr, "Camera simulator: %s is not used: %.*s\n", m_path.c_str(), maxLength, problem);
}
