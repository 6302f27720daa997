#include "sdk/imagefile/ImageFileFormat.h"

#include "sdk/imagefile/DiskSpace.h"

#include <gtest/gtest.h>

TEST(ImageFileFormatTest, nameDecidesTheFormat)
{
    EXPECT_EQ(imageFileFormat("a.png"), ImageFileFormat::Png8);
    EXPECT_EQ(imageFileFormat("a.b/c.PNG"), ImageFileFormat::Png8);
    EXPECT_EQ(imageFileFormat("a.tif"), ImageFileFormat::Tiff);
    EXPECT_EQ(imageFileFormat("a.TIFF"), ImageFileFormat::Tiff);
    EXPECT_EQ(imageFileFormat("a.png/b"), ImageFileFormat::Raw);
    EXPECT_EQ(imageFileFormat("png"), ImageFileFormat::Raw);
    EXPECT_EQ(imageFileFormat("a.raw"), ImageFileFormat::Raw);
}

TEST(ImageFileFormatTest, numberStandsBeforeTheExtension)
{
    EXPECT_EQ(numberedPath("a.png", 1, 2), "a-0001.png");
    EXPECT_EQ(numberedPath("b.c/a", 12, 99), "b.c/a-0012");
    EXPECT_EQ(numberedPath("/a.b.tif", 7, 123456), "/a.b-000007.tif");
}

TEST(DiskSpaceTest, sizesAreForPeople)
{
    EXPECT_EQ(byteText(999), "999 bytes");
    EXPECT_EQ(byteText(1500), "1.5 kB");
    EXPECT_EQ(byteText(12'345'678'901), "12.3 GB");
    EXPECT_EQ(byteText(2'000'000'000'000'000), "2000.0 TB");
}

TEST(DiskSpaceTest, pipesHaveNoLimit)
{
    EXPECT_FALSE(usableSpace("/dev/null"));
    EXPECT_TRUE(usableSpace("new-file"));
}
