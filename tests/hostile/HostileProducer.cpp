#include "tests/hostile/HostileProducer.h"

#include "tests/sdk/support/TemporaryDirectory.h"

#include <elf.h>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;
using Due = HostileProducer::Due;
using Rows = std::vector<HostileProducer>;

// A sanitized host takes 50 ms to start and 30 MB of memory; one with counters writes them when it ends.
constexpr int Crowd = IS_INSTRUMENTED ? 20 : 500;

constexpr auto AwkwardName = "it's \"1\"\n\xFF.cti";
constexpr auto AwkwardNameInLine = "it's \"1\"\\n\xEF\xBF\xBD.cti";

/// Two cameras on one interface.
const std::string TwoCameras = "interface net0|Network 0|GEV\ndevices net0|2\n";

void placeProducer(const fs::path &file, const std::string &script)
{
    writeFile(fs::path(file).replace_extension(".script"), script);
    fs::copy_file(TEST_PRODUCER, file);
}

/// The scriptable producer as "bad.cti".
std::function<void(const fs::path &)> scripted(const std::string &script)
{
    return [script](const fs::path &cti) { placeProducer(cti / "bad.cti", script); };
}

std::function<void(const fs::path &)> withFault(const std::string &fault)
{
    return scripted("fault " + fault + '\n' + TwoCameras);
}

std::function<void(const fs::path &)> copied(const char *file)
{
    return [file](const fs::path &cti) { fs::copy_file(file, cti / "bad.cti"); };
}

std::function<void(const fs::path &)> written(const std::string &content)
{
    return [content](const fs::path &cti) { writeFile(cti / "bad.cti", content); };
}

std::function<void(const fs::path &)> linked(const std::string &target)
{
    return [target](const fs::path &cti) { fs::create_symlink(target, cti / "bad.cti"); };
}

void placeForeignMachine(const fs::path &cti)
{
    std::string library = readFile(TEST_PRODUCER);
    auto *header = reinterpret_cast<Elf64_Ehdr *>(library.data());
    header->e_machine = header->e_machine == EM_AARCH64 ? EM_X86_64 : EM_AARCH64;
    writeFile(cti / "bad.cti", library);
}

void placeUnreadable(const fs::path &cti)
{
    fs::copy_file(TEST_PRODUCER, cti / "bad.cti");
    fs::permissions(cti / "bad.cti", fs::perms::none);
}

Rows files()
{
    return {
        {"file/empty", written(""), Due::AtStart, "dlopen failed: "},
        {"file/text", written("This is no library.\n"), Due::AtStart, "dlopen failed: "},
        {"file/wrong machine", placeForeignMachine, Due::AtStart,
            "dlopen failed: the library is for another kind of machine"},
        {"file/unreadable", placeUnreadable, Due::AtStart, "Permission denied"},
        {"file/directory", [](const fs::path &cti) { fs::create_directory(cti / "bad.cti"); }, Due::AtStart,
            "is a directory"},
        {"file/FIFO", [](const fs::path &cti) { mkfifo((cti / "bad.cti").c_str(), 0600); }, Due::AtStart,
            "is no regular file"},
        {"file/device", linked("/dev/zero"), Due::AtStart, "is no regular file"},
        {"file/dangling link", linked("/opt/gone/maker.cti"), Due::AtStart,
            "cannot be found: No such file or directory"},
        {"file/link to itself", linked("bad.cti"), Due::AtStart, "cannot be found: Too many levels"},
        {"file/link to another producer", linked("CorvixCameraSimulator.cti"), Due::Never,
            "one file is loaded once, by whatever names", "", 0, 0},
        {"file/copy of another producer", copied(SIMULATOR), Due::Never,
            "two files in one folder are two producers, and a copy lists its cameras again", "", 0, 2},
        {"file/awkward name, empty", [](const fs::path &cti) { writeFile(cti / AwkwardName, ""); },
            Due::AtStart, "dlopen failed: ", AwkwardNameInLine},
        {"file/awkward name", [](const fs::path &cti) { placeProducer(cti / AwkwardName, TwoCameras); },
            Due::Never, "a name is no reason to refuse a producer", "", 0, 2},
        {"file/missing dependency", copied(DEPENDENT_PRODUCER), Due::AtStart, "libhostile_dependency.so"},
        {"file/missing function", copied(INCOMPLETE_PRODUCER), Due::AtStart,
            "the library lacks IFGetDeviceInfo"},
    };
}

