#include "sdk/hosting/ForeignFormat.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <elf.h>
#include <fstream>
#include <iterator>
#include <string_view>

namespace {

using Start = std::array<char, 20>; // The start of an ELF header, up to the machine field.

Start startOf(const char *path)
{
    Start start{};
    std::ifstream(path, std::ios::binary).read(start.data(), start.size());
    return start;
}

bool startsWith(const Start &start, std::string_view text)
{
    return std::equal(text.begin(), text.end(), start.begin());
}

/// Returns true if the file has a format of Windows or macOS.
bool isForeignFormat(const Start &start)
{
    static constexpr std::string_view magicNumbers[] = {
        "MZ", // Windows.
        "\xFE\xED\xFA\xCE",
        "\xFE\xED\xFA\xCF", // macOS, big-endian: 32 and 64 bits.
        "\xCE\xFA\xED\xFE",
        "\xCF\xFA\xED\xFE", // macOS, little-endian.
        "\xCA\xFE\xBA\xBE",
        "\xCA\xFE\xBA\xBF", // macOS, for several processor architectures.
        "\xBE\xBA\xFE\xCA",
        "\xBF\xBA\xFE\xCA",
    };
    return std::any_of(std::begin(magicNumbers), std::end(magicNumbers),
        [&](std::string_view magic) { return startsWith(start, magic); });
}

bool isElf(const Start &start)
{
    return startsWith(start, ELFMAG);
}

/// Returns true if the ELF file is for a system other than Linux. Not every other system marks its files.
bool isForAnotherSystem(const Start &start)
{
    const char system = start[EI_OSABI];
    return system != ELFOSABI_NONE && system != ELFOSABI_LINUX;
}

bool isForAnotherMachine(const Start &start)
{
    const Start own = startOf("/proc/self/exe");
    constexpr std::size_t machine = offsetof(Elf64_Ehdr, e_machine);
    const std::size_t fields[] = {EI_CLASS, EI_DATA, machine, machine + 1};
    return std::any_of(
        std::begin(fields), std::end(fields), [&](std::size_t index) { return start[index] != own[index]; });
}

} // namespace

std::optional<std::string> foreignFormat(const char *path)
{
    const Start start = startOf(path);
    if (isElf(start) && isForAnotherMachine(start))
        return "the library is for another processor architecture";
    if (isForeignFormat(start) || (isElf(start) && isForAnotherSystem(start)))
        return "the library is for another operating system";
    return std::nullopt;
}
