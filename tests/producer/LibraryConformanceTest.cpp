// The rules of the library and the system module: states, handles, information, errors, exports.

#include "tests/producer/ExportedSymbols.h"
#include "tests/producer/ProducerSession.h"
#include "tests/producer/ProducersUnderTest.h"

#include <dlfcn.h>
#include <thread>

using namespace GenTL;

namespace {

using NamedCode = std::pair<std::string, GC_ERROR>;

/// Calls every function that takes a system handle; the one that closes it last.
std::vector<NamedCode> callAllOnSystem(const LoadedProducer &producer, TL_HANDLE system)
{
    bool8_t changed = 0;
    std::uint32_t count = 0;
    IF_HANDLE interface = nullptr;
    return {
        {"TLGetInfo", codeOf(systemInfo(producer, system, TL_INFO_ID))},
        {"TLUpdateInterfaceList", producer.TLUpdateInterfaceList(system, &changed, 100)},
        {"TLGetNumInterfaces", producer.TLGetNumInterfaces(system, &count)},
        {"TLGetInterfaceID", codeOf(interfaceId(producer, system, 0))},
        {"TLGetInterfaceInfo", codeOf(listedInterfaceInfo(producer, system, "any", INTERFACE_INFO_ID))},
        {"TLOpenInterface", producer.TLOpenInterface(system, "any", &interface)},
        {"TLClose", producer.TLClose(system)},
    };
}

/// Calls every function that takes an interface handle; the one that closes it last.
std::vector<NamedCode> callAllOnInterface(const LoadedProducer &producer, IF_HANDLE interface)
{
    bool8_t changed = 0;
    std::uint32_t count = 0;
    TL_HANDLE system = nullptr;
    return {
        {"IFGetInfo", codeOf(openInterfaceInfo(producer, interface, INTERFACE_INFO_ID))},
        {"IFUpdateDeviceList", producer.IFUpdateDeviceList(interface, &changed, 100)},
        {"IFGetNumDevices", producer.IFGetNumDevices(interface, &count)},
        {"IFGetDeviceID", codeOf(deviceId(producer, interface, 0))},
        {"IFGetDeviceInfo", codeOf(deviceInfo(producer, interface, "any", DEVICE_INFO_ID))},
        {"IFGetParentTL", producer.IFGetParentTL(interface, &system)},
        {"IFClose", producer.IFClose(interface)},
    };
}

std::vector<NamedCode> callAllOnLibrary(const LoadedProducer &producer)
{
    GC_ERROR code = GC_ERR_SUCCESS;
    std::size_t size = 0;
    TL_HANDLE system = nullptr;
    return {
        {"GCGetInfo", codeOf(libraryInfo(producer, TL_INFO_ID))},
        {"GCGetLastError", producer.GCGetLastError(&code, nullptr, &size)},
        {"TLOpen", producer.TLOpen(&system)},
        {"GCCloseLib", producer.GCCloseLib()},
    };
}

void expectAll(const std::vector<NamedCode> &calls, GC_ERROR expected, const char *when)
{
    for (const auto &[name, code] : calls)
        EXPECT_EQ(code, expected) << name << " " << when;
}

/// Fails if another code than this is the thread's last error, or if it comes without a text.
void expectLastError(const LoadedProducer &producer, GC_ERROR expected)
{
    GC_ERROR code = 1;
    const std::string text = readId([&](INFO_DATATYPE *, void *buffer, std::size_t *size) {
        return producer.GCGetLastError(&code, static_cast<char *>(buffer), size);
    });
    EXPECT_EQ(code, expected);
    EXPECT_FALSE(text.empty());
}

} // namespace

class LibraryConformance : public testing::TestWithParam<std::filesystem::path>
{ };

INSTANTIATE_TEST_SUITE_P(Of, LibraryConformance, testing::ValuesIn(producersUnderTest()), producerTestName);

