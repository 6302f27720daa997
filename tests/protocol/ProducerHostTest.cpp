#include "sdk/protocol/DiscoveryMessages.h"
#include "tests/protocol/HostConnection.h"

#include <cstdlib>
#include <gtest/gtest.h>

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
