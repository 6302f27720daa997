#include "sdk/camerahost/AcquisitionControl.h"

#include <algorithm>

namespace {

constexpr std::array<const char *, std::tuple_size_v<AcquisitionControl::ImageFormat>> formatFeatures{
    "PayloadSize", "Width", "Height", "PixelFormat"};

} // namespace

void AcquisitionControl::lock()
{
    if (isWatching())
        return;
    m_nodes.writeInteger("TLParamsLocked", 1); // Old cameras do not have the feature.
    m_nodes.setStreaming(true);
}

void AcquisitionControl::unlock()
{
    if (isWatching())
        return;
    m_nodes.writeInteger("TLParamsLocked", 0);
    m_nodes.setStreaming(false);
}

std::optional<std::string> AcquisitionControl::start()
{
    if (isWatching())
        return std::nullopt;
    if (!m_nodes.execute("AcquisitionStart") && hasNode("AcquisitionStart"))
        return "The camera refuses the command \"AcquisitionStart\".";
    if (isTransferControlled() && !m_nodes.execute("TransferStart"))
        return "The camera refuses the command \"TransferStart\".";
    return std::nullopt;
}

void AcquisitionControl::stop()
{
    if (isWatching())
        return;
    if (isTransferControlled())
        m_nodes.execute("TransferStop");
    m_nodes.execute("AcquisitionStop"); // Fails if the camera is gone, which does not matter here.
}

std::uint64_t AcquisitionControl::payloadSize() const
{
    return number("PayloadSize");
}

PictureLayout AcquisitionControl::configuredPicture() const
{
    const auto length = [this](const char *name) {
        const std::uint64_t value = number(name);
        return value <= Picture::maxLength ? static_cast<std::uint32_t>(value) : 0;
    };
    PictureLayout layout;
    layout.picture.width = length("Width");
    layout.picture.height = length("Height");
    layout.picture.pixelFormat = toPixelFormat(number("PixelFormat"));
    layout.offsetX = length("OffsetX");
    layout.offsetY = length("OffsetY");
    return layout;
}

AcquisitionControl::ImageFormat AcquisitionControl::imageFormat() const
{
    ImageFormat format;
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (!isSelected(formatFeatures[i]))
            format[i] = m_nodes.readInteger(formatFeatures[i]);
    }
    return format;
}

bool AcquisitionControl::hasFormatChanged(const ImageFormat &before) const
{
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (!before[i])
            continue;
        const auto now = m_nodes.readInteger(formatFeatures[i]);
        if (now != before[i])
            return now.has_value();
    }
    return false;
}

std::vector<ChunkFeature> AcquisitionControl::chunkFeatures() const
{
    const auto isActive = m_nodes.read("ChunkModeActive");
    const auto *const value = std::get_if<CvxCPP::NodeValue>(&isActive);
    if (value && *value == CvxCPP::NodeValue(false))
        return {};
    return m_nodes.chunkFeatures();
}

std::uint64_t AcquisitionControl::number(const char *name) const
{
    const std::int64_t value = m_nodes.readInteger(name).value_or(0);
    return value > 0 ? static_cast<std::uint64_t>(value) : 0;
}

bool AcquisitionControl::hasNode(const char *name) const
{
    const auto &nodes = m_nodes.nodes();
    return std::any_of(nodes.begin(), nodes.end(), [&](const auto &node) { return node.name == name; });
}

bool AcquisitionControl::isSelected(const char *name) const
{
    const auto &nodes = m_nodes.nodes();
    return std::any_of(nodes.begin(), nodes.end(),
        [&](const auto &node) { return node.name == name && !node.selectors.empty(); });
}

bool AcquisitionControl::isTransferControlled() const
{
    if (!hasNode("TransferControlMode"))
        return false;
    const auto mode = m_nodes.read("TransferControlMode");
    const auto *const value = std::get_if<CvxCPP::NodeValue>(&mode);
    return value && *value == CvxCPP::NodeValue(std::string("UserControlled"));
}
