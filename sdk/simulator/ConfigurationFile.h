#pragma once

#include "sdk/simulator/SimulatorConfiguration.h"

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <memory>
#include <mutex>
#include <optional>

/// The simulator's configuration file. It is read again when its time stamp or size changes.
/// While there is no file, the default configuration holds. While the file has a mistake, the last good
/// configuration holds (the default one if there was none), and one line on standard error names the place.
class ConfigurationFile
{
public:
    explicit ConfigurationFile(std::filesystem::path path);

    /// Returns the configuration that holds now; never null. Any thread may call it. Blocks while the file is
    /// read.
    std::shared_ptr<const SimulatorConfiguration> current();

private:
    /// Two equal states mean that the file needs no reading.
    struct State
    {
        int openError; ///< The errno of opening the file; 0 if it is open.
        std::filesystem::file_time_type modified;
        std::uintmax_t size;

        bool operator==(const State &other) const;
    };

    void read(std::istream &stream);
    void reportProblem(const char *problem) const;

    const std::filesystem::path m_path;

    std::mutex m_mutex; // Guards what follows.
    std::optional<State> m_state; // The state at the last reading; empty before the first.
    std::shared_ptr<const SimulatorConfiguration> m_lastGood;
};
