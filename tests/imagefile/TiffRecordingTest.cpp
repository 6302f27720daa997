#include "sdk/imagefile/TiffRecording.h"

#include "ImageFileTest.h"
#include "InterruptedWrite.h"
#include "sdk/imagefile/RawRecording.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <tiffio.h>
#include <unistd.h>

namespace {

constexpr std::uint32_t side = 64; // Pixels.

MemoryImage image(std::uint64_t number)
{
    MemoryImage image(mono8, side, side, ByteList(side * side, static_cast<std::uint8_t>(number)));
    image.m_info.frameId = number;
    return image;
}

unsigned complaints = 0;

void countComplaint(const char *, const char *, va_list)
{
    ++complaints;
}

/// Returns the value of the pixels of each image of a TIFF file, or -1 for an image that cannot be read.
std::vector<int> readImages(const std::string &path)
{
    complaints = 0;
    TIFFSetErrorHandler(countComplaint);
    TIFFSetWarningHandler(countComplaint);
    std::vector<int> values;
    if (TIFF *const tiff = TIFFOpen(path.c_str(), "r")) {
        do {
            ByteList pixels(side * side);
            const bool isRead = TIFFReadEncodedStrip(tiff, 0, pixels.data(), side * side) == side * side;
            const bool isUniform = pixels == ByteList(side * side, pixels.front());
            values.push_back(isRead && isUniform ? pixels.front() : -1);
        } while (TIFFReadDirectory(tiff) != 0);
        TIFFClose(tiff);
    }
    TIFFSetErrorHandler(nullptr);
    TIFFSetWarningHandler(nullptr);
    return values;
}

/// Limits the size of files while it exists.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t size)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_previous);
        const rlimit limit{size, m_previous.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &m_previous); }

private:
    rlimit m_previous{};
};

class RecordingFileTest : public ImageFileTest
{ };

} // namespace

TEST_F(RecordingFileTest, recordingIsReadByOthers)
{
    const std::string file = path("a.tif");
    TiffRecording recording(file, someCamera());
    for (const int number : {1, 2, 3})
        ASSERT_TRUE(recording.append(image(static_cast<std::uint64_t>(number)))) << recording.problem();
    MemoryImage other(mono12p, 2, 1, {0x34, 0x12, 0xAB}); // The region of a camera may change.
    other.m_info.isComplete = false;
    ASSERT_TRUE(recording.append(other));
    ASSERT_TRUE(recording.finish());
    EXPECT_EQ(outputOf("identify -format '%z %wx%h\n' " + file), "8 64x64\n8 64x64\n8 64x64\n16 2x1\n");
    EXPECT_EQ(readSamples(file + "[3]", "gray"), (std::vector<std::uint16_t>{0x234, 0xAB1}));
    EXPECT_EQ(readSamples(file + "[1]", "gray"), std::vector<std::uint16_t>(side * side, 2 * 257));
    const std::string info = outputOf("tiffinfo " + file);
    EXPECT_NE(info.find("\"frameId\":3"), std::string::npos) << info;
    EXPECT_NE(info.find("\"isComplete\":false"), std::string::npos) << info;
    EXPECT_EQ(info.find("Warning"), std::string::npos) << info;
}

TEST_F(RecordingFileTest, killedRecordingEndsWithItsLastCompleteImage)
{
    const std::string file = path("a.tif");
    std::size_t mostImages = 0;
    for (unsigned number = 1;; ++number) {
        const pid_t child = fork();
        if (child == 0) {
            TiffRecording recording(file, {});
            recording.append(image(1)); // The first image writes the header.
            dieBeforeWrite(number);
            recording.append(image(2));
            recording.append(image(3));
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        const std::vector<int> images = readImages(file);
        ASSERT_GE(images.size(), std::max<std::size_t>(mostImages, 1));
        mostImages = images.size();
        for (std::size_t index = 0; index < images.size(); ++index)
            EXPECT_EQ(images[index], static_cast<int>(index) + 1);
        EXPECT_EQ(complaints, 0U);
        if (!WIFSIGNALED(status))
            break;
    }
    EXPECT_EQ(mostImages, 3U);
}

TEST_F(RecordingFileTest, recordingGrowsBeyondFourGigabytes)
{
    constexpr std::uint64_t farAway = 10'000'000'001; // The hole takes no room on the disk.
    const std::string tiffFile = path("a.tif");
    TiffRecording tiff(tiffFile, {});
    const std::string rawFile = path("a.raw");
    RawRecording raw(rawFile);
    ASSERT_TRUE(tiff.append(image(1)) && raw.append(image(1)));
    std::filesystem::resize_file(tiffFile, farAway);
    std::filesystem::resize_file(rawFile, farAway);
    for (const std::uint64_t number : {2U, 3U})
        ASSERT_TRUE(tiff.append(image(number)) && raw.append(image(number)));
    ASSERT_TRUE(tiff.finish() && raw.finish());
    EXPECT_EQ(readImages(tiffFile), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(complaints, 0U);
    EXPECT_EQ(outputOf("tiffinfo " + tiffFile + " | grep -c 'TIFF Directory at offset 0x254'"), "2\n");

    // Python reads the raw file with the help of its index.
    const std::string script = "import csv; rows = list(csv.DictReader(open('" + rawFile + ".csv')));"
        + "file = open('" + rawFile + "', 'rb');"
        + "print([(file.seek(int(row['offset'])), set(file.read(int(row['size'])))) for row in rows])";
    EXPECT_EQ(outputOf("/usr/bin/python3 -c \"" + script + "\""),
        "[(0, {1}), (10000000001, {2}), (10000004097, {3})]\n");
}

TEST_F(RecordingFileTest, fullDiskKeepsWhatWasWritten)
{
    const std::string tiffFile = path("a.tif");
    const std::string rawFile = path("a.raw");
    {
        constexpr rlim_t limit = 3 * side * side + 100; // Each file ends with a part of an image.
        const FileSizeLimit fullDisk(limit);
        TiffRecording tiff(tiffFile, {});
        RawRecording raw(rawFile);
        for (const std::uint64_t number : {1U, 2U})
            ASSERT_TRUE(tiff.append(image(number)) && raw.append(image(number)));
        const std::uintmax_t size = std::filesystem::file_size(tiffFile);
        EXPECT_FALSE(tiff.append(image(3)));
        EXPECT_EQ(std::filesystem::file_size(tiffFile), size);
        EXPECT_EQ(tiff.problem(),
            "\"" + tiffFile
                + "\" cannot be written: File too large; choose another file system, or raise the limit of "
                  "the "
                  "file size (ulimit -f)");
        EXPECT_TRUE(raw.append(image(3)));
        EXPECT_FALSE(raw.append(image(4)));
        EXPECT_FALSE(tiff.finish() || raw.finish());
    }
    EXPECT_EQ(readImages(tiffFile), (std::vector<int>{1, 2}));
    EXPECT_EQ(complaints, 0U);
    EXPECT_EQ(contentOf(rawFile).size(), 3 * side * side);
    EXPECT_EQ(outputOf("wc -l < " + rawFile + ".csv"), "4\n"); // The header and three images.
}
