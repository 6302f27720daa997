#pragma once

/// Letters of 5 × 7 dots for texts inside pictures: digits and capital letters; everything else is a space.
namespace SceneFont {
constexpr int glyphWidth = 5;
constexpr int glyphHeight = 7;
constexpr int advance = 6; ///< Dots from one letter to the next.

/// Returns true if the letter has a dot there. The coordinates must lie in the letter.
bool hasDot(char letter, int column, int row);
} // namespace SceneFont
