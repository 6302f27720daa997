#include "tests/producer/ExportedSymbols.h"

#include <cstring>
#include <elf.h>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

namespace {

/// Reads one entry of an ELF table.
template <typename Entry>
Entry entryAt(const std::vector<char> &file, std::size_t offset)
{
    Entry entry;
    if (offset > file.size() || file.size() - offset < sizeof entry)
        throw std::runtime_error("The library is cut short.");
    std::memcpy(&entry, file.data() + offset, sizeof entry);
    return entry;
}

Elf64_Shdr dynamicSymbolTable(const std::vector<char> &file, const Elf64_Ehdr &header)
{
    for (std::size_t i = 0; i < header.e_shnum; ++i) {
        const auto section = entryAt<Elf64_Shdr>(file, header.e_shoff + i * header.e_shentsize);
        if (section.sh_type == SHT_DYNSYM)
            return section;
    }
    throw std::runtime_error("The library has no dynamic symbol table.");
}

} // namespace

std::set<std::string> exportedSymbols(const std::filesystem::path &library)
{
    std::ifstream stream(library, std::ios::binary);
    const std::vector<char> file{std::istreambuf_iterator<char>(stream), {}};
    const auto header = entryAt<Elf64_Ehdr>(file, 0);
    const Elf64_Shdr symbols = dynamicSymbolTable(file, header);
    const auto names
        = entryAt<Elf64_Shdr>(file, header.e_shoff + std::size_t(symbols.sh_link) * header.e_shentsize);

    std::set<std::string> exported;
    for (std::size_t offset = 0; offset < symbols.sh_size; offset += sizeof(Elf64_Sym)) {
        const auto symbol = entryAt<Elf64_Sym>(file, symbols.sh_offset + offset);
        const bool isLocal = ELF64_ST_BIND(symbol.st_info) == STB_LOCAL;
        if (symbol.st_shndx != SHN_UNDEF && !isLocal)
            exported.insert(&file.at(names.sh_offset + symbol.st_name));
    }
    return exported;
}
