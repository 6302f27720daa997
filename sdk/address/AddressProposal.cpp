#include "sdk/address/AddressProposal.h"

#include "sdk/address/AddressProbe.h"

namespace {

constexpr std::size_t addressesPerQuestion = 16;
constexpr int maxQuestions = 4;
constexpr std::uint64_t maxTried = 1 << 16; // Known addresses and reserved ones are skipped.

/// Devices must not choose the first and the last 256 link-local addresses.
bool isReservedLinkLocal(std::uint32_t address)
{
    const std::uint32_t third = address >> 8 & 0xFF;
    return isLinkLocal(address) && (third == 0 || third == 0xFF);
}

/// The addresses after the network interface's own one, which continue at the beginning of the subnet.
class Candidates
{
public:
    Candidates(const SeenCamera &camera, const AddressSurroundings &surroundings)
        : m_camera(camera), m_surroundings(surroundings)
    { }

    /// Returns the next usable addresses; fewer than `count` if there are no more.
    std::vector<std::uint32_t> next(std::size_t count)
    {
        const InterfaceAddress &own = m_camera.networkInterface;
        const std::uint64_t size = std::uint64_t{1} + ~own.mask;
        std::vector<std::uint32_t> result;
        while (result.size() < count && ++m_tried < size && m_tried < maxTried) {
            const auto host = static_cast<std::uint32_t>(((own.address & ~own.mask) + m_tried) % size);
            const AddressSettings settings{(own.address & own.mask) | host, own.mask, 0};
            if (!isReservedLinkLocal(settings.address) && !whyUnusable(m_camera, settings, m_surroundings))
                result.push_back(settings.address);
        }
        return result;
    }

private:
    const SeenCamera &m_camera;
    const AddressSurroundings &m_surroundings;
    std::uint64_t m_tried = 0;
};

} // namespace

std::optional<AddressSettings> proposeAddress(
    const SeenCamera &camera, AddressSurroundings surroundings, const AddressQuestion &ask)
{
    const InterfaceAddress &own = camera.networkInterface;
    Candidates candidates(camera, surroundings);
    for (int question = 0; question < maxQuestions; ++question) {
        const auto addresses = candidates.next(addressesPerQuestion);
        if (addresses.empty())
            break;
        surroundings.neighbours = ask(own, addresses);
        for (const std::uint32_t address : addresses) {
            const AddressSettings settings{address, own.mask, 0};
            if (!whyUnusable(camera, settings, surroundings))
                return settings;
        }
    }
    return std::nullopt;
}

std::vector<Neighbour> askNetwork(const InterfaceAddress &from, const std::vector<std::uint32_t> &addresses)
{
    probeAddresses(from, addresses);
    return readNeighbours();
}