TEST_P(LibraryConformance, ExportsTheFunctionsOfTheInterfaceAndNothingElse)
{
    std::set<std::string> expected(discoveryFunctions().begin(), discoveryFunctions().end());
    expected.insert(functionsBeyondDiscovery().begin(), functionsBeyondDiscovery().end());
    EXPECT_EQ(exportedSymbols(GetParam()), expected);
}

TEST_P(LibraryConformance, RefusesEveryCallUntilInitialised)
{
    const LoadedProducer producer(GetParam());
    expectAll(callAllOnLibrary(producer), GC_ERR_NOT_INITIALIZED, "at first");
    expectAll(callAllOnSystem(producer, nullptr), GC_ERR_NOT_INITIALIZED, "at first");
    expectAll(callAllOnInterface(producer, nullptr), GC_ERR_NOT_INITIALIZED, "at first");
}

TEST_P(LibraryConformance, RefusesEveryCallOnceClosed)
{
    const LoadedProducer producer(GetParam());
    ASSERT_EQ(producer.GCInitLib(), GC_ERR_SUCCESS);
    TL_HANDLE system = nullptr;
    ASSERT_EQ(producer.TLOpen(&system), GC_ERR_SUCCESS);
    ASSERT_EQ(producer.TLClose(system), GC_ERR_SUCCESS);
    ASSERT_EQ(producer.GCCloseLib(), GC_ERR_SUCCESS);
    expectAll(callAllOnLibrary(producer), GC_ERR_NOT_INITIALIZED, "after closing");
    expectAll(callAllOnSystem(producer, system), GC_ERR_NOT_INITIALIZED, "after closing");
    expectAll(callAllOnInterface(producer, system), GC_ERR_NOT_INITIALIZED, "after closing");
}

TEST_P(LibraryConformance, InitialisesOnceBetweenTwoClosings)
{
    const LoadedProducer producer(GetParam());
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(producer.GCInitLib(), GC_ERR_SUCCESS);
        EXPECT_EQ(producer.GCInitLib(), GC_ERR_RESOURCE_IN_USE);
        EXPECT_EQ(producer.GCCloseLib(), GC_ERR_SUCCESS);
        EXPECT_EQ(producer.GCCloseLib(), GC_ERR_NOT_INITIALIZED);
    }
}

