#pragma once

#include <filesystem>
#include <string>

/// A folder of its own with a copy of the simulator, and the scene file beside that. Removed at the end.
class SimulatorFolder
{
public:
    SimulatorFolder();
    ~SimulatorFolder();
    SimulatorFolder(const SimulatorFolder &) = delete;
    SimulatorFolder &operator=(const SimulatorFolder &) = delete;

    std::filesystem::path producerFile() const;

    /// Overwrites the scene file in its place.
    void writeScene(const std::string &text) const;

    /// Puts a new scene file in the place of the old one.
    void replaceScene(const std::string &text) const;

    /// Waits until the scene file is old enough to be told from any later change by its times.
    void letSceneSettle() const;

    void removeScene() const;
    void makeSceneAFolder() const;
    void makeSceneAPipe() const;
    void makeSceneALinkTo(const std::filesystem::path &target) const;

private:
    std::filesystem::path sceneFile() const;

    std::filesystem::path m_folder;
};
