#include "sdk/camerahost/AcquisitionControl.h"

#include <algorithm>

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

std::vector<std::optional<std::int64_t>> AcquisitionControl::imageFormat() const
{
    std::vector<std::optional<std::int64_t>> format;
    for (const char *name : {"PayloadSize", "Width", "Height", "PixelFormat"})
        format.push_back(m_nodes.readInteger(name));
    return format;
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

bool AcquisitionControl::isTransferControlled() const
{
    if (!hasNode("TransferControlMode"))
        return false;
    const auto mode = m_nodes.read("TransferControlMode");
    const auto *const value = std::get_if<CvxCPP::NodeValue>(&mode);
    return value && *value == CvxCPP::NodeValue(std::string("UserControlled"));
}
