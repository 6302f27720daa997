#include "sdk/camerahost/PortFileReader.h"

#include "sdk/text/Utf8.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::size_t registerSize = 4; // Many cameras transfer only whole registers.
constexpr std::array<std::size_t, 5> blockSizes{64 << 10, 4096, 512, 64, registerSize};

} // namespace

std::variant<std::string, DescriptionProblem> PortFileReader::read(std::uint64_t address, std::size_t length)
{
    std::string bytes(length, '\0');
    std::size_t blockSize = 0; // Index in blockSizes.
    for (std::size_t offset = 0; offset < length;) {
        if (std::chrono::steady_clock::now() >= m_deadline)
            return DescriptionProblem{"the camera is too slow: only " + std::to_string(offset) + " of "
                + std::to_string(length) + " bytes have arrived"};
        const std::size_t size = std::min(blockSizes[blockSize], length - offset);
        std::size_t done = 0;
        if (const auto problem = readBlock(address + offset, bytes.data() + offset, size, done)) {
            while (blockSize < blockSizes.size() && blockSizes[blockSize] >= size)
                ++blockSize; // A larger block would be the same one again.
            if (blockSize < blockSizes.size())
                continue;
            if (offset > 0 && problem->code == GenTL::GC_ERR_INVALID_ADDRESS)
                break; // The stated length is larger than the file.
            return DescriptionProblem{toText(*problem)};
        }
        if (done == 0)
            break; // The same.
        offset += done;
    }
    return bytes;
}

/// Reads a block. If the camera refuses an odd size, reads the whole registers instead.
std::optional<Problem> PortFileReader::readBlock(
    std::uint64_t address, char *data, std::size_t size, std::size_t &done) const
{
    done = size;
    auto problem = m_library.call(
        "GCReadPort", m_library.GCReadPort, m_port, address, static_cast<void *>(data), &done);
    if (problem && size % registerSize != 0 && !readAligned(address, data, size, done))
        problem.reset();
    done = std::min(done, size);
    return problem;
}

std::optional<Problem> PortFileReader::readAligned(
    std::uint64_t address, char *data, std::size_t size, std::size_t &done) const
{
    std::string registers((size + registerSize - 1) / registerSize * registerSize, '\0');
    done = registers.size();
    auto problem = m_library.call(
        "GCReadPort", m_library.GCReadPort, m_port, address, static_cast<void *>(registers.data()), &done);
    if (!problem)
        std::copy_n(registers.begin(), size, data);
    return problem;
}

std::string toText(const Problem &problem)
{
    std::string text = problem.call + " failed";
    if (problem.code != 0)
        text += " with error " + std::to_string(problem.code);
    if (!problem.text.empty())
        text += " (" + toPrintable(problem.text) + ')';
    return text;
}
