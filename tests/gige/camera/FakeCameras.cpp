#include "tests/gige/camera/FakeCameras.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <string_view>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr std::uint16_t port = 3956;
constexpr std::size_t headerSize = 8;

void require(bool isGood, const char *what)
{
    if (!isGood)
        throw std::system_error(errno, std::generic_category(), what);
}

int openedSocket(const std::string &interfaceName)
{
    const int descriptor = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    require(descriptor >= 0, "socket");
    const int on = 1;
    sockaddr_in any{};
    any.sin_family = AF_INET;
    any.sin_port = htons(port);
    // SO_REUSEADDR allows several processes on one interface: each of them receives the broadcasts.
    require(setsockopt(descriptor, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on) == 0
            && setsockopt(descriptor, IPPROTO_IP, IP_PKTINFO, &on, sizeof on) == 0
            && setsockopt(descriptor, SOL_SOCKET, SO_BINDTODEVICE, interfaceName.c_str(),
                   socklen_t(interfaceName.size()))
                == 0
            && bind(descriptor, reinterpret_cast<const sockaddr *>(&any), sizeof any) == 0,
        interfaceName.c_str());
    return descriptor;
}

using Acknowledgement = std::array<std::uint8_t, 256>;

/// Writes a text into the registers that follow the header. A text that fills its field has no NUL at its
/// end.
void writeText(Acknowledgement &bytes, std::size_t offset, std::size_t maxSize, std::string_view text)
{
    std::copy_n(text.data(), std::min(maxSize, text.size()), bytes.begin() + headerSize + offset);
}

void writeNumber(Acknowledgement &bytes, std::size_t offset, std::uint32_t number)
{
    number = htonl(number);
    std::memcpy(bytes.data() + headerSize + offset, &number, sizeof number);
}

std::string numbered(const std::string &prefix, unsigned index)
{
    const std::string digits = std::to_string(index + 1);
    return prefix + std::string(4 - std::min<std::size_t>(4, digits.size()), '0') + digits;
}

/// Returns an acknowledgement with a request ID of 0.
Acknowledgement acknowledgementOf(const Options &options, unsigned index)
{
    Acknowledgement bytes{};
    bytes[3] = 0x03; // The code of a discovery acknowledgement.
    bytes[5] = 0xF8; // The size of the registers.
    writeNumber(bytes, 0x00, 1 << 16 | 2); // The version of the protocol.
    writeNumber(bytes, 0x04, 0x80000001); // Big endian, UTF-8.
    std::copy(options.macPrefix.begin(), options.macPrefix.end(), bytes.begin() + headerSize + 0x0A);
    writeNumber(bytes, 0x0D, (index + 1) << 8); // The last three bytes of the MAC address.
    writeNumber(bytes, 0x10, 7); // Every way to get an IP address is supported,
    writeNumber(bytes, 0x14, 5); // and the address is persistent.
    writeNumber(bytes, 0x24, options.firstAddress + index);
    writeNumber(bytes, 0x34, 0xFFFFFF00);
    writeText(bytes, 0x48, 32, options.vendor);
    writeText(bytes, 0x68, 32, options.model);
    writeText(bytes, 0x88, 32, "1.0");
    if (options.hasSerial)
        writeText(bytes, 0xD8, 16, numbered(options.serialPrefix, index));
    return bytes;
}

/// A datagram with room for the information about its destination.
struct Packet
{
    std::array<std::uint8_t, 576> data{};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(in_pktinfo))> control{};
    sockaddr_in peer{};
    iovec vector{data.data(), data.size()};
    msghdr header{&peer, sizeof peer, &vector, 1, control.data(), control.size(), 0};
};

bool isDiscoveryCommand(const Packet &packet, ssize_t size)
{
    const auto &data = packet.data;
    const bool wantsAnswer = (data[1] & 0x01) != 0;
    return size == ssize_t(headerSize) && data[0] == 0x42 && wantsAnswer && data[2] == 0x00
        && data[3] == 0x02;
}

