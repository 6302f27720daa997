#pragma once

#include "sdk/image/ImageConverter.h"
#include "tests/image/ReferenceFormats.h"

#include <array>
#include <functional>
#include <string>

/// Reads pictures pixel by pixel and bit by bit, as the documentation describes their formats. Slow and
/// simple.
class ReferencePicture
{
public:
    using Color = std::array<double, 3>;

    ReferencePicture(const RawImage &picture, const ReferenceFormat &format);

    /// Returns the bytes of a picture whose lines start at whole bytes.
    static std::size_t paddedSize(const RawImage &picture, const ReferenceFormat &format);
    /// Returns the bytes of a picture without any gap.
    static std::size_t tightSize(const RawImage &picture);

    unsigned rawChannels() const;
    bool isGrey() const;
    /// Returns the letter of the pixel's colour in a Bayer picture.
    char bayerColor(int x, int y) const;

    double raw(int x, int y, unsigned channel) const;
    unsigned word(int x, int y, unsigned channel) const;
    /// Returns 8 bits per channel. Only colours from luma and chroma are not whole numbers.
    Color screen(int x, int y, Demosaicing demosaicing) const;
    Color colorWord(int x, int y, Demosaicing demosaicing) const;

private:
    using Value = std::function<int(int x, int y)>;

    struct Token
    {
        char letter;
        int pixel; ///< -1 if the pixels of the group share the component.
    };

    std::uint64_t bits(std::uint64_t firstBit, unsigned count) const;
    std::uint64_t integer(std::size_t offset, unsigned bytes) const;
    std::uint64_t component(unsigned plane, int y, std::size_t index) const;
    bool isPresent(unsigned plane, int y, std::size_t index) const;
    std::uint64_t pattern(int x, int y, unsigned channel) const;
    std::size_t position(char letter, int pixel) const;
    std::size_t lineOffset(unsigned plane, int y) const;
    bool isStream() const;
    std::size_t lineComponents() const;
    double number(std::uint64_t pattern) const;
    double share(int x, int y, unsigned channel) const;
    unsigned screenByte(int x, int y, unsigned channel) const;
    Color fromYuv(double y, double u, double v, int depth) const;
    Color demosaic(int x, int y, Demosaicing demosaicing, int maximum, const Value &value) const;
    int bilinear(int x, int y, char color, const Value &value) const;
    int green(int x, int y, int maximum, const Value &value) const;
    int edgeAware(int x, int y, char color, int maximum, const Value &value) const;
    char letterOf(unsigned channel) const;
    static int mirrored(int index, int count);

    const RawImage &m_picture;
    const ReferenceFormat &m_format;
    std::vector<Token> m_tokens;
    int m_groupPixels = 1;
    bool m_isPlanar = false;
    bool m_isSemiplanar = false;
    bool m_isTight = false;
    std::array<double, 3> m_lowest{}; ///< Only for floating-point numbers.
    std::array<double, 3> m_highest{};
};
