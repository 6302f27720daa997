#include "tests/gige/producer/WholeTimeoutSource.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <ifaddrs.h>
#include <map>
#include <net/if.h>
#include <optional>
#include <poll.h>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;
using Answer = std::array<std::uint8_t, 256>;
using Mac = std::array<std::uint8_t, 6>;

constexpr std::uint16_t discoveryPort = 3956;
constexpr std::array<std::uint8_t, 8> discoveryCommand{0x42, 0x11, 0x00, 0x02, 0x00, 0x00, 0x12, 0x34};
constexpr std::size_t headerSize = 8;
constexpr std::chrono::milliseconds wakeUpInterval{1}; // Such producers are not economical either.
constexpr std::chrono::milliseconds maxTimeout{10000}; // A consumer may ask for an infinite timeout.

struct InterfaceAddress
{
    std::string name;
    sockaddr_in address;
    sockaddr_in broadcast;
};

sockaddr_in toInet(const sockaddr *address)
{
    return *reinterpret_cast<const sockaddr_in *>(address);
}

std::string toText(const sockaddr_in &address)
{
    char text[INET_ADDRSTRLEN] = "";
    inet_ntop(AF_INET, &address.sin_addr, text, sizeof text);
    return text;
}

std::vector<InterfaceAddress> interfaceAddresses()
{
    ifaddrs *list = nullptr;
    if (getifaddrs(&list) != 0)
        throw std::system_error(errno, std::generic_category(), "getifaddrs");
    const std::unique_ptr<ifaddrs, void (*)(ifaddrs *)> owned(list, freeifaddrs);
    constexpr unsigned needed = IFF_UP | IFF_BROADCAST;
    std::vector<InterfaceAddress> found;
    for (const ifaddrs *entry = list; entry; entry = entry->ifa_next) {
        const bool isInet = entry->ifa_addr && entry->ifa_addr->sa_family == AF_INET;
        if (isInet && (entry->ifa_flags & needed) == needed && entry->ifa_broadaddr)
            found.push_back({entry->ifa_name, toInet(entry->ifa_addr), toInet(entry->ifa_broadaddr)});
    }
    return found;
}

/// A socket that sends and receives through one network interface.
class DiscoverySocket
{
public:
    explicit DiscoverySocket(const InterfaceAddress &interface)
        : m_socket(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in address = interface.address;
        address.sin_port = 0;
        const int on = 1;
        if (m_socket < 0 || setsockopt(m_socket, SOL_SOCKET, SO_BROADCAST, &on, sizeof on) != 0
            || bind(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
            const int error = errno;
            close(m_socket);
            throw std::system_error(error, std::generic_category(), "socket");
        }
    }
    ~DiscoverySocket() { close(m_socket); }
    DiscoverySocket(const DiscoverySocket &) = delete;
    DiscoverySocket &operator=(const DiscoverySocket &) = delete;

    void sendCommand(sockaddr_in to) const
    {
        to.sin_port = htons(discoveryPort);
        [[maybe_unused]] const ssize_t sent
            = sendto(m_socket, discoveryCommand.data(), discoveryCommand.size(), MSG_DONTWAIT,
                reinterpret_cast<const sockaddr *>(&to), sizeof to); // UDP may lose it anyway.
    }

    /// Waits for the next acknowledgement. Returns nothing at the deadline.
    std::optional<Answer> receive(Clock::time_point deadline) const
    {
        for (;;) {
            if (Clock::now() >= deadline)
                return std::nullopt;
            pollfd waiting{m_socket, POLLIN, 0};
            if (poll(&waiting, 1, int(wakeUpInterval.count())) <= 0)
                continue;
            Answer answer;
            const ssize_t size = recv(m_socket, answer.data(), answer.size(), MSG_DONTWAIT);
            const bool isGood = size == ssize_t(answer.size()) && answer[0] == 0 && answer[1] == 0
                && answer[2] == 0 && answer[3] == 3;
            if (isGood)
                return answer;
        }
    }

private:
    const int m_socket;
};

std::string text(const Answer &answer, std::size_t offset, std::size_t maxSize)
{
    const auto begin = answer.begin() + headerSize + offset;
    return {begin, std::find(begin, begin + maxSize, '\0')};
}

DeviceRecord toRecord(const Answer &answer, const Mac &mac)
{
    std::array<char, 13> digits{};
    std::snprintf(digits.data(), digits.size(), "%02x%02x%02x%02x%02x%02x", mac[0], mac[1], mac[2], mac[3],
        mac[4], mac[5]);
    DeviceRecord record;
    record.vendor = text(answer, 0x48, 32);
    record.model = text(answer, 0x68, 32);
    record.serial = text(answer, 0xD8, 16);
    record.userName = text(answer, 0xE8, 16);
    record.id = record.vendor + "_" + digits.data();
    record.displayName = record.vendor + " " + record.model + " (" + record.serial + ")";
    record.tlType = GenTL::TLTypeGEVName;
    record.accessStatus = GenTL::DEVICE_ACCESS_STATUS_READWRITE;
    return record;
}

std::vector<DeviceRecord> search(const InterfaceAddress &interface, std::chrono::milliseconds timeout)
{
    const Clock::time_point deadline = Clock::now() + std::min(timeout, maxTimeout);
    const DiscoverySocket socket(interface);
    sockaddr_in everywhere{};
    everywhere.sin_family = AF_INET;
    everywhere.sin_addr.s_addr = INADDR_BROADCAST;
    socket.sendCommand(everywhere);

    std::map<Mac, DeviceRecord> found;
    while (const auto answer = socket.receive(deadline)) {
        Mac mac{};
        std::copy_n(answer->begin() + headerSize + 0x0A, mac.size(), mac.begin());
        found.insert_or_assign(mac, toRecord(*answer, mac));
    }
    std::vector<DeviceRecord> devices;
    for (const auto &[mac, record] : found)
        devices.push_back(record);
    return devices;
}

} // namespace

ProducerIdentity WholeTimeoutSource::identity() const
{
    return {"WholeTimeoutGEV", "Palvento", "Whole Timeout", CORVIX_PRODUCER_VERSION, GenTL::TLTypeGEVName,
        "Producer that uses its whole timeout"};
}

std::vector<InterfaceRecord> WholeTimeoutSource::updateInterfaces()
{
    std::vector<InterfaceRecord> records;
    for (const InterfaceAddress &interface : interfaceAddresses()) {
        const std::string address = toText(interface.address);
        records.push_back({interface.name + "/" + address, "Network " + address, GenTL::TLTypeGEVName});
    }
    return records;
}

std::vector<DeviceRecord> WholeTimeoutSource::updateDevices(
    const std::string &interfaceId, std::chrono::milliseconds timeout)
{
    for (const InterfaceAddress &interface : interfaceAddresses()) {
        if (interface.name + "/" + toText(interface.address) == interfaceId)
            return search(interface, timeout);
    }
    return {};
}

std::unique_ptr<DeviceSource> createDeviceSource(const std::filesystem::path &)
{
    return std::make_unique<WholeTimeoutSource>();
}