/// Returns the address that the packet was sent to, or nothing if the packet is a broadcast.
std::optional<std::uint32_t> unicastDestination(Packet &packet)
{
    const cmsghdr *const header = CMSG_FIRSTHDR(&packet.header);
    if (!header || header->cmsg_level != IPPROTO_IP || header->cmsg_type != IP_PKTINFO)
        return std::nullopt;
    in_pktinfo info{};
    std::memcpy(&info, CMSG_DATA(header), sizeof info);
    const bool isBroadcast = info.ipi_addr.s_addr != info.ipi_spec_dst.s_addr;
    return isBroadcast ? std::nullopt : std::optional(ntohl(info.ipi_addr.s_addr));
}

} // namespace

FakeCameras::FakeCameras(const Options &options)
    : m_options(options), m_random(options.seed), m_socket(openedSocket(options.interfaceName))
{
    for (unsigned index = 0; index < options.count; ++index)
        m_acknowledgements.push_back(acknowledgementOf(options, index));
}

FakeCameras::~FakeCameras()
{
    close(m_socket);
}

void FakeCameras::run()
{
    for (;;) {
        pollfd waiting{m_socket, POLLIN, 0};
        const int ready = poll(&waiting, 1, millisecondsToNextAnswer());
        require(ready >= 0, "poll");
        if (ready > 0)
            receiveCommand();
        sendDueAnswers();
    }
}

int FakeCameras::millisecondsToNextAnswer() const
{
    if (m_answers.empty())
        return -1;
    const auto remaining = std::max(m_answers.begin()->first - Clock::now(), Clock::duration::zero());
    return int(std::chrono::ceil<std::chrono::milliseconds>(remaining).count());
}

void FakeCameras::sendDueAnswers()
{
    while (!m_answers.empty() && m_answers.begin()->first <= Clock::now()) {
        send(m_answers.begin()->second);
        m_answers.erase(m_answers.begin());
    }
}

void FakeCameras::receiveCommand()
{
    Packet packet;
    const ssize_t size = recvmsg(m_socket, &packet.header, MSG_DONTWAIT);
    if (!isDiscoveryCommand(packet, size))
        return; // Includes a failed call: the interface may be down at the moment.
    const auto destination = unicastDestination(packet);
    for (unsigned index = 0; index < m_options.count; ++index) {
        if (!destination || *destination == m_options.firstAddress + index)
            schedule({index, packet.peer, {packet.data[6], packet.data[7]}});
    }
}

void FakeCameras::schedule(const Answer &answer)
{
    const std::chrono::milliseconds delay(
        std::uniform_int_distribution(m_options.minDelay, m_options.maxDelay)(m_random));
    const bool isLost = std::uniform_real_distribution(0.0, 100.0)(m_random) < m_options.lossPercent;
    if (!isLost)
        m_answers.emplace(Clock::now() + delay, answer);
}

void FakeCameras::send(const Answer &answer)
{
    Packet packet;
    const Acknowledgement &acknowledgement = m_acknowledgements[answer.camera];
    std::copy(acknowledgement.begin(), acknowledgement.end(), packet.data.begin());
    std::copy(answer.requestId.begin(), answer.requestId.end(), packet.data.begin() + 6);
    packet.vector.iov_len = acknowledgement.size();
    packet.peer = answer.to;

    cmsghdr *const header = CMSG_FIRSTHDR(&packet.header);
    header->cmsg_level = IPPROTO_IP;
    header->cmsg_type = IP_PKTINFO;
    header->cmsg_len = CMSG_LEN(sizeof(in_pktinfo));
    in_pktinfo info{};
    info.ipi_spec_dst.s_addr = htonl(m_options.firstAddress + answer.camera);
    std::memcpy(CMSG_DATA(header), &info, sizeof info);
    if (sendmsg(m_socket, &packet.header, 0) >= 0)
        return;
    // The interface does not have the camera's address, so the answer comes from the interface's own address.
    packet.header.msg_control = nullptr;
    packet.header.msg_controllen = 0;
    [[maybe_unused]] const ssize_t sent = sendmsg(m_socket, &packet.header, 0); // UDP may lose it anyway.
}
