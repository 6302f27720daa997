#include "sdk/address/NeighbourTable.h"

#include "sdk/address/AddressText.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>

namespace {

constexpr unsigned isCompleteFlag = 0x2; // The device has answered.

bool parseMac(const std::string &text, MacAddress &mac)
{
    return std::sscanf(text.c_str(), "%hhx:%hhx:%hhx:%hhx:%hhx:%hhx", &mac[0], &mac[1], &mac[2], &mac[3],
               &mac[4], &mac[5])
        == 6;
}

} // namespace

std::vector<Neighbour> parseNeighbours(const std::string &text)
{
    std::vector<Neighbour> neighbours;
    std::istringstream lines(text);
    std::string line;
    std::getline(lines, line); // The names of the columns.
    while (std::getline(lines, line)) {
        std::istringstream columns(line);
        std::string address, hardwareType, flags, mac, mask;
        Neighbour neighbour;
        if (!(columns >> address >> hardwareType >> flags >> mac >> mask >> neighbour.networkInterface))
            continue;
        const auto number = parseIpv4(address);
        unsigned bits = 0;
        const bool isComplete = std::sscanf(flags.c_str(), "%x", &bits) == 1 && (bits & isCompleteFlag) != 0;
        if (!number || !isComplete || !parseMac(mac, neighbour.mac))
            continue;
        neighbour.address = *number;
        neighbours.push_back(std::move(neighbour));
    }
    return neighbours;
}

std::vector<Neighbour> readNeighbours(const std::string &root)
{
    std::ifstream file(root + "/proc/net/arp");
    return parseNeighbours({std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()});
}
