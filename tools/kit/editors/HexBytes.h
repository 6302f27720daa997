#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// The bytes of a register while a person changes them: keeps what the camera has beside what was typed. The
/// length never changes by editing.
class HexBytes
{
public:
    using Bytes = std::vector<std::uint8_t>;

    /// Takes what the camera has now. Replaces what is shown, unless a person has changed it and the length
    /// is the same.
    void setCamera(const Bytes &bytes);

    const Bytes &shown() const { return m_shown; }
    std::size_t size() const { return m_shown.size(); }
    bool isModified() const { return m_isModified; }
    bool isChanged(std::size_t index) const { return m_shown[index] != m_camera[index]; }

    /// Replaces the bytes from an index on. Returns how many of them fit.
    std::size_t overwrite(std::size_t first, const Bytes &bytes);

    void setHighDigit(std::size_t index, unsigned digit);
    void setLowDigit(std::size_t index, unsigned digit);

    /// Shows what the camera has, for some bytes or for all.
    void restore(std::size_t first, std::size_t count);
    void restoreAll();

    /// Takes back the last edit that was made since the bytes were those of the camera, and returns the index
    /// of its first byte. Returns no value if there is none.
    std::optional<std::size_t> undo();

private:
    /// What was shown before an edit.
    struct Edit
    {
        std::size_t first;
        Bytes before;
    };

    void replace(std::size_t first, const Bytes &bytes);
    void compare();

    Bytes m_camera;
    Bytes m_shown;
    std::vector<Edit> m_edits;
    bool m_isModified = false;
};