Rows crowds()
{
    const auto each = [](const auto &place) {
        return [place](const fs::path &cti) {
            for (int i = 0; i < Crowd; ++i)
                place(cti / (std::to_string(i) + "bad.cti")); // Before the simulator in the order of names.
        };
    };
    return {
        {"crowd/links",
            each([](const fs::path &file) { fs::create_symlink("CorvixCameraSimulator.cti", file); }),
            Due::Never, "one file is loaded once, by whatever names", "", 0, 0},
        {"crowd/copies", each([](const fs::path &file) { fs::copy_file(SIMULATOR, file); }), Due::Never,
            "every copy lists its cameras again", "", 0, 2 * Crowd},
        {"crowd/empty files", each([](const fs::path &file) { writeFile(file, ""); }), Due::AtStart,
            "dlopen failed: ", "bad.cti", Crowd},
        {"crowd/16 slow ones",
            [](const fs::path &cti) {
                for (int i = 0; i < 16; ++i)
                    placeProducer(cti / (std::to_string(i) + "bad.cti"),
                        "fault IFUpdateDeviceList slow 3500\n" + TwoCameras);
            },
            Due::Never, "being slow is no failure: the cameras follow", "", 0},
    };
}

Rows constructors()
{
    return {
        {"constructor/crash", withFault("load crash"), Due::AtStart, "SIGSEGV"},
        {"constructor/abort", withFault("load abort"), Due::AtStart, "SIGABRT"},
        {"constructor/hang", withFault("load hang"), Due::AtEnd, "was killed"},
        {"constructor/throw", withFault("load throw"), Due::AtStart, "thrown by the driver"},
        {"constructor/throw a number", withFault("load throw-number"), Due::AtStart,
            "threw an exception that nobody caught"},
        {"constructor/exit 0", withFault("load exit 0"), Due::AtStart, "exited with code 0"},
        {"constructor/close", withFault("load close"), Due::AtStart, "closed its host's connection"},
        {"constructor/print", withFault("load print"), Due::Never, "standard output is the producer's own",
            "", 0, 2},
    };
}

/// What comes of a function that returns success and does nothing else.
struct Untouched
{
    const char *function;
    Due due;
    const char *words;
};

constexpr Untouched UntouchedRows[] = {
    {"GCInitLib", Due::AtEnd, "GCCloseLib failed with -1002"}, // It has no output, and is not initialised.
    {"TLOpen", Due::AtStart, "TLOpen failed: gave no handle"},
    {"TLUpdateInterfaceList", Due::Never, "its output need not be written; the list stays empty"},
    {"TLGetNumInterfaces", Due::AtStart, "gave no credible number of interfaces"},
    {"TLGetInterfaceID", Due::AtStart, "TLGetInterfaceID failed: gave a text without a size"},
    {"TLOpenInterface", Due::AtStart, "TLOpenInterface failed: gave no handle"},
    {"IFUpdateDeviceList", Due::AtStart, "IFGetNumDevices failed with -1014"},
    {"IFGetNumDevices", Due::AtStart, "gave no credible number of devices"},
    {"IFGetDeviceID", Due::AtStart, "IFGetDeviceID failed: gave a text without a size"},
    {"IFGetDeviceInfo", Due::AtStart, "IFGetDeviceInfo failed: gave a text without a size"},
    {"IFClose", Due::Never, "it has no output, and nothing shows that it did not close"},
    {"TLClose", Due::AtEnd, "GCCloseLib failed with -1002"}, // It has no output, and is still open.
    {"GCCloseLib", Due::Never, "it has no output, and nothing shows that it did not close"},
};

