#pragma once

#include "sdk/simulator/SimulatorConfiguration.h"

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <memory>
#include <mutex>
#include <optional>

/// The simulator's configuration file. The file is read again when its time stamp or size has changed.
/// If there is no file, the default configuration is used. If the file is invalid or cannot be read, the last
/// valid configuration is used (the default configuration if there was none), and one line on standard error
/// reports the problem.
class ConfigurationFile
{
public:
    explicit ConfigurationFile(std::filesystem::path path);

    /// Returns the configuration to use now; never null. Any thread may call current(). Blocks while the file
    /// is read.
    std::shared_ptr<const SimulatorConfiguration> current();

private:
    /// The observed state of the file. If the state has not changed, the file is not read again.
    struct State
    {
        int openError; ///< The value of errno after opening the file failed; 0 if the file was opened.
        std::filesystem::file_time_type modified;
        std::uintmax_t size;

        bool operator==(const State &other) const;
    };

    void read(std::istream &stream);
    void reportProblem(const char *problem) const;

    const std::filesystem::path m_path;

    std::mutex m_mutex; // Guards the members below.
    std::optional<State> m_state; // The state at the last call of current(); empty before the first call.
    std::shared_ptr<const SimulatorConfiguration> m_lastGood;
};
