#include "sdk/image/PixelLayout.h"

#include <algorithm>

namespace {

constexpr Arrangement oneComponent{};
constexpr Arrangement rgbOrder{1, 3, {{{0}, {1}, {2}}}};
constexpr Arrangement bgrOrder{1, 3, {{{2}, {1}, {0}}}};
constexpr Arrangement rgbaOrder{1, 4, {{{0}, {1}, {2}, {3}}}};
constexpr Arrangement bgraOrder{1, 4, {{{2}, {1}, {0}, {3}}}};
constexpr Arrangement uyvOrder{1, 3, {{{1}, {0}, {2}}}};
constexpr Arrangement yuyvOrder{2, 4, {{{0, 2}, {1, 1}, {3, 3}}}};
constexpr Arrangement uyvyOrder{2, 4, {{{1, 3}, {0, 0}, {2, 2}}}};
constexpr Arrangement uyyvyyOrder{4, 6, {{{1, 2, 4, 5}, {0, 0, 0, 0}, {3, 3, 3, 3}}}};
constexpr Arrangement yyuyyvOrder{4, 6, {{{0, 1, 3, 4}, {2, 2, 2, 2}, {5, 5, 5, 5}}}};
constexpr Arrangement rgbgOrder{2, 4, {{{0, 0}, {1, 3}, {2, 2}}}};
constexpr Arrangement bgrgOrder{2, 4, {{{2, 2}, {1, 3}, {0, 0}}}};
// These two are about the plane of chroma, so their first channel is not used.
constexpr Arrangement uvOrder{2, 2, {{{0, 0}, {0, 0}, {1, 1}}}};
constexpr Arrangement vuOrder{2, 2, {{{0, 0}, {1, 1}, {0, 0}}}};
constexpr Arrangement twoComponents{1, 2, {{{0}, {1}}}};

constexpr PixelLayout mono(std::uint32_t code, const char *name, int depth, Packing packing,
    Number number = Number::Unsigned, PixelKind kind = PixelKind::Mono)
{
    return {{code, name, kind, static_cast<std::uint8_t>(depth), 1}, packing, number, Planes::Interleaved,
        oneComponent};
}

constexpr PixelLayout data(std::uint32_t code, const char *name, int depth, Packing packing,
    Number number = Number::Unsigned, const Arrangement &arrangement = oneComponent,
    Planes planes = Planes::Interleaved)
{
    return {{code, name, PixelKind::Depth, static_cast<std::uint8_t>(depth), arrangement.components}, packing,
        number, planes, arrangement};
}

/// The last two numbers are the column and the line of the first red pixel.
constexpr PixelLayout bayer(
    std::uint32_t code, const char *name, int depth, Packing packing, int redX, int redY)
{
    return {{code, name, PixelKind::Bayer, static_cast<std::uint8_t>(depth), 1}, packing, Number::Unsigned,
        Planes::Interleaved, oneComponent, YuvStandard::Bt601Full, static_cast<std::uint8_t>(redX),
        static_cast<std::uint8_t>(redY)};
}

constexpr PixelLayout color(std::uint32_t code, const char *name, int depth, Packing packing,
    const Arrangement &arrangement, Planes planes = Planes::Interleaved)
{
    return {{code, name, PixelKind::Rgb, static_cast<std::uint8_t>(depth), arrangement.components}, packing,
        Number::Unsigned, planes, arrangement};
}

constexpr PixelLayout biColor(std::uint32_t code, const char *name, const Arrangement &arrangement)
{
    return {{code, name, PixelKind::BiColor, 8, 2}, Packing::Bytes, Number::Unsigned, Planes::Interleaved,
        arrangement};
}

constexpr PixelLayout yuv(std::uint32_t code, const char *name, const Arrangement &arrangement,
    YuvStandard standard = YuvStandard::Bt601Full, int depth = 8, Packing packing = Packing::Bytes,
    Planes planes = Planes::Interleaved)
{
    return {{code, name, PixelKind::Yuv, static_cast<std::uint8_t>(depth), 3}, packing, Number::Unsigned,
        planes, arrangement, standard};
}

constexpr PixelLayout raw(std::uint32_t code, const char *name)
{
    return {{code, name, PixelKind::Raw, 8, 1}, Packing::Unknown, Number::Unsigned, Planes::Interleaved,
        oneComponent};
}

constexpr PixelLayout unknownLayout = raw(0, "");

using P = Packing;
using S = YuvStandard;
constexpr std::array layouts = {
    mono(0x01010037, "Mono1p", 1, P::Bits),
    mono(0x01020038, "Mono2p", 2, P::Bits),
    mono(0x01040039, "Mono4p", 4, P::Bits),
    mono(0x01080001, "Mono8", 8, P::Bytes),
    mono(0x01080002, "Mono8s", 8, P::Bytes, Number::Signed),
    mono(0x01100003, "Mono10", 10, P::Words),
    mono(0x010C0004, "Mono10Packed", 10, P::Pairs),
    mono(0x010A0046, "Mono10p", 10, P::Bits),
    mono(0x01100005, "Mono12", 12, P::Words),
    mono(0x010C0006, "Mono12Packed", 12, P::Pairs),
    mono(0x010C0047, "Mono12p", 12, P::Bits),
    mono(0x01100025, "Mono14", 14, P::Words),
    mono(0x010E0104, "Mono14p", 14, P::Bits),
    mono(0x01100007, "Mono16", 16, P::Words),
    mono(0x01200111, "Mono32", 32, P::Wide),
    mono(0x010800C9, "R8", 8, P::Bytes),
    mono(0x010800CD, "G8", 8, P::Bytes),
    mono(0x010800D1, "B8", 8, P::Bytes),
    biColor(0x021000A5, "BiColorRGBG8", rgbgOrder),
    biColor(0x021000A6, "BiColorBGRG8", bgrgOrder),

    bayer(0x0104010D, "BayerGR4p", 4, P::Bits, 1, 0),
    bayer(0x0104010E, "BayerRG4p", 4, P::Bits, 0, 0),
    bayer(0x0104010F, "BayerGB4p", 4, P::Bits, 0, 1),
    bayer(0x01040110, "BayerBG4p", 4, P::Bits, 1, 1),
    bayer(0x01080008, "BayerGR8", 8, P::Bytes, 1, 0),
    bayer(0x01080009, "BayerRG8", 8, P::Bytes, 0, 0),
    bayer(0x0108000A, "BayerGB8", 8, P::Bytes, 0, 1),
    bayer(0x0108000B, "BayerBG8", 8, P::Bytes, 1, 1),
    bayer(0x0110000C, "BayerGR10", 10, P::Words, 1, 0),
    bayer(0x0110000D, "BayerRG10", 10, P::Words, 0, 0),
    bayer(0x0110000E, "BayerGB10", 10, P::Words, 0, 1),
    bayer(0x0110000F, "BayerBG10", 10, P::Words, 1, 1),
    bayer(0x010A0056, "BayerGR10p", 10, P::Bits, 1, 0),
    bayer(0x010A0058, "BayerRG10p", 10, P::Bits, 0, 0),
    bayer(0x010A0054, "BayerGB10p", 10, P::Bits, 0, 1),
    bayer(0x010A0052, "BayerBG10p", 10, P::Bits, 1, 1),
    bayer(0x010C0026, "BayerGR10Packed", 10, P::Pairs, 1, 0),
    bayer(0x010C0027, "BayerRG10Packed", 10, P::Pairs, 0, 0),
    bayer(0x010C0028, "BayerGB10Packed", 10, P::Pairs, 0, 1),
    bayer(0x010C0029, "BayerBG10Packed", 10, P::Pairs, 1, 1),
    bayer(0x01100010, "BayerGR12", 12, P::Words, 1, 0),
    bayer(0x01100011, "BayerRG12", 12, P::Words, 0, 0),
    bayer(0x01100012, "BayerGB12", 12, P::Words, 0, 1),
    bayer(0x01100013, "BayerBG12", 12, P::Words, 1, 1),
    bayer(0x010C0057, "BayerGR12p", 12, P::Bits, 1, 0),
    bayer(0x010C0059, "BayerRG12p", 12, P::Bits, 0, 0),
    bayer(0x010C0055, "BayerGB12p", 12, P::Bits, 0, 1),
    bayer(0x010C0053, "BayerBG12p", 12, P::Bits, 1, 1),
    bayer(0x010C002A, "BayerGR12Packed", 12, P::Pairs, 1, 0),
    bayer(0x010C002B, "BayerRG12Packed", 12, P::Pairs, 0, 0),
    bayer(0x010C002C, "BayerGB12Packed", 12, P::Pairs, 0, 1),
    bayer(0x010C002D, "BayerBG12Packed", 12, P::Pairs, 1, 1),
    bayer(0x01100109, "BayerGR14", 14, P::Words, 1, 0),
    bayer(0x0110010A, "BayerRG14", 14, P::Words, 0, 0),
    bayer(0x0110010B, "BayerGB14", 14, P::Words, 0, 1),
    bayer(0x0110010C, "BayerBG14", 14, P::Words, 1, 1),
    bayer(0x010E0105, "BayerGR14p", 14, P::Bits, 1, 0),
    bayer(0x010E0106, "BayerRG14p", 14, P::Bits, 0, 0),
    bayer(0x010E0107, "BayerGB14p", 14, P::Bits, 0, 1),
    bayer(0x010E0108, "BayerBG14p", 14, P::Bits, 1, 1),
    bayer(0x0110002E, "BayerGR16", 16, P::Words, 1, 0),
    bayer(0x0110002F, "BayerRG16", 16, P::Words, 0, 0),
    bayer(0x01100030, "BayerGB16", 16, P::Words, 0, 1),
    bayer(0x01100031, "BayerBG16", 16, P::Words, 1, 1),

    color(0x02180014, "RGB8", 8, P::Bytes, rgbOrder),
    color(0x02180015, "BGR8", 8, P::Bytes, bgrOrder),
    color(0x02200016, "RGBa8", 8, P::Bytes, rgbaOrder),
    color(0x02200017, "BGRa8", 8, P::Bytes, bgraOrder),
    color(0x02300018, "RGB10", 10, P::Words, rgbOrder),
    color(0x02300019, "BGR10", 10, P::Words, bgrOrder),
    color(0x0230001A, "RGB12", 12, P::Words, rgbOrder),
    color(0x0230001B, "BGR12", 12, P::Words, bgrOrder),
    color(0x0230005E, "RGB14", 14, P::Words, rgbOrder),
    color(0x02300033, "RGB16", 16, P::Words, rgbOrder),
    color(0x0230004B, "BGR16", 16, P::Words, bgrOrder),
    color(0x0240005F, "RGBa10", 10, P::Words, rgbaOrder),
    color(0x02400061, "RGBa12", 12, P::Words, rgbaOrder),
    color(0x02400064, "RGBa16", 16, P::Words, rgbaOrder),
    color(0x021E005C, "RGB10p", 10, P::Bits, rgbOrder),
    color(0x021E0048, "BGR10p", 10, P::Bits, bgrOrder),
    color(0x0224005D, "RGB12p", 12, P::Bits, rgbOrder),
    color(0x02240049, "BGR12p", 12, P::Bits, bgrOrder),
    color(0x02280060, "RGBa10p", 10, P::Bits, rgbaOrder),
    color(0x02300062, "RGBa12p", 12, P::Bits, rgbaOrder),
    color(0x0220001D, "RGB10p32", 10, P::Rgb10p32, rgbOrder),
    color(0x02100035, "RGB565p", 6, P::Rgb565, rgbOrder),
    color(0x02100036, "BGR565p", 6, P::Rgb565, bgrOrder),
    color(0x02180021, "RGB8_Planar", 8, P::Bytes, rgbOrder, Planes::Planar),
    color(0x02300022, "RGB10_Planar", 10, P::Words, rgbOrder, Planes::Planar),
    color(0x02300023, "RGB12_Planar", 12, P::Words, rgbOrder, Planes::Planar),
    color(0x02300024, "RGB16_Planar", 16, P::Words, rgbOrder, Planes::Planar),
    raw(0x0220001C, "RGB10V1Packed"),
    raw(0x02240034, "RGB12V1Packed"),

    yuv(0x02180020, "YUV8_UYV", uyvOrder),
    yuv(0x02100032, "YUV422_8", yuyvOrder),
    yuv(0x0210001F, "YUV422_8_UYVY", uyvyOrder),
    yuv(0x020C001E, "YUV411_8_UYYVYY", uyyvyyOrder),
    yuv(0x0218005B, "YCbCr8", rgbOrder),
    yuv(0x0218003A, "YCbCr8_CbYCr", uyvOrder),
    yuv(0x0210003B, "YCbCr422_8", yuyvOrder),
    yuv(0x02100043, "YCbCr422_8_CbYCrY", uyvyOrder),
    yuv(0x020C005A, "YCbCr411_8", yyuyyvOrder),
    yuv(0x020C003C, "YCbCr411_8_CbYYCrYY", uyyvyyOrder),
    yuv(0x02200065, "YCbCr422_10", yuyvOrder, S::Bt601Full, 10, P::Words),
    yuv(0x02200066, "YCbCr422_12", yuyvOrder, S::Bt601Full, 12, P::Words),
    yuv(0x02140087, "YCbCr422_10p", yuyvOrder, S::Bt601Full, 10, P::Bits),
    yuv(0x02180088, "YCbCr422_12p", yuyvOrder, S::Bt601Full, 12, P::Bits),
    yuv(0x0218003D, "YCbCr601_8_CbYCr", uyvOrder, S::Bt601),
    yuv(0x0210003E, "YCbCr601_422_8", yuyvOrder, S::Bt601),
    yuv(0x02100044, "YCbCr601_422_8_CbYCrY", uyvyOrder, S::Bt601),
    yuv(0x020C003F, "YCbCr601_411_8_CbYYCrYY", uyyvyyOrder, S::Bt601),
    yuv(0x02180040, "YCbCr709_8_CbYCr", uyvOrder, S::Bt709),
    yuv(0x02100041, "YCbCr709_422_8", yuyvOrder, S::Bt709),
    yuv(0x02100045, "YCbCr709_422_8_CbYCrY", uyvyOrder, S::Bt709),
    yuv(0x020C0042, "YCbCr709_411_8_CbYYCrYY", uyyvyyOrder, S::Bt709),
    yuv(0x021800F4, "YCbCr2020_8_CbYCr", uyvOrder, S::Bt2020),
    yuv(0x021000FA, "YCbCr2020_422_8", yuyvOrder, S::Bt2020),
    yuv(0x021000FB, "YCbCr2020_422_8_CbYCrY", uyvyOrder, S::Bt2020),
    yuv(0x020C00F9, "YCbCr2020_411_8_CbYYCrYY", uyyvyyOrder, S::Bt2020),
    yuv(0x020C0112, "YCbCr420_8_YY_CbCr_Semiplanar", uvOrder, S::Bt601Full, 8, P::Bytes,
        Planes::Semiplanar420),
    yuv(0x020C0114, "YCbCr420_8_YY_CrCb_Semiplanar", vuOrder, S::Bt601Full, 8, P::Bytes,
        Planes::Semiplanar420),
    yuv(0x02100113, "YCbCr422_8_YY_CbCr_Semiplanar", uvOrder, S::Bt601Full, 8, P::Bytes,
        Planes::Semiplanar422),
    yuv(0x02100115, "YCbCr422_8_YY_CrCb_Semiplanar", vuOrder, S::Bt601Full, 8, P::Bytes,
        Planes::Semiplanar422),

    data(0x010800AF, "Coord3D_A8", 8, P::Bytes),
    data(0x010800B0, "Coord3D_B8", 8, P::Bytes),
    data(0x010800B1, "Coord3D_C8", 8, P::Bytes),
    data(0x011000B6, "Coord3D_A16", 16, P::Words),
    data(0x011000B7, "Coord3D_B16", 16, P::Words),
    data(0x011000B8, "Coord3D_C16", 16, P::Words),
    data(0x012000BD, "Coord3D_A32f", 32, P::Wide, Number::Float),
    data(0x012000BE, "Coord3D_B32f", 32, P::Wide, Number::Float),
    data(0x012000BF, "Coord3D_C32f", 32, P::Wide, Number::Float),
    data(0x021800B2, "Coord3D_ABC8", 8, P::Bytes, Number::Unsigned, rgbOrder),
    data(0x023000B9, "Coord3D_ABC16", 16, P::Words, Number::Unsigned, rgbOrder),
    data(0x026000C0, "Coord3D_ABC32f", 32, P::Wide, Number::Float, rgbOrder),
    data(0x026000C1, "Coord3D_ABC32f_Planar", 32, P::Wide, Number::Float, rgbOrder, Planes::Planar),
    data(0x022000BB, "Coord3D_AC16", 16, P::Words, Number::Unsigned, twoComponents),
    data(0x010800C4, "Confidence1", 1, P::Bytes),
    data(0x010100C5, "Confidence1p", 1, P::Bits),
    data(0x010800C6, "Confidence8", 8, P::Bytes),
    data(0x011000C7, "Confidence16", 16, P::Words),
    data(0x012000C8, "Confidence32f", 32, P::Wide, Number::Float),
    data(0x01080116, "Data8", 8, P::Bytes),
    data(0x01080117, "Data8s", 8, P::Bytes, Number::Signed),
    data(0x01100118, "Data16", 16, P::Words),
    data(0x01100119, "Data16s", 16, P::Words, Number::Signed),
    data(0x0120011A, "Data32", 32, P::Wide),
    data(0x0120011B, "Data32s", 32, P::Wide, Number::Signed),
    data(0x0120011C, "Data32f", 32, P::Wide, Number::Float),
    data(0x0140011D, "Data64", 64, P::Wide),
    data(0x0140011E, "Data64s", 64, P::Wide, Number::Signed),
    data(0x0140011F, "Data64f", 64, P::Wide, Number::Float),
};

} // namespace

unsigned PixelLayout::componentBits() const
{
    switch (packing) {
    case Packing::Bits:
    case Packing::Wide:
        return format.depth;
    case Packing::Words:
        return 16;
    case Packing::Pairs:
        return 12;
    default:
        return 8;
    }
}

unsigned PixelLayout::screenChannels() const
{
    const bool isGrey
        = format.kind == PixelKind::Mono || format.kind == PixelKind::Depth || format.kind == PixelKind::Raw;
    return isGrey ? 1 : 3;
}

const PixelLayout &findPixelLayout(std::uint32_t code)
{
    const auto *const found = std::find_if(layouts.begin(), layouts.end(),
        [code](const PixelLayout &layout) { return layout.format.code == code; });
    return found == layouts.end() ? unknownLayout : *found;
}

PixelLayoutTable pixelLayouts()
{
    return {layouts.data(), layouts.data() + layouts.size()};
}