Rows functions()
{
    Rows rows;
    for (const Untouched &untouched : UntouchedRows) {
        const std::string function = untouched.function;
        const bool isClosing = function.find("Close") != std::string::npos;
        const auto add = [&](const std::string &fault, Due due, const std::string &words) {
            rows.push_back({std::string(function).append("/").append(fault),
                withFault(std::string(function).append(" ").append(fault)), due, words});
        };
        const Due due = isClosing ? Due::AtEnd : Due::AtStart;
        add("error -1010", due, function + " failed with -1010 (GC_ERR_IO): the driver's own words");
        add("error 3", due, function + " failed with 3 (no GenTL code)");
        add("crash", due, "SIGSEGV (Segmentation fault)");
        add("abort", due, "SIGABRT (Aborted)");
        add("throw", due, function + " failed: threw an exception: thrown by the driver");
        add("exit 7", due, "exited with code 7");
        add("hang", Due::AtEnd, "was killed");
        add("untouched", untouched.due, untouched.words);
    }
    rows.push_back({"TLGetInterfaceInfo/untouched", withFault("TLGetInterfaceInfo untouched"), Due::Never,
        "a name of the interface is not needed", "", 0, 2});
    rows.push_back({"TLGetInterfaceInfo/error -1003", withFault("TLGetInterfaceInfo error -1003"), Due::Never,
        "a name of the interface is not needed", "", 0, 2});
    rows.push_back({"TLOpenInterface/in-use", withFault("TLOpenInterface in-use"), Due::AtStart,
        "TLOpenInterface failed with -1004 (GC_ERR_RESOURCE_IN_USE)"});
    rows.push_back({"TLOpen/throw a number", withFault("TLOpen throw-number"), Due::AtStart,
        "TLOpen failed: threw an exception"});
    rows.push_back({"IFUpdateDeviceList/close", withFault("IFUpdateDeviceList close"), Due::AtStart,
        "closed its host's connection"});
    return rows;
}

HostileProducer listing(const std::string &name, const std::string &script, int cameras)
{
    return {"data/" + name, scripted(script), Due::Never, "all that it has is listed", "", 0, cameras};
}

HostileProducer withDevice(const std::string &name, const std::string &text)
{
    return listing(name,
        "interface n" + text + "|N" + text + "|GEV\ndevice n" + text + "|D" + text + "|V" + text + "|M" + text
            + "|S" + text + "|U" + text + "|" + text + '\n',
        1);
}

std::string devicesOnInterfaces(int interfaces, int devices)
{
    std::string script = "interfaces " + std::to_string(interfaces) + '\n';
    for (int i = 1; i <= interfaces; ++i)
        script += "devices net" + std::to_string(i) + '|' + std::to_string(devices) + '\n';
    return script;
}

