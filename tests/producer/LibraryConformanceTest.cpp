// These tests check the rules for the library and the system module: states, handles, information, errors,
// exports.

#include "sdk/gentl/ListChangeExtension.h"
#include "tests/producer/ConformanceTest.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <regex>
#include <set>
#include <thread>

using namespace GenTL;

namespace {

using NamedCode = std::pair<std::string, GC_ERROR>;

/// Calls every function that takes a system handle. TLClose is called last.
std::vector<NamedCode> callAllOnSystem(const LoadedProducer &producer, TL_HANDLE system)
{
    std::uint32_t count = 0;
    IF_HANDLE interface = nullptr;
    return {
        {"TLGetInfo", codeOf(infoCall(producer.TLGetInfo, system, TL_INFO_ID))},
        {"TLUpdateInterfaceList", producer.TLUpdateInterfaceList(system, nullptr, 100)},
        {"TLGetNumInterfaces", producer.TLGetNumInterfaces(system, &count)},
        {"TLGetInterfaceID", codeOf(idCall(producer.TLGetInterfaceID, system, 0))},
        {"TLGetInterfaceInfo",
            codeOf(infoCall(producer.TLGetInterfaceInfo, system, "any", INTERFACE_INFO_ID))},
        {"TLOpenInterface", producer.TLOpenInterface(system, "any", &interface)},
        {"TLClose", producer.TLClose(system)},
    };
}

/// Calls every function that takes an interface handle. IFClose is called last.
std::vector<NamedCode> callAllOnInterface(const LoadedProducer &producer, IF_HANDLE interface)
{
    std::uint32_t count = 0;
    TL_HANDLE system = nullptr;
    return {
        {"IFGetInfo", codeOf(infoCall(producer.IFGetInfo, interface, INTERFACE_INFO_ID))},
        {"IFUpdateDeviceList", producer.IFUpdateDeviceList(interface, nullptr, 100)},
        {"IFGetNumDevices", producer.IFGetNumDevices(interface, &count)},
        {"IFGetDeviceID", codeOf(idCall(producer.IFGetDeviceID, interface, 0))},
        {"IFGetDeviceInfo", codeOf(infoCall(producer.IFGetDeviceInfo, interface, "any", DEVICE_INFO_ID))},
        {"IFGetParentTL", producer.IFGetParentTL(interface, &system)},
        {"IFClose", producer.IFClose(interface)},
    };
}

void expectAll(const std::vector<NamedCode> &calls, GC_ERROR expected)
{
    for (const auto &[name, code] : calls)
        EXPECT_EQ(code, expected) << name;
}

/// Returns every symbol that the producer exports.
std::set<std::string> exportedSymbols()
{
    const std::string command
        = "nm --dynamic --defined-only --format=posix '" + producerUnderTest().string() + "'";
    const std::unique_ptr<FILE, int (*)(FILE *)> output(popen(command.c_str(), "r"), pclose);
    std::set<std::string> symbols;
    char line[1024];
    while (std::fgets(line, sizeof line, output.get()))
        symbols.insert(std::string(line, std::strcspn(line, " ")));
    return symbols;
}

} // namespace

TEST(LibraryConformance, everyCallFailsIfTheLibraryIsNotInitialised)
{
    const LoadedProducer producer(producerUnderTest());
    TL_HANDLE system = nullptr;
    for (int round = 0; round < 3; ++round) {
        GC_ERROR code = GC_ERR_SUCCESS;
        EXPECT_EQ(codeOf(infoCall(producer.GCGetInfo, TL_INFO_ID)), GC_ERR_NOT_INITIALIZED);
        EXPECT_EQ(codeOf(idCall(producer.GCGetLastError, &code)), GC_ERR_NOT_INITIALIZED);
        EXPECT_EQ(producer.TLOpen(&system), GC_ERR_NOT_INITIALIZED);
        EXPECT_EQ(producer.GCCloseLib(), GC_ERR_NOT_INITIALIZED);
        expectAll(callAllOnSystem(producer, system), GC_ERR_NOT_INITIALIZED);
        expectAll(callAllOnInterface(producer, system), GC_ERR_NOT_INITIALIZED);
        EXPECT_EQ(producer.GCInitLib(), GC_ERR_SUCCESS);
        EXPECT_EQ(producer.GCInitLib(), GC_ERR_RESOURCE_IN_USE);
        EXPECT_EQ(producer.TLOpen(&system), GC_ERR_SUCCESS);
        EXPECT_EQ(producer.GCCloseLib(), GC_ERR_SUCCESS);
    }
}

