// Tests how a host handles a producer that searches by itself.

#include "tests/protocol/ScriptedHost.h"
#include "tests/sdk/support/Waiting.h"

#include <gtest/gtest.h>

using Strings = std::vector<std::string>;

namespace {

const std::string oneCamera = "self-updating\ninterface net0\ndevice net0|A1\n";
const std::string twoCameras = oneCamera + "device net0|A2\n";

/// Returns true if the next message is a notice.
bool receivesNotice(ScriptedHost &host)
{
    const auto message = host.connection().receive();
    return message && message->id() == Message::noRequest && message->content<ListChangedNotice>();
}

} // namespace

TEST(ListChange, everyChangeIsReportedAndCollectedWithoutATimeout)
{
    ScriptedHost host(oneCamera);
    const auto first = host.list(200);
    EXPECT_TRUE(first.isSelfUpdating);
    EXPECT_EQ(idsOf(first), Strings{"A1"});

    host.setScript(twoCameras);
    EXPECT_TRUE(receivesNotice(host));
    EXPECT_EQ(idsOf(host.list({true, 0})), (Strings{"A1", "A2"}));

    host.setScript(oneCamera);
    EXPECT_TRUE(receivesNotice(host));
    EXPECT_EQ(idsOf(host.list({true, 0})), Strings{"A1"});
}

TEST(ListChange, changeDuringASearchIsReportedAfterIt)
{
    ScriptedHost host("fault IFUpdateDeviceList whole\n" + oneCamera);
    const auto searches = [&] { return host.argumentsOf("IFUpdateDeviceList net0").size(); };
    host.connection().send(Message(1, ListCamerasRequest{true, 1000}).toLine());
    ASSERT_TRUE(waitUntil([&] { return searches() == 1; }));
    host.setScript(twoCameras); // The search, which takes a second, has already read the script.
    const auto reply = host.connection().receive();
    ASSERT_TRUE(reply && reply->content<CameraListReply>());
    EXPECT_EQ(idsOf(*reply->content<CameraListReply>()), Strings{"A1"});
    EXPECT_TRUE(receivesNotice(host));
}

TEST(ListChange, floodOfChangesCausesOneNoticeForEachRequest)
{
    ScriptedHost host("fault CvxListChangedDescriptor flood\n" + oneCamera);
    for (int request = 0; request < 20; ++request) {
        EXPECT_TRUE(receivesNotice(host));
        EXPECT_TRUE(host.list(0).isSelfUpdating); // Fails if a second notice precedes the reply.
    }
}

TEST(ListChange, unusableDescriptorIsNotWatched)
{
    const std::string camera = "interface net0\ndevice net0|A1\n";
    // Without the line, a closed descriptor, the host's own input and socket, a negative number, an
    // exception.
    for (const char *lines : {"", "self-updating\nfault CvxListChangedDescriptor error 900\n",
             "self-updating\nfault CvxListChangedDescriptor error 0\n",
             "self-updating\nfault CvxListChangedDescriptor error 3\n",
             "self-updating\nfault CvxListChangedDescriptor error -1001\n",
             "self-updating\nfault CvxListChangedDescriptor throw\n"}) {
        ScriptedHost host(lines + camera);
        for (int request = 0; request < 2; ++request) {
            const auto list = host.list(200);
            EXPECT_FALSE(list.isSelfUpdating) << lines;
            EXPECT_EQ(idsOf(list), Strings{"A1"}) << lines;
        }
    }
}
