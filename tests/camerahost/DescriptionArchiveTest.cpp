#include "sdk/camerahost/DescriptionArchive.h"
#include "tests/camerahost/ZipFiles.h"

#include <gtest/gtest.h>

namespace {

constexpr std::size_t limit = 1 << 20;

std::string extracted(const std::string &archive)
{
    const auto result = extractDescription(archive, limit);
    const auto *const xml = std::get_if<std::string>(&result);
    return xml ? *xml : std::get<DescriptionProblem>(result).text;
}

/// Returns the archive with one byte changed.
std::string damaged(std::string archive, std::size_t at)
{
    archive[at] = static_cast<char>(~archive[at]);
    return archive;
}

} // namespace

TEST(DescriptionArchiveTest, archivesAreRecognisedByTheirContent)
{
    EXPECT_TRUE(isZipArchive(storedZip));
    EXPECT_FALSE(isZipArchive("<RegisterDescription/>"));
    EXPECT_FALSE(isZipArchive("PK"));
}

TEST(DescriptionArchiveTest, storedAndDeflatedFilesAreExtracted)
{
    EXPECT_EQ(extracted(storedZip), "<RegisterDescription/>");
    EXPECT_EQ(extracted(deflatedZip), std::string(500, 'A'));
    EXPECT_EQ(extracted(deflatedZip + std::string(1000, '\xFF')), std::string(500, 'A'));
}

TEST(DescriptionArchiveTest, firstXmlFileCounts)
{
    EXPECT_EQ(extracted(twoFilesZip), "second");
}

TEST(DescriptionArchiveTest, unusableArchivesAreRefused)
{
    const std::size_t directory = deflatedZip.find("PK\1\2");
    const std::size_t data = deflatedZip.find("camera.xml") + 10;
    std::string bomb = deflatedZip;
    bomb.replace(directory + 24, 4, "\xFF\xFF\xFF\x7F");
    std::string larger = deflatedZip; // The file is larger than the archive states.
    larger.replace(directory + 24, 4, std::string("\x10\0\0\0", 4));
    std::string unknownMethod = deflatedZip;
    unknownMethod[directory + 10] = 9;
    std::string encrypted = deflatedZip;
    encrypted[directory + 8] = 1;
    const std::pair<std::string, const char *> cases[] = {
        {deflatedZip.substr(0, directory), "is damaged or contains no XML file"},
        {damaged(deflatedZip, data + 1), "is damaged"},
        {damaged(deflatedZip, directory + 16), "is damaged"}, // The checksum.
        {damaged(storedZip, storedZip.find("camera.xml") + 12), "is damaged"},
        {damaged(deflatedZip, directory + 43), "is damaged or incomplete"}, // The position of the file.
        {bomb, "contains a file of 2147483647 bytes"},
        {larger, "is damaged"},
        {unknownMethod, "unknown compression method 9"},
        {encrypted, "is encrypted"},
    };
    for (const auto &[archive, reason] : cases)
        EXPECT_NE(extracted(archive).find(reason), std::string::npos) << extracted(archive);
}

TEST(DescriptionArchiveTest, noTruncatedOrDamagedArchiveIsReadBeyondItsEnd)
{
    for (const std::string *archive : {&storedZip, &deflatedZip, &twoFilesZip}) {
        for (std::size_t i = 0; i < archive->size(); ++i) {
            extracted(std::string(archive->begin(), archive->begin() + static_cast<std::ptrdiff_t>(i)));
            extracted(damaged(*archive, i));
        }
    }
}