TEST_P(LibraryConformance, OpensOneSystemModuleAtATime)
{
    const ProducerSession session(GetParam());
    TL_HANDLE second = nullptr;
    EXPECT_EQ(session.producer().TLOpen(&second), GC_ERR_RESOURCE_IN_USE);
    EXPECT_EQ(session.producer().TLOpen(nullptr), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(session.producer().TLClose(session.system()), GC_ERR_SUCCESS);
    EXPECT_EQ(session.producer().TLOpen(&second), GC_ERR_SUCCESS);
    EXPECT_EQ(session.producer().TLClose(second), GC_ERR_SUCCESS);
}

TEST_P(LibraryConformance, RefusesHandlesThatAreNoneOfItsOwn)
{
    const ProducerSession session(GetParam());
    int foreign = 0;
    for (void *const handle : {static_cast<void *>(nullptr), static_cast<void *>(&foreign)}) {
        expectAll(
            callAllOnSystem(session.producer(), handle), GC_ERR_INVALID_HANDLE, "with a foreign handle");
        expectAll(
            callAllOnInterface(session.producer(), handle), GC_ERR_INVALID_HANDLE, "with a foreign handle");
    }
    expectAll(callAllOnInterface(session.producer(), session.system()), GC_ERR_INVALID_HANDLE,
        "with the handle of the system");
}

TEST_P(LibraryConformance, RefusesHandlesThatAreClosed)
{
    const ProducerSession session(GetParam());
    ASSERT_EQ(session.producer().TLClose(session.system()), GC_ERR_SUCCESS);
    expectAll(callAllOnSystem(session.producer(), session.system()), GC_ERR_INVALID_HANDLE, "once closed");

    TL_HANDLE reopened = nullptr;
    ASSERT_EQ(session.producer().TLOpen(&reopened), GC_ERR_SUCCESS);
    expectAll(
        callAllOnSystem(session.producer(), session.system()), GC_ERR_INVALID_HANDLE, "once opened anew");
}

TEST_P(LibraryConformance, TellsTheHandlesOfInterfacesFromThatOfTheSystem)
{
    const ProducerSession session(GetParam());
    session.updateInterfaces();
    for (const std::string &id : session.interfaceIds())
        expectAll(callAllOnSystem(session.producer(), session.open(id)), GC_ERR_INVALID_HANDLE,
            "with the handle of an interface");
}

TEST_P(LibraryConformance, ClosesInterfacesWithTheSystem)
{
    const ProducerSession session(GetParam());
    session.updateInterfaces();
    std::vector<IF_HANDLE> handles;
    for (const std::string &id : session.interfaceIds())
        handles.push_back(session.open(id));
    EXPECT_EQ(session.producer().TLClose(session.system()), GC_ERR_SUCCESS);
    for (const IF_HANDLE handle : handles)
        expectAll(callAllOnInterface(session.producer(), handle), GC_ERR_INVALID_HANDLE, "once closed");
}

TEST_P(LibraryConformance, ClosesEverythingWithTheLibrary)
{
    const ProducerSession session(GetParam());
    session.updateInterfaces();
    std::vector<IF_HANDLE> handles;
    for (const std::string &id : session.interfaceIds())
        handles.push_back(session.open(id));
    ASSERT_EQ(session.producer().GCCloseLib(), GC_ERR_SUCCESS);
    ASSERT_EQ(session.producer().GCInitLib(), GC_ERR_SUCCESS);
    expectAll(callAllOnSystem(session.producer(), session.system()), GC_ERR_INVALID_HANDLE, "once closed");
    for (const IF_HANDLE handle : handles)
        expectAll(callAllOnInterface(session.producer(), handle), GC_ERR_INVALID_HANDLE, "once closed");
}

TEST_P(LibraryConformance, TellsAllAboutItself)
{
    const ProducerSession session(GetParam());
    const LoadedProducer &producer = session.producer();
    for (const TL_INFO_CMD command : {TL_INFO_ID, TL_INFO_VENDOR, TL_INFO_MODEL, TL_INFO_VERSION,
             TL_INFO_TLTYPE, TL_INFO_NAME, TL_INFO_PATHNAME, TL_INFO_DISPLAYNAME}) {
        const std::string text = readText(libraryInfo(producer, command));
        EXPECT_FALSE(text.empty()) << command;
        EXPECT_EQ(readText(systemInfo(producer, session.system(), command)), text);
    }
    EXPECT_EQ(readText(libraryInfo(producer, TL_INFO_NAME)), producer.file().filename());
    EXPECT_EQ(readText(libraryInfo(producer, TL_INFO_PATHNAME)), producer.file());
    EXPECT_EQ(readInt32(libraryInfo(producer, TL_INFO_CHAR_ENCODING)), TL_CHAR_ENCODING_UTF8);
    EXPECT_EQ(readUint32(libraryInfo(producer, TL_INFO_GENTL_VER_MAJOR)), 1U);
    EXPECT_EQ(readUint32(systemInfo(producer, session.system(), TL_INFO_GENTL_VER_MINOR)), 5U);
}

TEST_P(LibraryConformance, TellsAboutItselfWithoutAnOpenSystem)
{
    const LoadedProducer producer(GetParam());
    ASSERT_EQ(producer.GCInitLib(), GC_ERR_SUCCESS);
    EXPECT_EQ(readText(libraryInfo(producer, TL_INFO_NAME)), producer.file().filename());
    EXPECT_EQ(producer.GCCloseLib(), GC_ERR_SUCCESS);
}

TEST_P(LibraryConformance, KnowsNoOtherInfoCommand)
{
    const ProducerSession session(GetParam());
    for (const TL_INFO_CMD command : {-1, 11, 999, TL_INFO_CUSTOM_ID, INT32_MAX, INT32_MIN}) {
        EXPECT_EQ(codeOf(libraryInfo(session.producer(), command)), GC_ERR_NOT_IMPLEMENTED) << command;
        EXPECT_EQ(codeOf(systemInfo(session.producer(), session.system(), command)), GC_ERR_NOT_IMPLEMENTED);
    }
}

TEST_P(LibraryConformance, RefusesEverythingBeyondDiscovery)
{
    const ProducerSession session(GetParam());
    for (const std::string &name : functionsBeyondDiscovery()) {
        const auto function = reinterpret_cast<GC_ERROR (*)()>(session.producer().symbol(name));
        ASSERT_TRUE(function) << name;
        EXPECT_EQ(function(), GC_ERR_NOT_IMPLEMENTED) << name;
        expectLastError(session.producer(), GC_ERR_NOT_IMPLEMENTED);
    }
}

TEST_P(LibraryConformance, RemembersTheLastErrorAcrossSuccesses)
{
    const ProducerSession session(GetParam());
    EXPECT_EQ(session.producer().TLClose(nullptr), GC_ERR_INVALID_HANDLE);
    EXPECT_EQ(codeOf(libraryInfo(session.producer(), TL_INFO_ID)), GC_ERR_SUCCESS);
    expectLastError(session.producer(), GC_ERR_INVALID_HANDLE);
}

TEST_P(LibraryConformance, KeepsTheLastErrorOfEachThreadApart)
{
    const ProducerSession session(GetParam());
    const LoadedProducer &producer = session.producer();
    EXPECT_EQ(producer.TLOpen(nullptr), GC_ERR_INVALID_PARAMETER);
    std::thread([&] {
        expectLastError(producer, GC_ERR_SUCCESS);
        EXPECT_EQ(producer.IFClose(nullptr), GC_ERR_INVALID_HANDLE);
        expectLastError(producer, GC_ERR_INVALID_HANDLE);
    }).join();
    expectLastError(producer, GC_ERR_INVALID_PARAMETER);
}

TEST_P(LibraryConformance, RefusesToTellTheLastErrorWithoutOutputs)
{
    const ProducerSession session(GetParam());
    GC_ERROR code = GC_ERR_SUCCESS;
    std::size_t size = 0;
    EXPECT_EQ(session.producer().GCGetLastError(nullptr, nullptr, &size), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(session.producer().GCGetLastError(&code, nullptr, nullptr), GC_ERR_INVALID_PARAMETER);
}

TEST_P(LibraryConformance, KeepsTheLastErrorForASecondTryWithALongerBuffer)
{
    const ProducerSession session(GetParam());
    EXPECT_EQ(session.producer().TLOpen(nullptr), GC_ERR_INVALID_PARAMETER);
    GC_ERROR code = GC_ERR_SUCCESS;
    char text[1];
    std::size_t size = sizeof text;
    EXPECT_EQ(session.producer().GCGetLastError(&code, text, &size), GC_ERR_BUFFER_TOO_SMALL);
    expectLastError(session.producer(), GC_ERR_INVALID_PARAMETER);
}

TEST_P(LibraryConformance, LeavesTheProcessCleanlyWithoutBeingClosed)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            const ProducerSession session(GetParam()); // exit() runs no destructor of a local object.
            session.updateInterfaces();
            for (const std::string &id : session.interfaceIds())
                session.updateDevices(session.open(id));
            std::exit(HasFailure() ? 1 : 0);
        },
        testing::ExitedWithCode(0), "");
}

TEST_P(LibraryConformance, CanBeUnloadedAndLoadedAgain)
{
    for (int round = 0; round < 3; ++round) {
        const ProducerSession session(GetParam());
        session.updateInterfaces();
    }
    EXPECT_FALSE(dlopen(GetParam().c_str(), RTLD_NOW | RTLD_NOLOAD)) << "still loaded";
}