TEST_F(Conformance, onlyOneSystemModuleCanBeOpen)
{
    TL_HANDLE second = nullptr;
    EXPECT_EQ(producer().TLOpen(&second), GC_ERR_RESOURCE_IN_USE);
    EXPECT_EQ(producer().TLOpen(nullptr), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(producer().TLClose(session.system()), GC_ERR_SUCCESS);
    EXPECT_EQ(producer().TLOpen(&second), GC_ERR_SUCCESS);
    // The number of a handle is never reused.
    expectAll(callAllOnSystem(producer(), session.system()), GC_ERR_INVALID_HANDLE);
}

TEST_F(Conformance, onlyHandlesOfTheRightKindAreValid)
{
    for (void *const handle : {static_cast<void *>(nullptr), static_cast<void *>(this)}) {
        expectAll(callAllOnSystem(producer(), handle), GC_ERR_INVALID_HANDLE);
        expectAll(callAllOnInterface(producer(), handle), GC_ERR_INVALID_HANDLE);
    }
    expectAll(callAllOnInterface(producer(), session.system()), GC_ERR_INVALID_HANDLE);
    session.updateInterfaces();
    for (const IF_HANDLE handle : session.openAll())
        expectAll(callAllOnSystem(producer(), handle), GC_ERR_INVALID_HANDLE);
}

TEST(LibraryConformance, closingTheSystemOrTheLibraryClosesAllInterfaces)
{
    for (const bool closesLibrary : {false, true}) {
        const ProducerSession session(producerUnderTest());
        const LoadedProducer &producer = session.producer();
        session.updateInterfaces();
        const std::vector<IF_HANDLE> handles = session.openAll();
        if (closesLibrary) {
            EXPECT_EQ(producer.GCCloseLib(), GC_ERR_SUCCESS);
            EXPECT_EQ(producer.GCInitLib(), GC_ERR_SUCCESS);
        } else {
            EXPECT_EQ(producer.TLClose(session.system()), GC_ERR_SUCCESS);
        }
        expectAll(callAllOnSystem(producer, session.system()), GC_ERR_INVALID_HANDLE);
        for (const IF_HANDLE handle : handles)
            expectAll(callAllOnInterface(producer, handle), GC_ERR_INVALID_HANDLE);
    }
}

TEST_F(Conformance, producerInfoDoesNotRequireAnOpenSystem)
{
    const TL_HANDLE system = session.system();
    std::vector<std::string> strings;
    for (const TL_INFO_CMD command : {TL_INFO_ID, TL_INFO_VENDOR, TL_INFO_MODEL, TL_INFO_VERSION,
             TL_INFO_TLTYPE, TL_INFO_NAME, TL_INFO_PATHNAME, TL_INFO_DISPLAYNAME}) {
        strings.push_back(readString(infoCall(producer().TLGetInfo, system, command)));
        EXPECT_FALSE(strings.back().empty()) << command;
    }
    EXPECT_EQ(strings[TL_INFO_NAME], producer().file().filename());
    EXPECT_EQ(strings[TL_INFO_PATHNAME], producer().file());
    EXPECT_EQ(std::set<std::string>(strings.begin(), strings.end()).size(), strings.size())
        << "a string twice";
    for (const TL_INFO_CMD command : {-1, 11, 999, TL_INFO_CUSTOM_ID, INT32_MAX, INT32_MIN}) {
        EXPECT_EQ(codeOf(infoCall(producer().GCGetInfo, command)), GC_ERR_NOT_IMPLEMENTED) << command;
        EXPECT_EQ(codeOf(infoCall(producer().TLGetInfo, system, command)), GC_ERR_NOT_IMPLEMENTED) << command;
    }
    EXPECT_EQ(producer().TLClose(system), GC_ERR_SUCCESS);
    for (TL_INFO_CMD command = TL_INFO_ID; command <= TL_INFO_DISPLAYNAME; ++command)
        EXPECT_EQ(readString(infoCall(producer().GCGetInfo, command)), strings[command]);
    EXPECT_EQ(readNumber(infoCall(producer().GCGetInfo, TL_INFO_CHAR_ENCODING), INFO_DATATYPE_INT32),
        TL_CHAR_ENCODING_UTF8);
    EXPECT_EQ(readNumber(infoCall(producer().GCGetInfo, TL_INFO_GENTL_VER_MAJOR), INFO_DATATYPE_UINT32), 1);
    EXPECT_EQ(readNumber(infoCall(producer().GCGetInfo, TL_INFO_GENTL_VER_MINOR), INFO_DATATYPE_UINT32), 5);
}

TEST_F(Conformance, onlyFunctionsOfTheStandardAndItsExtensionAreExported)
{
    std::set<std::string> symbols = exportedSymbols();
    EXPECT_EQ(symbols.erase(listChangedFunctionName), 1U);
    EXPECT_EQ(symbols.size(), 64U) << "the number of functions in GenTL 1.6";
    for (const std::string &name : symbols)
        EXPECT_TRUE(std::regex_match(name, std::regex("(GC|TL|IF|Dev|DS|Event)[A-Z]\\w+"))) << name;
}

TEST_F(Conformance, functionsOfGenTl16AreRefused)
{
    for (const char *const name :
        {"DSAnnounceCompositeBuffer", "DSGetBufferInfoStacked", "DSGetBufferPartInfoStacked", "DSGetNumFlows",
            "DSGetFlowInfo", "DSGetNumBufferSegments", "DSGetBufferSegmentInfo"}) {
        EXPECT_EQ(producer().TLClose(nullptr), GC_ERR_INVALID_HANDLE);
        const auto function = reinterpret_cast<GC_ERROR (*)()>(producer().symbol(name));
        EXPECT_EQ(function(), GC_ERR_NOT_IMPLEMENTED) << name;
        EXPECT_EQ(session.lastError().first, GC_ERR_NOT_IMPLEMENTED) << name;
    }
}

TEST_F(Conformance, eachThreadHasItsOwnLastError)
{
    EXPECT_EQ(producer().TLOpen(nullptr), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(codeOf(infoCall(producer().GCGetInfo, TL_INFO_ID)), GC_ERR_SUCCESS);
    std::thread([&] {
        EXPECT_EQ(session.lastError().first, GC_ERR_SUCCESS);
        EXPECT_EQ(producer().IFClose(nullptr), GC_ERR_INVALID_HANDLE);
        EXPECT_EQ(session.lastError().first, GC_ERR_INVALID_HANDLE);
    }).join();
    EXPECT_EQ(session.lastError().first, GC_ERR_INVALID_PARAMETER);
}

TEST_F(Conformance, failedReadOfTheLastErrorDoesNotChangeTheLastError)
{
    EXPECT_EQ(producer().TLClose(nullptr), GC_ERR_INVALID_HANDLE);
    GC_ERROR code = GC_ERR_SUCCESS;
    char text[1];
    std::size_t size = sizeof text;
    EXPECT_EQ(producer().GCGetLastError(&code, text, &size), GC_ERR_BUFFER_TOO_SMALL);
    EXPECT_EQ(code, GC_ERR_SUCCESS) << "the output is untouched";
    EXPECT_EQ(producer().GCGetLastError(nullptr, nullptr, &size), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(producer().GCGetLastError(&code, nullptr, nullptr), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(session.lastError().first, GC_ERR_INVALID_HANDLE);
}

TEST(LibraryConformance, processExitsCleanlyIfTheLibraryWasNotClosed)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            const ProducerSession session(producerUnderTest()); // exit() destroys no local object.
            session.updateInterfaces();
            for (const IF_HANDLE handle : session.openAll())
                session.updateDevices(handle);
            std::exit(testing::Test::HasFailure() ? 1 : 0);
        },
        testing::ExitedWithCode(0), "");
}

TEST(LibraryConformance, producerCanBeReloaded)
{
    for (int round = 0; round < 3; ++round) {
        const ProducerSession session(producerUnderTest());
        session.updateInterfaces();
    }
    EXPECT_FALSE(dlopen(producerUnderTest().c_str(), RTLD_NOW | RTLD_NOLOAD)) << "still loaded";
}
