#include "sdk/camerahost/DescriptionUrl.h"

#include <gtest/gtest.h>

TEST(DescriptionUrlTest, localUrlsHaveAddressAndLength)
{
    const char *const texts[] = {"Local:camera.xml;1F00;A0", "local:camera.zip;0x1f00;0xa0",
        "LOCAL:///camera.xml;1f00;a0", " Local: camera.xml ; 1F00 ; A0 ", "Local:a;b.xml;1F00;A0",
        "Local:;1F00;A0?SchemaVersion=1.1.0", "Local:camera.xml;1F00;A0?schemaversion=1.0.0 "};
    for (const char *const text : texts) {
        const auto url = parseDescriptionUrl(text);
        ASSERT_TRUE(url) << text;
        EXPECT_EQ(url->scheme, DescriptionUrl::Scheme::Local) << text;
        EXPECT_EQ(url->address, 0x1F00U) << text;
        EXPECT_EQ(url->length, 0xA0U) << text;
    }
}

TEST(DescriptionUrlTest, fileUrlsHaveADecodedPath)
{
    const std::pair<const char *, const char *> cases[] = {
        {"File:///opt/my%20camera.xml", "/opt/my camera.xml"},
        {"file:camera.xml?SchemaVersion=1.1.0", "camera.xml"}, {"File:/opt/camera.xml", "/opt/camera.xml"},
        {"File://localhost/opt/camera.xml", "/opt/camera.xml"}, {"File://camera.xml", "camera.xml"},
        {"File:///C|/camera.xml", "/C:/camera.xml"}, {"File:100%.xml", "100%.xml"}, {"File:a%2", "a%2"}};
    for (const auto &[text, path] : cases) {
        const auto url = parseDescriptionUrl(text);
        ASSERT_TRUE(url) << text;
        EXPECT_EQ(url->scheme, DescriptionUrl::Scheme::File) << text;
        EXPECT_EQ(url->path, path) << text;
    }
}

TEST(DescriptionUrlTest, otherTextIsNoUrl)
{
    for (const char *const text :
        {"", "camera.xml", "Local:camera.xml", "Local:camera.xml;10", "Local:c;x;10", "Local:c;10;",
            "Local:c;10;-1", "Local:c;10;11111111111111111", "File:", "File:a%00b"})
        EXPECT_FALSE(parseDescriptionUrl(text)) << text;
    EXPECT_EQ(parseDescriptionUrl("Http://host/camera.xml")->scheme, DescriptionUrl::Scheme::Http);
    EXPECT_EQ(parseDescriptionUrl("ftp://host/camera.xml")->scheme, DescriptionUrl::Scheme::Unknown);
}

TEST(DescriptionUrlTest, stringListsMayLackTheirEnd)
{
    using Strings = std::vector<std::string>;
    EXPECT_EQ(splitStringList({"a\0b\0\0", 5}), (Strings{"a", "b"}));
    EXPECT_EQ(splitStringList("a"), Strings{"a"});
    EXPECT_EQ(splitStringList(""), Strings());
}
