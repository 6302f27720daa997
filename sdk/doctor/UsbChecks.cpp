#include "sdk/doctor/UsbChecks.h"

#include "sdk/text/Utf8.h"

#include <cstdio>

namespace {

const std::string devicesDirectory = "/sys/bus/usb/devices/";

/// A USB device with an interface of the class of USB3 Vision cameras.
struct UsbCamera
{
    std::string directory; ///< Directory of the device in /sys.
    std::string name; ///< For people.
    std::string node; ///< Path in /dev.
    bool isClaimed = false; ///< True if a program has opened an interface.
};

bool isVisionInterface(const FileTree &files, const std::string &directory)
{
    return files.read(directory + "/bInterfaceClass") == "ef"
        && files.read(directory + "/bInterfaceSubClass") == "05";
}

std::string nodeOf(const FileTree &files, const std::string &directory)
{
    char node[64];
    std::snprintf(node, sizeof node, "/dev/bus/usb/%03d/%03d",
        static_cast<int>(files.number(directory + "/busnum").value_or(0)),
        static_cast<int>(files.number(directory + "/devnum").value_or(0)));
    return node;
}

std::string nameOfDevice(const FileTree &files, const std::string &directory)
{
    std::string name;
    for (const char *field : {"/manufacturer", "/product", "/serial"}) {
        const std::string text = toPrintable(files.read(directory + field).value_or(std::string()));
        name += (name.empty() || text.empty() ? "" : " ") + text;
    }
    return name.empty() ? directory.substr(devicesDirectory.size()) : name;
}

std::vector<UsbCamera> findUsbCameras(const FileTree &files)
{
    std::vector<UsbCamera> cameras;
    for (const std::string &interface : files.names("/sys/bus/usb/devices")) {
        // An interface is named after its device, for example "2-1:1.0".
        const std::string directory = devicesDirectory + interface.substr(0, interface.find(':'));
        if (!isVisionInterface(files, devicesDirectory + interface))
            continue;
        const bool isClaimed = files.linkName(devicesDirectory + interface + "/driver") == "usbfs";
        if (!cameras.empty() && cameras.back().directory == directory) {
            cameras.back().isClaimed = cameras.back().isClaimed || isClaimed;
            continue;
        }
        cameras.push_back({directory, nameOfDevice(files, directory), nodeOf(files, directory), isClaimed});
    }
    return cameras;
}

/// @param hasRule True if the udev rule has given the camera to a group.
Finding forbidden(const UsbCamera &camera, bool hasRule)
{
    const std::string what = "You may not open the camera (" + camera.node + ").";
    if (hasRule)
        return {Severity::Error, camera.name, what,
            "Only members of the group plugdev may, or whoever sits at the computer. Log in again after the "
            "command.",
            "sudo adduser \"$USER\" plugdev"};
    return {Severity::Error, camera.name, what,
        "The udev rule for cameras is missing. Run the command in the directory of the installation, then "
        "plug the "
        "camera in again.",
        "sudo cp lib/udev/rules.d/60-corvix-usb3-vision.rules /etc/udev/rules.d/ && sudo udevadm control "
        "--reload-rules"};
}

void checkPermission(const FileTree &files, const UsbCamera &camera, Findings &findings)
{
    if (!files.exists(camera.node))
        findings.push_back(
            {Severity::Error, camera.name, "The file " + camera.node + " of the camera is missing.",
                "No program can open the camera. A container needs access to /dev/bus/usb.",
                "ls -l /dev/bus/usb"});
    else if (!files.canReadAndWrite(camera.node))
        findings.push_back(forbidden(camera, files.isGroupWritable(camera.node)));
}

void checkSpeed(const FileTree &files, const UsbCamera &camera, Findings &findings)
{
    constexpr std::int64_t superSpeed = 5000; // Mbit/s.
    const auto speed = files.number(camera.directory + "/speed");
    if (speed && *speed < superSpeed)
        findings.push_back({Severity::Warning, camera.name,
            "The camera is connected with " + std::to_string(*speed) + " Mbit/s.",
            "It needs a USB 3 port and a USB 3 cable for its full frame rate.", "lsusb --tree"});
}

void checkCamera(const FileTree &files, const UsbCamera &camera, Findings &findings)
{
    const std::size_t before = findings.size();
    checkPermission(files, camera, findings);
    checkSpeed(files, camera, findings);
    if (camera.isClaimed)
        findings.push_back({Severity::Notice, camera.name, "A program uses the camera.",
            "A camera has one user at a time.", "sudo fuser --verbose " + camera.node});
    if (findings.size() == before)
        findings.push_back({Severity::Ok, camera.name, "You may open the camera.", {}, {}});
}

Finding checkMemory(const FileTree &files)
{
    constexpr char path[] = "/sys/module/usbcore/parameters/usbfs_memory_mb";
    constexpr std::int64_t enough = 256; // MB.
    const auto limit = files.number(path);
    if (!limit)
        return {
            Severity::Notice, "usbfs_memory_mb", "The memory limit of USB transfers cannot be read.", {}, {}};
    const std::string what = *limit == 0
        ? "The memory of USB transfers is not limited."
        : "USB transfers of all cameras together can use " + std::to_string(*limit) + " MB.";
    if (*limit == 0 || *limit >= enough)
        return {Severity::Ok, "usbfs_memory_mb", what, {}, {}};
    return {Severity::Warning, "usbfs_memory_mb", what,
        "Streams of large images or of several cameras do not start or lose images.",
        std::string("echo 1000 | sudo tee ") + path};
}

} // namespace

Findings checkUsb(const FileTree &files)
{
    Findings findings;
    for (const UsbCamera &camera : findUsbCameras(files))
        checkCamera(files, camera, findings);
    if (findings.empty())
        return {{Severity::Ok, "USB cameras", "No USB3 Vision camera is connected.", {}, {}}};
    findings.push_back(checkMemory(files));
    return findings;
}