Rows data()
{
    Rows rows{
        listing("no NUL",
            "fault IFGetDeviceInfo no-nul\nfault IFGetDeviceID no-nul\n"
            "fault TLGetInterfaceID no-nul\n"
                + TwoCameras,
            2),
        listing("size one too small",
            "fault IFGetDeviceInfo size -1\nfault IFGetDeviceID size -1\n" + TwoCameras, 2),
        listing("size of 4 GiB", "fault IFGetDeviceInfo size 4294967296\n" + TwoCameras, 2),
        withDevice("invalid UTF-8", "\xC3\x28\xFF\xED\xA0\x80"),
        withDevice("control characters", "\\x01\\x07\\x08\\x0a\\x0d\\x1b\\x7f"),
        withDevice("JSON metacharacters", "\"}],{:\\\\u0000\\"),
        withDevice("texts of 1,000 bytes", std::string(1000, 'y')),
        listing("1,000 interfaces", "quiet\ninterfaces 1000\n", 0),
        listing("10 interfaces with 100 devices each", "quiet\n" + devicesOnInterfaces(10, 100), 1000),
        listing("repeated IDs", TwoCameras + TwoCameras + "interface net1\ndevices net1|2\n", 4),
        listing("another list every time", "interface net0\nchanging net0\n", 1),
    };
    const auto add
        = [&](const std::string &name, const std::string &script, const std::string &words, int cameras) {
              rows.push_back({"data/" + name, scripted(script), Due::AtStart, words, "bad.cti", 1, cameras});
          };
    add("size 0", "fault IFGetDeviceInfo size 0\n" + TwoCameras, "gave a text without a size", 2);
    add("ID size 0", "fault IFGetDeviceID size 0\n" + TwoCameras, "gave a text without a size", 0);
    add("texts of 1 MiB", "fault IFGetDeviceInfo long 1048576\n" + TwoCameras,
        "IFGetDeviceInfo failed: gave a text of 1048577 bytes", 2);
    add("IDs of 1 MiB", "fault IFGetDeviceID long 1048576\n" + TwoCameras,
        "IFGetDeviceID failed: gave a text of 1048577 bytes", 0);
    add("a text that grows", "fault IFGetDeviceInfo grow\n" + TwoCameras, "IFGetDeviceInfo failed with -1016",
        2);
    add("a text that fails in the end", "fault IFGetDeviceInfo late-error -1010\n" + TwoCameras,
        "IFGetDeviceInfo failed with -1010", 2);
    add("a number for a text", "fault IFGetDeviceInfo number\n" + TwoCameras, "gave data that is no text", 2);
    add("devices that are gone", "fault IFGetDeviceInfo error -1007\n" + TwoCameras,
        "IFGetDeviceInfo failed with -1007", 0);
    add("fewer devices than counted", "fault IFGetNumDevices more\n" + TwoCameras,
        "IFGetDeviceID failed with -1017", 2);
    add("fewer interfaces than counted", "fault TLGetNumInterfaces more\n" + TwoCameras,
        "TLGetInterfaceID failed with -1017", 2);
    add("10 interfaces with 200 devices each", "quiet\n" + devicesOnInterfaces(10, 200),
        "lists 2000 cameras, of which the first 1000 are shown", 1000);
    add("10,000 devices", "quiet\ninterface net0\ndevices net0|10000\n",
        "gave 10000 devices, of which the first 1000 are listed", 1000);
    if (IS_INSTRUMENTED) // What follows is about time.
        return rows;
    const std::string many = "quiet\ninterface net0\ndevices net0|1000\nfault IFGetDeviceInfo ";
    rows.push_back(listing("1,000 devices with texts of 1,000 bytes", many + "long 1000\n", 1000));
    add("1,000 devices with texts of 10 KiB", many + "long 10240\n",
        "IFGetDeviceInfo failed: gave a text of 10241 bytes", 1000);
    return rows;
}

Rows processes()
{
    Rows rows{
        {"process/fork", withFault("GCInitLib fork"), Due::Never, "its child is ended with it", "", 0, 2},
        {"process/fork and die", withFault("IFUpdateDeviceList fork-and-die"), Due::AtStart, "SIGKILL"},
        {"process/daemon", withFault("GCInitLib daemon"), Due::Never,
            "a session of its own is beyond our reach", "", 0, 2, true},
        {"process/threads", withFault("GCInitLib threads"), Due::Never, "they end with their process", "", 0,
            2},
        {"process/throw in a thread", withFault("GCInitLib throw-in-thread"), Due::AtStart,
            "thrown in a thread of the driver"},
        {"process/terminate", withFault("GCInitLib terminate"), Due::AtStart,
            "the driver failed: called std::terminate"},
        {"process/throw in a thread, unconnected",
            scripted("fault GCInitLib close\nfault TLOpen throw-in-thread\n" + TwoCameras), Due::AtStart,
            "closed its host's connection"},
        {"process/signal handlers", withFault("GCInitLib signals"), Due::Never,
            "they are its own process's alone", "", 0, 2},
        {"process/ignores SIGTERM", withFault("IFUpdateDeviceList ignore-and-hang"), Due::AtEnd,
            "was killed"},
        {"process/prints at every search", withFault("IFUpdateDeviceList print"), Due::Never,
            "standard output is the producer's own", "", 0, 2},
    };
    if (!IS_SANITIZED) // Sanitizers map terabytes, so their hosts run without the limit.
        rows.push_back({"process/allocates without end", withFault("IFUpdateDeviceList allocate"),
            Due::AtStart, "IFUpdateDeviceList failed: threw an exception: std::bad_alloc"});
    return rows;
}

} // namespace

std::vector<HostileProducer> hostileProducers()
{
    Rows all;
    for (const Rows &rows : {files(), crowds(), constructors(), functions(), data(), processes()})
        all.insert(all.end(), rows.begin(), rows.end());
    return all;
}
