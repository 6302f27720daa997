// Tests that a camera host finds and accepts the register descriptions that real producers have. A camera
// with an unusable description has no features, but streams.

#include "tests/camerahost/QuirkSession.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace {

using Text = std::string;

constexpr const char *unreadable = "url Local:other.xml;200000;100\n";

/// Returns the URL of the description with this length.
std::string local(std::size_t length)
{
    std::ostringstream text;
    text << "url Local:camera.xml;100000;" << std::hex << length << '\n';
    return text.str();
}

std::size_t descriptionSize()
{
    static const std::size_t size = QuirkProducer().description().size();
    return size;
}

/// Returns a zip archive with one file.
std::string zipped(const std::string &content)
{
    const TemporaryDirectory directory;
    writeFile(directory.path() / "camera.xml", content);
    const std::string path = directory.path();
    const std::string command = "cd " + path + " && /usr/bin/python3 -m zipfile -c zip camera.xml";
    EXPECT_EQ(std::system(command.c_str()), 0);
    return readFile(directory.path() / "zip");
}

/// Returns a description whose Width depends on itself.
std::string withLoop(const std::string &text)
{
    return replaced(replaced(text, "<pValue>WidthRegister</pValue>", "<pValue>Height</pValue>"),
        "<pValue>HeightRegister</pValue>", "<pValue>Width</pValue>");
}

std::string withUnknownNodes(const std::string &text)
{
    const std::string nodes
        = "<pFeature>NoSuchNode</pFeature></Category><Teapot Name=\"Tea\"><pValue>Gain</pValue>"
          "<Sugar>2</Sugar></Teapot><Category Name=\"Empty\"></Category>";
    return replaced(replaced(text, "</Category>", nodes), "<pFeature>Gain</pFeature>",
        "<pFeature>Gain</pFeature><pFeature>Tea</pFeature><pFeature>Root</pFeature>");
}

const Quirk usable[] = {
    {"plain", ""},
    {"blanksBefore", "", {}, [](const Text &text) { return "\r\n \t" + text; }},
    {"byteOrderMark", "", {}, [](const Text &text) { return "\xEF\xBB\xBF" + text; }},
    {"garbageBehind", "", {}, [](const Text &text) { return text + Text(5, '\0') + "<old>\xFF\x80"; }},
    {"zip", "", {}, zipped},
    {"lengthTooLarge", local(descriptionSize() + 300)},
    {"lengthWithZeros", "behind-description 300\n" + local(descriptionSize() + 300)},
    {"lengthOfZip", local(descriptionSize()), {}, zipped},
    {"secondUrl", unreadable + local(descriptionSize())},
    {"webFirst", "url Http://localhost/camera.xml\n" + local(descriptionSize())},
    {"fileBesideProducer", "url File:quirk.xml\n"},
    {"smallBlocks", "max-read 512\n"},
    {"largeBlocksFailAtTimes", "GCReadPort:100000@1-2 error -1011\n"},
    {"oneUrlFunction", "", {"GCGetNumPortURLs", "GCGetPortURLInfo"}},
    {"urlsNotImplemented", "GCGetNumPortURLs error -1003\n"},
    {"unknownNodes", "", {}, withUnknownNodes},
    {"loop", "", {}, withLoop},
};

const Quirk unusable[] = {
    {"noUrls", "no-urls\n"},
    {"unreadableUrl", unreadable},
    {"truncated", local(descriptionSize() - 30)},
    {"huge", local(std::size_t(1) << 40)},
    {"empty", local(0)},
    {"noDescription", "", {}, [](const Text &) { return Text(5000, 'x'); }},
    {"malformed", "", {}, [](const Text &text) { return replaced(text, "</Category>", "</Teapot"); }},
    {"brokenZip", "", {}, [](const Text &text) { return zipped(text).substr(0, 500); }},
    {"zipBomb", "", {}, [](const Text &text) { return zipped(Text(std::size_t(100) << 20, ' ') + text); }},
};

} // namespace

class QuirkDescription : public testing::TestWithParam<Quirk>
{
protected:
    QuirkDescription() { install(producer, GetParam()); }

    QuirkProducer producer;
};

class UsableDescription : public QuirkDescription
{ };
class UnusableDescription : public QuirkDescription
{ };

TEST_P(UsableDescription, isRead)
{
    HostClient host(producer.ctiPath());
    ASSERT_TRUE(host.open()) << host.failure.text;
    EXPECT_EQ(host.read("ExposureTime"), CvxCPP::NodeValue(1000.0)) << host.failure.text;
    EXPECT_TRUE(host.write("Gain", std::int64_t(7))) << host.failure.text;
    EXPECT_EQ(host.read("Gain"), CvxCPP::NodeValue(std::int64_t(7)));
    host.read("Width"); // Fails if the description has a loop.
    EXPECT_TRUE(host.close());
}

TEST_P(UnusableDescription, cameraOnlyStreams)
{
    producer.setScript(GetParam().script + "free-running\n");
    HostClient host(producer.ctiPath());
    ASSERT_TRUE(host.open()) << host.failure.text;
    EXPECT_TRUE(host.nodes.empty());
    EXPECT_FALSE(host.write("Gain", std::int64_t(7)));
    EXPECT_NE(host.failure.text.find("description"), std::string::npos) << host.failure.text;
    ASSERT_TRUE(host.prepareStream() && host.startStream()) << host.failure.text;
    const auto image = host.nextImage();
    ASSERT_TRUE(image);
    EXPECT_EQ(image->record.width, 64U);
    EXPECT_TRUE(host.close());
}

TEST(ShortRead, isAFailureOfTheFeature)
{
    const QuirkProducer producer("short-read 2\n");
    HostClient host(producer.ctiPath());
    ASSERT_TRUE(host.open()) << host.failure.text;
    EXPECT_EQ(host.read("Gain"), CvxCPP::NodeValue());
    EXPECT_EQ(host.failure.failure, DeviceFailure::Device) << host.failure.text;
    EXPECT_NE(host.failure.text.find("Gain"), std::string::npos) << host.failure.text;
}

INSTANTIATE_TEST_SUITE_P(, UsableDescription, testing::ValuesIn(usable), nameOf);
INSTANTIATE_TEST_SUITE_P(, UnusableDescription, testing::ValuesIn(unusable), nameOf);
