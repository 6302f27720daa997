#include "sdk/protocol/DiscoveryMessages.h"
#include "tests/protocol/HostConnection.h"
#include "tests/protocol/ScriptedHost.h"

#include <cstdlib>
#include <elf.h>
#include <gtest/gtest.h>

namespace {

/// Returns the reason why a host refuses a producer with this content.
std::string loadFailure(const std::string &content)
{
    TemporaryDirectory directory;
    const std::string path = directory.path() / "p.cti";
    writeFile(path, content);
    const auto message = HostConnection({path}).receive();
    const auto failure = message ? message->content<ProducerFailedReply>() : std::nullopt;
    EXPECT_TRUE(failure);
    EXPECT_EQ(failure->problem.call, "dlopen");
    return failure->problem.text;
}

} // namespace

TEST(ProducerHost, hostRepliesToEveryRequest)
{
    HostConnection host({SIMULATOR});
    const auto list = host.ask<CameraListReply>(ListCamerasRequest{true, 1000});
    ASSERT_TRUE(list);
    ASSERT_FALSE(list->interfaces.empty());
    EXPECT_TRUE(list->problems.empty());

    const InterfaceRecord &last = list->interfaces.back();
    const auto one = host.ask<CameraListReply>(ListInterfaceRequest{last.number, 1000});
    ASSERT_TRUE(one);
    EXPECT_EQ(one->interfaces, std::vector<InterfaceRecord>{last});

    const auto none = host.ask<CameraListReply>(ListInterfaceRequest{last.number + 1, 1000});
    ASSERT_TRUE(none);
    EXPECT_TRUE(none->interfaces.empty());

    const auto closed = host.ask<ProducerClosedReply>(CloseProducerRequest());
    ASSERT_TRUE(closed);
    EXPECT_TRUE(closed->problems.empty());
    EXPECT_FALSE(host.receive());
    EXPECT_EQ(host.exitStatus(), EXIT_SUCCESS);
}

TEST(ProducerHost, reportsALoadFailureBeforeAnyRequest)
{
    HostConnection host({"/nowhere/gone.cti"});
    const auto message = host.receive();
    ASSERT_TRUE(message);
    EXPECT_EQ(message->id(), Message::noRequest);
    ASSERT_TRUE(message->content<ProducerFailedReply>());
    EXPECT_EQ(message->content<ProducerFailedReply>()->problem.call, "dlopen");
    EXPECT_FALSE(host.receive());
    EXPECT_EQ(host.exitStatus(), EXIT_SUCCESS);
}

TEST(ProducerHost, hostExitsIfTheLibraryClosesTheConnection)
{
    HostConnection host({SIMULATOR});
    ASSERT_TRUE(host.ask<CameraListReply>(ListCamerasRequest()));
    host.close();
    EXPECT_EQ(host.exitStatus(), EXIT_SUCCESS);
}

TEST(ProducerHost, hostExitsAtAnUnknownRequest)
{
    for (const char *line : {"text\n", "{\"id\":1,\"kind\":\"openDoor\",\"body\":{}}\n"}) {
        HostConnection host({SIMULATOR});
        host.send(line);
        EXPECT_FALSE(host.receive());
        EXPECT_EQ(host.exitStatus(), EXIT_SUCCESS);
    }
}

TEST(ProducerHost, hostRefusesToStartWithoutAProducer)
{
    EXPECT_EQ(HostConnection({}).exitStatus(), 64);
}

TEST(ProducerHost, libraryForAnotherOperatingSystemIsRefused)
{
    std::string elf = readFile(TEST_PRODUCER);
    elf.at(EI_OSABI) = ELFOSABI_FREEBSD;
    const std::string rest(100, '\0');
    const std::string files[] = {elf, "MZ\x90" + rest, "\xFE\xED\xFA\xCE" + rest, "\xFE\xED\xFA\xCF" + rest,
        "\xCE\xFA\xED\xFE" + rest, "\xCF\xFA\xED\xFE" + rest, "\xCA\xFE\xBA\xBE" + rest,
        "\xCA\xFE\xBA\xBF" + rest, "\xBE\xBA\xFE\xCA" + rest, "\xBF\xBA\xFE\xCA" + rest, "MZ"};
    for (const std::string &file : files)
        EXPECT_EQ(loadFailure(file), "the library is for another operating system") << file.substr(0, 4);
}

TEST(ProducerHost, fileThatIsNoLibraryIsRefusedWithTheReasonOfTheLoader)
{
    for (const std::string &file : {std::string(), std::string("M"), std::string(100, 'x')})
        EXPECT_NE(loadFailure(file).find("p.cti: "), std::string::npos) << "the loader names the file";
}

TEST(ProducerHost, processorTimeOfEverySearchIsReported)
{
    constexpr std::uint32_t burnt = 300; // Milliseconds.
    ScriptedHost host("interface net0\nfault IFUpdateDeviceList burn 300\n");
    const auto list = host.list(200);
    EXPECT_GE(list.processorTime, burnt);
    const ListInterfaceRequest request{list.interfaces.at(0).number, 200};
    EXPECT_GE(host.connection().ask<CameraListReply>(request).value().processorTime, burnt);
    host.setScript("interface net0\n");
    EXPECT_LT(host.list(200).processorTime, burnt) << "previous searches do not count";
}
