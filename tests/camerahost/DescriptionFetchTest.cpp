#include "sdk/camerahost/RegisterDescription.h"
#include "tests/camerahost/ZipFiles.h"
#include "tests/sdk/support/TemporaryDirectory.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>

namespace {

constexpr const char *xml
    = "<?xml version=\"1.0\"?>\n<RegisterDescription ModelName=\"M\"></RegisterDescription>";

/// The camera behind the functions of the producer, which have no parameter for it.
struct FakeCamera
{
    std::vector<std::string> urls; // An empty one cannot be read.
    std::string urlList; // The answer of GCGetPortURL.
    std::string memory; // Starts at address 0x1000.
    std::size_t maxBlock = 1 << 20;
    std::size_t maxTransfer = 1 << 20; // Longer reads succeed with fewer bytes.
    bool needsWholeRegisters = false;
    std::vector<std::size_t> readSizes;
};
FakeCamera *currentCamera = nullptr;

GenTL::GC_ERROR answer(const std::string &bytes, char *buffer, std::size_t *size)
{
    const std::size_t capacity = *size;
    *size = bytes.size();
    if (!buffer)
        return GenTL::GC_ERR_SUCCESS;
    if (capacity < bytes.size())
        return GenTL::GC_ERR_BUFFER_TOO_SMALL;
    std::memcpy(buffer, bytes.data(), bytes.size());
    return GenTL::GC_ERR_SUCCESS;
}

GenTL::GC_ERROR readPort(GenTL::PORT_HANDLE, std::uint64_t address, void *buffer, std::size_t *size)
{
    currentCamera->readSizes.push_back(*size);
    if (*size > currentCamera->maxBlock || (currentCamera->needsWholeRegisters && *size % 4 != 0))
        return GenTL::GC_ERR_INVALID_ADDRESS;
    const std::size_t start = std::min<std::size_t>(address - 0x1000, currentCamera->memory.size());
    *size = std::min({*size, currentCamera->memory.size() - start, currentCamera->maxTransfer});
    std::memcpy(buffer, currentCamera->memory.data() + start, *size);
    return GenTL::GC_ERR_SUCCESS;
}

GenTL::GC_ERROR getNumUrls(GenTL::PORT_HANDLE, std::uint32_t *count)
{
    *count = static_cast<std::uint32_t>(currentCamera->urls.size());
    return GenTL::GC_ERR_SUCCESS;
}

GenTL::GC_ERROR getUrlInfo(GenTL::PORT_HANDLE, std::uint32_t index, GenTL::URL_INFO_CMD,
    GenTL::INFO_DATATYPE *, void *buffer, std::size_t *size)
{
    const std::string &url = currentCamera->urls.at(index);
    return url.empty() ? GenTL::GC_ERR_ERROR : answer(url + '\0', static_cast<char *>(buffer), size);
}

GenTL::GC_ERROR getUrl(GenTL::PORT_HANDLE, char *buffer, std::size_t *size)
{
    return answer(currentCamera->urlList, buffer, size);
}

class DescriptionFetchTest : public ::testing::Test
{
protected:
    DescriptionFetchTest()
    {
        currentCamera = &camera;
        library.GCReadPort = readPort;
        library.GCGetNumPortURLs = getNumUrls;
        library.GCGetPortURLInfo = getUrlInfo;
        library.GCGetPortURL = getUrl;
    }

    /// Puts the description into the registers, followed by some other bytes.
    void setMemory(const std::string &bytes, std::size_t statedLength)
    {
        char url[64];
        std::snprintf(url, sizeof url, "Local:camera.xml;1000;%zx", statedLength);
        camera.memory = bytes;
        camera.urls = {url};
    }

    /// Returns the description or the text of the failure.
    std::string fetch(std::chrono::milliseconds timeout = std::chrono::seconds(10))
    {
        const auto result = fetchRegisterDescription(
            library, nullptr, (directory.path() / "producer.cti").string(), timeout);
        const auto *const failure = std::get_if<RequestFailedReply>(&result);
        return failure ? failure->text : std::get<std::string>(result);
    }

    FakeCamera camera;
    DeviceLibrary library;
    TemporaryDirectory directory;
};

} // namespace

TEST_F(DescriptionFetchTest, onlyTheXmlRemains)
{
    const std::string document = xml;
    for (const std::string &bytes : {document, document + std::string(100, '\0'),
             "\xEF\xBB\xBF \r\n" + document + "\xFF\xFF</RegisterDescription>"}) {
        setMemory(bytes, bytes.size());
        EXPECT_EQ(fetch(), document);
    }
}

