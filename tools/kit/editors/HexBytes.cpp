#include "tools/kit/editors/HexBytes.h"

#include <algorithm>
#include <utility>

void HexBytes::setCamera(const Bytes &bytes)
{
    m_camera = bytes;
    if (!m_isModified || m_shown.size() != bytes.size()) {
        m_shown = bytes;
        m_edits.clear();
    }
    compare();
}

std::size_t HexBytes::overwrite(std::size_t first, const Bytes &bytes)
{
    const std::size_t count = std::min(bytes.size(), m_shown.size() - first);
    replace(first, {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count)});
    return count;
}

void HexBytes::setHighDigit(std::size_t index, unsigned digit)
{
    replace(index, {static_cast<std::uint8_t>((m_shown[index] & 0x0FU) | digit << 4)});
}

void HexBytes::setLowDigit(std::size_t index, unsigned digit)
{
    replace(index, {static_cast<std::uint8_t>((m_shown[index] & 0xF0U) | digit)});
}

void HexBytes::restore(std::size_t first, std::size_t count)
{
    const auto start = m_camera.begin() + static_cast<std::ptrdiff_t>(first);
    const std::size_t length = std::min(count, m_camera.size() - first);
    replace(first, {start, start + static_cast<std::ptrdiff_t>(length)});
}

void HexBytes::restoreAll()
{
    m_shown = m_camera;
    m_edits.clear();
    m_isModified = false;
}

std::optional<std::size_t> HexBytes::undo()
{
    if (m_edits.empty())
        return std::nullopt;
    const Edit edit = std::move(m_edits.back());
    m_edits.pop_back();
    std::copy(
        edit.before.begin(), edit.before.end(), m_shown.begin() + static_cast<std::ptrdiff_t>(edit.first));
    compare();
    return edit.first;
}

void HexBytes::replace(std::size_t first, const Bytes &bytes)
{
    const auto start = m_shown.begin() + static_cast<std::ptrdiff_t>(first);
    m_edits.push_back({first, {start, start + static_cast<std::ptrdiff_t>(bytes.size())}});
    std::copy(bytes.begin(), bytes.end(), start);
    compare();
}

/// Compares the whole register, so it is called once for each edit.
void HexBytes::compare()
{
    m_isModified = m_shown != m_camera;
}
