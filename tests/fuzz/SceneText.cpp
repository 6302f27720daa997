// The simulator's scene: its text, and the file that holds it.

#include "sdk/simulator/Scene.h"
#include "sdk/simulator/SceneFile.h"
#include "tests/fuzz/FuzzTarget.h"

#include <optional>
#include <set>
#include <stdexcept>
#include <sys/mman.h>
#include <unistd.h>

namespace {

std::optional<Scene> read(const std::string &text)
{
    try {
        return parseScene(text);
    } catch (const std::runtime_error &problem) { // Nothing else may be thrown.
        require(*problem.what() != '\0', "a problem has words");
        return std::nullopt;
    }
}

void requireText(const std::string &text)
{
    require(text.find('\0') == std::string::npos, "a text holds no NUL");
}

void requireDevice(const DeviceRecord &device)
{
    for (const std::string &text : {device.id, device.vendor, device.model, device.serial, device.userName,
             device.displayName, device.tlType})
        requireText(text);
    require(!device.id.empty() && !device.displayName.empty() && !device.tlType.empty(),
        "a device has an ID, a name to show and a technology");
}

void requireDevices(const std::vector<DeviceRecord> &devices)
{
    std::set<std::string> ids;
    for (const DeviceRecord &device : devices) {
        requireDevice(device);
        require(ids.insert(device.id).second, "a device's ID is its own on its interface");
    }
}

void requireScene(const Scene &scene)
{
    std::set<std::string> ids;
    for (const SceneInterface &element : scene) {
        const InterfaceRecord &record = element.record;
        for (const std::string &text : {record.id, record.displayName, record.tlType})
            requireText(text);
        require(!record.id.empty() && !record.displayName.empty() && !record.tlType.empty(),
            "an interface has an ID, a name to show and a technology");
        require(ids.insert(record.id).second, "an interface's ID is its own");
        requireDevices(element.devices);
    }
}

/// A file that is nowhere but in memory.
class MemoryFile
{
public:
    explicit MemoryFile(const std::string &content) : m_descriptor(memfd_create("scene", MFD_CLOEXEC))
    {
        require(write(m_descriptor, content.data(), content.size()) == static_cast<ssize_t>(content.size()),
            "the file is written");
    }
    ~MemoryFile() { close(m_descriptor); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    std::string path() const { return "/proc/self/fd/" + std::to_string(m_descriptor); }

private:
    int m_descriptor;
};

/// Only good scenes: the others are reported on standard error.
void requireSameFromFile(const std::string &text, const Scene &scene)
{
    const MemoryFile memory(text);
    SceneFile file(memory.path());
    for (int i = 0; i < 2; ++i) { // The second time the file has not changed.
        const auto shown = file.current();
        require(shown->size() == scene.size(), "the scene of a file is that of its text");
        for (std::size_t at = 0; at < scene.size(); ++at) {
            require((*shown)[at].record.id == scene[at].record.id
                    && (*shown)[at].devices.size() == scene[at].devices.size(),
                "the scene of a file is that of its text");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string text = textOf(data, size);
    if (const std::optional<Scene> scene = read(text)) {
        requireScene(*scene);
        requireSameFromFile(text, *scene);
    }
    return 0;
}
