#include "sdk/imagefile/ImageFileFormat.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace {

struct Extension
{
    const char *text;
    ImageFileFormat format;
};

constexpr Extension extensions[]
    = {{".png", ImageFileFormat::Png8}, {".tif", ImageFileFormat::Tiff}, {".tiff", ImageFileFormat::Tiff}};

} // namespace

ImageFileFormat imageFileFormat(const std::string &path)
{
    std::string extension = std::filesystem::path(path).extension();
    std::transform(extension.begin(), extension.end(), extension.begin(),
        [](unsigned char character) { return static_cast<char>(std::tolower(character)); });
    const auto *const found = std::find_if(std::begin(extensions), std::end(extensions),
        [&](const Extension &candidate) { return extension == candidate.text; });
    return found == std::end(extensions) ? ImageFileFormat::Raw : found->format;
}

const char *formatText(ImageFileFormat format)
{
    static constexpr const char *texts[] = {"png8", "png16", "tiff", "raw"};
    return texts[static_cast<std::size_t>(format)];
}

std::string numberedPath(const std::string &path, unsigned number, unsigned count)
{
    constexpr std::size_t minDigits = 4;
    const std::size_t digits = std::max(minDigits, std::to_string(count).size());
    std::string text = std::to_string(number);
    text.insert(0, digits - text.size(), '0');
    const std::filesystem::path file(path);
    return file.parent_path() / (file.stem().string() + "-" + text + file.extension().string());
}