TEST_F(DescriptionFetchTest, cameraMayRefuseLargeBlocksAndOddSizes)
{
    const std::string document = std::string(xml).insert(30, 150'001, ' ');
    for (const std::size_t maxBlock :
        {std::size_t(1) << 20, std::size_t(4096), std::size_t(512), std::size_t(60)}) {
        setMemory(document, document.size());
        camera.maxBlock = maxBlock;
        camera.needsWholeRegisters = true;
        camera.readSizes.clear();
        EXPECT_TRUE(fetch() == document) << maxBlock;
        EXPECT_EQ(camera.readSizes.front(), 64U << 10);
    }
    camera.maxBlock = 3;
    EXPECT_NE(fetch().find("GCReadPort failed with error -1015"), std::string::npos) << fetch();
}

TEST_F(DescriptionFetchTest, shortReadsContinueWhereTheyEnded)
{
    const std::string document = std::string(xml).insert(30, 10'000, ' ');
    setMemory(document, document.size());
    camera.maxTransfer = 1000;
    EXPECT_EQ(fetch(), document);
}

TEST_F(DescriptionFetchTest, statedLengthMayBeTooLarge)
{
    setMemory(xml, 100'000);
    EXPECT_EQ(fetch(), xml);
}

TEST_F(DescriptionFetchTest, unusableDescriptionsAreExplained)
{
    setMemory(std::string(xml).substr(0, 60), 60);
    EXPECT_NE(fetch().find("incomplete: its 60 bytes do not contain the end tag"), std::string::npos)
        << fetch();
    setMemory("Hello", 5);
    EXPECT_NE(fetch().find("is not an XML document"), std::string::npos) << fetch();
    setMemory(xml, (16 << 20) + 1);
    EXPECT_NE(fetch().find("exceeds the limit"), std::string::npos) << fetch();
    setMemory(deflatedZip, deflatedZip.size());
    EXPECT_NE(fetch().find("is not an XML document"), std::string::npos) << fetch();
    camera.urls = {"Http://host/camera.xml"};
    EXPECT_NE(fetch().find("Http://host/camera.xml: descriptions are not downloaded from the network"),
        std::string::npos)
        << fetch();
    camera.urls = {};
    EXPECT_EQ(fetch(),
        "The register description of the camera cannot be read: the producer does not say where it is.");
}

TEST_F(DescriptionFetchTest, slowCameraIsGivenUp)
{
    setMemory(xml, 1000);
    EXPECT_NE(fetch(std::chrono::milliseconds(0)).find("the camera is too slow"), std::string::npos)
        << fetch();
}

TEST_F(DescriptionFetchTest, zipArchivesAreRecognisedByContent)
{
    const std::string archive = documentZip;
    setMemory(archive, archive.size());
    EXPECT_EQ(fetch(), "<RegisterDescription></RegisterDescription>");
}

TEST_F(DescriptionFetchTest, filesAreNextToTheProducerOrAnywhere)
{
    writeFile(directory.path() / "my camera.xml", xml);
    camera.urls = {"File:my%20camera.xml?SchemaVersion=1.1.0"};
    EXPECT_EQ(fetch(), xml);
    camera.urls = {"file://" + (directory.path() / "my camera.xml").string()};
    EXPECT_EQ(fetch(), xml);
    camera.urls = {"File:missing.xml"};
    EXPECT_NE(fetch().find("there is no file"), std::string::npos) << fetch();
}

TEST_F(DescriptionFetchTest, urlsAreTriedInOrder)
{
    setMemory(xml, std::strlen(xml));
    camera.urls = {"", "nonsense", "File:missing.xml", camera.urls[0], "File:unused.xml"};
    EXPECT_EQ(fetch(), xml);
    camera.urls.erase(camera.urls.begin() + 3);
    EXPECT_NE(fetch().find("nonsense: this is not a valid URL; File:missing.xml: there is no file"),
        std::string::npos)
        << fetch();
}

TEST_F(DescriptionFetchTest, oldProducersHaveAListOfUrls)
{
    setMemory(xml, std::strlen(xml));
    camera.urlList = "File:missing.xml" + std::string(1, '\0') + camera.urls[0] + "?SchemaVersion=1.0.0"
        + std::string(2, '\0');
    camera.urls = {};
    EXPECT_EQ(fetch(), xml);
    library.GCGetNumPortURLs = nullptr;
    library.GCGetPortURLInfo = nullptr;
    EXPECT_EQ(fetch(), xml);
    library.GCGetPortURL = nullptr;
    EXPECT_NE(fetch().find("does not say where"), std::string::npos) << fetch();
}
