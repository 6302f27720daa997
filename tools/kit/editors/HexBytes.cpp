#include "tools/kit/editors/HexBytes.h"

#include <algorithm>

void HexBytes::setCamera(const Bytes &bytes)
{
    m_camera = bytes;
    if (!m_isModified || m_shown.size() != bytes.size())
        m_shown = bytes;
    m_isModified = m_shown != m_camera;
}

std::size_t HexBytes::overwrite(std::size_t first, const Bytes &bytes)
{
    const std::size_t count = std::min(bytes.size(), m_shown.size() - first);
    for (std::size_t index = 0; index < count; ++index)
        set(first + index, bytes[index]);
    return count;
}

void HexBytes::setHighDigit(std::size_t index, unsigned digit)
{
    set(index, (m_shown[index] & 0x0FU) | digit << 4);
}

void HexBytes::setLowDigit(std::size_t index, unsigned digit)
{
    set(index, (m_shown[index] & 0xF0U) | digit);
}

void HexBytes::restore(std::size_t first, std::size_t count)
{
    for (std::size_t index = first; index < std::min(first + count, m_shown.size()); ++index)
        set(index, m_camera[index]);
}

void HexBytes::restoreAll()
{
    m_shown = m_camera;
    m_isModified = false;
}

void HexBytes::set(std::size_t index, unsigned byte)
{
    m_shown[index] = static_cast<std::uint8_t>(byte);
    m_isModified = m_shown != m_camera;
}
