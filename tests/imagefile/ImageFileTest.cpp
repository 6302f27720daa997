#include "ImageFileTest.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

MemoryImage::MemoryImage(std::uint32_t format, std::uint32_t width, std::uint32_t height, ByteList bytes)
    : m_bytes(std::move(bytes))
{
    m_info.pixelFormat = format;
    m_info.width = width;
    m_info.height = height;
}

ImageFileTest::ImageFileTest()
{
    std::string pattern = fs::temp_directory_path() / "imagefile.XXXXXX";
    m_folder = mkdtemp(pattern.data());
}

ImageFileTest::~ImageFileTest()
{
    fs::remove_all(m_folder);
}

std::vector<std::string> ImageFileTest::names() const
{
    std::vector<std::string> names;
    for (const fs::directory_entry &entry : fs::directory_iterator(m_folder))
        names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

ByteList ImageFileTest::contentOf(const std::string &path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

nlohmann::json ImageFileTest::jsonOf(const std::string &path)
{
    std::ifstream stream(path);
    return nlohmann::json::parse(stream, nullptr, false);
}

std::string ImageFileTest::outputOf(const std::string &command)
{
    std::FILE *const pipe = popen((command + " 2>&1").c_str(), "r");
    std::string output;
    for (int character = std::fgetc(pipe); character != EOF; character = std::fgetc(pipe))
        output += static_cast<char>(character);
    pclose(pipe);
    return output;
}

std::vector<std::uint16_t> ImageFileTest::readSamples(const std::string &file, const std::string &kind)
{
    const std::string output = outputOf("convert '" + file + "' -depth 16 -endian LSB " + kind + ":-");
    std::vector<std::uint16_t> samples;
    for (std::size_t index = 0; index + 1 < output.size(); index += 2)
        samples.push_back(static_cast<std::uint16_t>(
            static_cast<std::uint8_t>(output[index]) | static_cast<std::uint8_t>(output[index + 1]) << 8U));
    return samples;
}

CameraRecord someCamera()
{
    return {"A.cti/Net/1", "Orvelle", "Kx200", "24030117", "Left", "2026-01-31T23:59:59.123456Z",
        {{"ExposureTime", 1500.0}}};
}
