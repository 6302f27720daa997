#include "tests/hostile/HostileProducers.h"

#include "tests/sdk/support/TemporaryDirectory.h"

#include <cstddef>
#include <elf.h>

namespace {

namespace fs = std::filesystem;
using Due = HostileProducer::Due;
using Rows = std::vector<HostileProducer>;

constexpr int hostsInCrowd = 30;

/// A script with which the test producer reports two cameras on one interface.
const std::string twoCameras = "interface net0|Network 0|GEV\ndevices net0|2\n";

void placeProducer(const fs::path &file, const std::string &script)
{
    writeFile(fs::path(file).replace_extension(".script"), script);
    fs::copy_file(TEST_PRODUCER, file);
}

HostileProducer scripted(
    const std::string &name, const std::string &script, Due due, const std::string &text, int cameras = -1)
{
    return {
        name, [script](const fs::path &cti) { placeProducer(cti / "bad.cti", script); }, due, text, cameras};
}

/// Returns the test producer with two cameras and with a fault in one function.
HostileProducer withFault(
    const std::string &function, const std::string &fault, Due due, const std::string &text, int cameras = -1)
{
    return scripted(std::string(function).append("/").append(fault),
        "fault " + function + ' ' + fault + '\n' + twoCameras, due, text, cameras);
}

std::function<void(const fs::path &)> withByte(std::size_t offset, unsigned char byte)
{
    return [offset, byte](const fs::path &cti) {
        std::string library = readFile(TEST_PRODUCER);
        library.at(offset) = static_cast<char>(byte);
        writeFile(cti / "bad.cti", library);
    };
}

Rows files()
{
    static constexpr auto awkwardName = "it's \"1\"\n\xFF.cti";
    constexpr auto otherMachine = "dlopen failed: the library is for another processor architecture";
    const auto crowd = [](const fs::path &cti) {
        for (int i = 0; i < hostsInCrowd; ++i) // These names sort before the simulator's name.
            placeProducer(cti / (std::to_string(i) + "bad.cti"), "fault TLOpen crash\n");
    };
    return {
        {"file/empty", [](const fs::path &cti) { writeFile(cti / "bad.cti", ""); }, Due::AtStart,
            "dlopen failed: "},
        {"file/other class", withByte(EI_CLASS, ELFCLASS32), Due::AtStart, otherMachine},
        {"file/other byte order", withByte(EI_DATA, ELFDATA2MSB), Due::AtStart, otherMachine},
        {"file/other machine", withByte(offsetof(Elf64_Ehdr, e_machine), EM_68K), Due::AtStart, otherMachine},
        {"file/other machine above 255", withByte(offsetof(Elf64_Ehdr, e_machine) + 1, 1), Due::AtStart,
            otherMachine},
        {"file/missing function",
            [](const fs::path &cti) { fs::copy_file(INCOMPLETE_PRODUCER, cti / "bad.cti"); }, Due::AtStart,
            "the library lacks IFGetDeviceInfo"},
        {"file/awkward name",
            [](const fs::path &cti) { placeProducer(cti / awkwardName, "fault TLOpen crash\n"); },
            Due::AtStart, "SIGSEGV", 0, 1, "it's \"1\"\\n\xEF\xBF\xBD.cti"},
        {"file/crowd", crowd, Due::AtStart, "SIGSEGV", 0, hostsInCrowd},
    };
}

/// Returns producers that misbehave while they are loaded, searched or closed. The library tolerates the rows
/// with Due::Never; the others throw, crash, hang or exit.
Rows failures()
{
    Rows rows{
        withFault("load", "throw", Due::AtStart, "failed: threw an uncaught exception: thrown by the "),
        withFault("load", "throw-number", Due::AtStart, "failed: threw an uncaught exception"),
        withFault("load", "close", Due::AtStart, "closed its host's connection"),
        withFault("load", "print", Due::Never, "", 2),
        withFault("TLOpenInterface", "in-use", Due::AtStart, "failed with -1004 (GC_ERR_RESOURCE_IN_USE)", 0),
        withFault("GCInitLib", "fork", Due::Never, "", 2),
        withFault("GCInitLib", "daemon", Due::Never, "", 2),
        withFault("GCInitLib", "threads", Due::Never, "", 2),
        withFault("GCInitLib", "signals", Due::Never, "", 2),
        withFault("GCInitLib", "terminate", Due::AtStart, "the producer failed: called std::terminate"),
        withFault("GCInitLib", "throw-in-thread", Due::AtStart,
            "the producer failed: threw an uncaught exception: thrown in a thread of the "),
        withFault("IFUpdateDeviceList", "fork-and-die", Due::AtStart, "SIGKILL"),
        withFault("IFUpdateDeviceList", "close", Due::AtStart, "closed its host's connection"),
        scripted("TLOpen/throw-in-thread, unconnected",
            "fault GCInitLib close\nfault TLOpen throw-in-thread\n" + twoCameras, Due::AtStart,
            "closed its host's connection"),
    };
    if (!IS_SANITIZED)
        rows.push_back(withFault("IFUpdateDeviceList", "allocate", Due::AtStart,
            "IFUpdateDeviceList failed: threw an exception: std::bad_alloc"));
    for (HostileProducer &row : rows)
        row.leavesDaemon = row.name == "GCInitLib/daemon";

    for (const std::string function : {"load", "IFUpdateDeviceList", "TLClose"}) {
        const Due due = function == "TLClose" ? Due::AtEnd : Due::AtStart;
        rows.push_back(withFault(function, "crash", due, "SIGSEGV"));
        rows.push_back(withFault(function, "abort", due, "SIGABRT"));
        rows.push_back(withFault(function, "exit 7", due, "exited with code 7"));
        rows.push_back(withFault(function, "hang", Due::AtEnd, "was killed"));
        if (function == "load")
            continue; // A library constructor has no return value.
        rows.push_back(
            withFault(function, "throw", due, function + " failed: threw an exception: thrown by"));
        rows.push_back(withFault(function, "throw-number", due, function + " failed: threw an exception"));
        rows.push_back(withFault(function, "error 3", due, function + " failed with 3 (not a GenTL code)"));
    }
    for (HostileProducer &row : rows) {
        if (row.name.rfind("TLClose/", 0) == 0)
            row.cameras = 2; // A producer that has not been opened yet is not closed.
    }
    return rows;
}

/// Describes what is reported about a function that returns success and does nothing else.
struct UntouchedOutput
{
    const char *function;
    Due due;
    const char *text;
};

constexpr UntouchedOutput untouchedOutputs[] = {
    {"GCInitLib", Due::AtEnd, "GCCloseLib failed with -1002"}, // The producer is not initialised.
    {"TLOpen", Due::AtStart, "TLOpen failed: returned no handle"},
    {"TLUpdateInterfaceList", Due::Never, ""}, // The list of interfaces stays empty.
    {"TLGetNumInterfaces", Due::AtStart, "returned an implausible number of interfaces"},
    {"TLGetInterfaceID", Due::AtStart, "TLGetInterfaceID failed: returned a string without a size"},
    {"TLOpenInterface", Due::AtStart, "TLOpenInterface failed: returned no handle"},
    {"IFUpdateDeviceList", Due::AtStart, "IFGetNumDevices failed with -1014"},
    {"IFGetNumDevices", Due::AtStart, "returned an implausible number of devices"},
    {"IFGetDeviceID", Due::AtStart, "IFGetDeviceID failed: returned a string without a size"},
    {"IFGetDeviceInfo", Due::AtStart, "IFGetDeviceInfo failed: returned a string without a size"},
    {"IFClose", Due::Never, ""}, // The host cannot detect that the interface is still open.
    {"TLClose", Due::AtEnd, "GCCloseLib failed with -1002"}, // The system is still open.
    {"GCCloseLib", Due::Never, ""}, // No function is called afterwards.
};

Rows functions()
{
    Rows rows{
        withFault("TLGetInterfaceInfo", "untouched", Due::Never, "", 2),
        withFault("TLGetInterfaceInfo", "error -1003", Due::Never, "", 2),
    };
    for (const auto &[name, due, text] : untouchedOutputs) {
        const std::string function = name;
        const bool isClosing = function.find("Close") != std::string::npos;
        rows.push_back(withFault(function, "error -1010", isClosing ? Due::AtEnd : Due::AtStart,
            function + " failed with -1010 (GC_ERR_IO): the "));
        rows.push_back(withFault(function, "untouched", due, text));
    }
    return rows;
}

HostileProducer withDevice(const std::string &name, const std::string &field)
{
    return scripted("strings/" + name,
        "interface n" + field + "|N" + field + "|GEV\ndevice n" + field + "|D" + field + "|V" + field + "|M"
            + field + "|S" + field + "|U" + field + "|" + field + '\n',
        Due::Never, "", 1);
}

Rows strings()
{
    const std::string info = "IFGetDeviceInfo failed";
    return {
        scripted("strings/no NUL",
            "fault IFGetDeviceInfo no-nul\nfault IFGetDeviceID no-nul\nfault TLGetInterfaceID no-nul\n"
                + twoCameras,
            Due::Never, "", 2),
        withDevice("invalid UTF-8", "\xC3\x28\xFF\xED\xA0\x80"),
        withDevice("control and JSON characters", "\\x01\\x07\\x08\\x0a\\x0d\\x1b\\x7f\"}],{:\\\\u0000\\"),
        withDevice("of 1,000 bytes", std::string(1000, 'y')),
        withFault("IFGetDeviceInfo", "size -1", Due::Never, "", 2), // The size is one byte too small.
        withFault("IFGetDeviceInfo", "size 4294967296", Due::Never, "", 2),
        withFault("IFGetDeviceInfo", "size 0", Due::AtStart, "returned a string without a size", 2),
        withFault("IFGetDeviceID", "size 0", Due::AtStart, "returned a string without a size", 0),
        withFault("IFGetDeviceInfo", "long 1048576", Due::AtStart,
            info + ": returned a string of 1048577 bytes", 2),
        withFault("IFGetDeviceID", "long 1048576", Due::AtStart,
            "IFGetDeviceID failed: returned a string of 1048577 bytes", 0),
        withFault("IFGetDeviceInfo", "grow 99", Due::AtStart, info + " with -1016", 2),
        withFault("IFGetDeviceInfo", "late-error -1010", Due::AtStart, info + " with -1010", 2),
        withFault("IFGetDeviceInfo", "number", Due::AtStart, "returned data that is not a string", 2),
        // This code means that the device has disappeared.
        withFault("IFGetDeviceInfo", "error -1007", Due::AtStart, info + " with -1007", 0),
    };
}

Rows lists()
{
    std::string crowdedInterfaces = "quiet\ninterfaces 10\n";
    for (int i = 1; i <= 10; ++i) { // A device with the same ID on two interfaces is one camera.
        const std::string name = "net" + std::to_string(i);
        crowdedInterfaces.append("devices " + name + "|200|" + name + "-\n");
    }
    return {
        withFault("IFGetNumDevices", "more", Due::AtStart, "IFGetDeviceID failed with -1017", 2),
        withFault("TLGetNumInterfaces", "more", Due::AtStart, "TLGetInterfaceID failed with -1017", 2),
        scripted("lists/repeated IDs", twoCameras + twoCameras + "interface net1\ndevices net1|2\n",
            Due::Never, "", -1),
        scripted("lists/1,000 interfaces", "quiet\ninterfaces 1000\n", Due::Never, "", 0),
        scripted("lists/2,000 devices", crowdedInterfaces, Due::AtStart, "2000 cameras", 1000),
        scripted("lists/10,000 devices", "quiet\ninterface net0\ndevices net0|10000\n", Due::AtStart,
            "returned 10000 devices; only the first 1000 are listed", 1000),
    };
}

} // namespace

std::vector<HostileProducer> hostileProducers()
{
    Rows all;
    for (const Rows &rows : {files(), failures(), functions(), strings(), lists()})
        all.insert(all.end(), rows.begin(), rows.end());
    return all;
}
