#include "tests/producer/SimulatorFolder.h"

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <stdexcept>
#include <sys/stat.h>
#include <thread>

namespace {

void write(const std::filesystem::path &file, const std::string &text)
{
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    if (!stream.write(text.data(), static_cast<std::streamsize>(text.size())).flush())
        throw std::runtime_error("cannot write " + file.string());
}

} // namespace

SimulatorFolder::SimulatorFolder()
{
    std::string name = (std::filesystem::temp_directory_path() / "simulator-XXXXXX").string();
    if (!mkdtemp(name.data()))
        throw std::runtime_error("cannot make a temporary folder");
    m_folder = name;
    std::filesystem::copy_file(SIMULATOR_FILE, producerFile());
}

SimulatorFolder::~SimulatorFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
}

std::filesystem::path SimulatorFolder::producerFile() const
{
    return m_folder / "CorvixCameraSimulator.cti";
}

std::filesystem::path SimulatorFolder::sceneFile() const
{
    return m_folder / "CorvixCameraSimulator.json";
}

void SimulatorFolder::writeScene(const std::string &text) const
{
    write(sceneFile(), text);
}

void SimulatorFolder::replaceScene(const std::string &text) const
{
    const std::filesystem::path fresh = m_folder / "fresh.json";
    write(fresh, text);
    std::filesystem::rename(fresh, sceneFile());
}

void SimulatorFolder::removeScene() const
{
    std::filesystem::remove(sceneFile());
}

void SimulatorFolder::makeSceneAFolder() const
{
    std::filesystem::create_directory(sceneFile());
}

void SimulatorFolder::makeSceneAPipe() const
{
    if (mkfifo(sceneFile().c_str(), 0600) != 0)
        throw std::runtime_error("cannot make a pipe");
}

void SimulatorFolder::makeSceneALinkTo(const std::filesystem::path &target) const
{
    std::filesystem::create_symlink(target, sceneFile());
}

void SimulatorFolder::letSceneSettle() const
{
    constexpr std::time_t age = 4; // Seconds; more than the times of any file system are apart.
    struct stat status = {};
    if (stat(sceneFile().c_str(), &status) != 0)
        throw std::runtime_error("there is no scene file");
    // No file's time of change can be set back, so only the clock helps.
    while (std::time(nullptr) < status.st_ctim.tv_sec + age)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
}
