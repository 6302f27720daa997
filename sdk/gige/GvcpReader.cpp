#include "sdk/gige/GvcpReader.h"

#include "sdk/gige/CameraData.h"
#include "sdk/gige/DiscoveryAcknowledgement.h"
#include "sdk/gige/RegisterWords.h"
#include "sdk/producer/OpenCamera.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <system_error>

namespace {

constexpr std::uint16_t readRegisterCommand = 0x0080;
constexpr std::uint16_t readMemoryCommand = 0x0084;
constexpr std::uint16_t pendingAnswer = 0x0089;
constexpr std::size_t headerSize = 8;
constexpr std::size_t maxBlockSize = 512; // Bytes of memory in one answer.

struct StatusMeaning
{
    std::uint16_t status;
    GenTL::GC_ERROR code;
    const char *text;
};

// Any other status is an input or output error.
constexpr StatusMeaning statusMeanings[] = {
    {0x8002, GenTL::GC_ERR_INVALID_VALUE, "the camera refuses a parameter"},
    {0x8003, GenTL::GC_ERR_INVALID_ADDRESS, "the address does not exist"},
    {0x8005, GenTL::GC_ERR_INVALID_ADDRESS, "the address is not aligned"},
    {0x8006, GenTL::GC_ERR_ACCESS_DENIED, "another program has exclusive access"},
};

GenTlError toError(std::uint16_t status)
{
    const auto found = std::find_if(std::begin(statusMeanings), std::end(statusMeanings),
        [status](const StatusMeaning &meaning) { return meaning.status == status; });
    const bool isKnown = found != std::end(statusMeanings);
    const std::string reason = isKnown ? found->text : "status " + std::to_string(status);
    return {isKnown ? found->code : GenTL::GC_ERR_IO, "The camera cannot be read: " + reason + '.'};
}

std::uint16_t number16(const std::uint8_t *bytes)
{
    return static_cast<std::uint16_t>(bytes[0] << 8 | bytes[1]);
}

template <typename Number>
void append(std::vector<std::uint8_t> &bytes, Number number)
{
    for (std::size_t index = sizeof number; index-- > 0;)
        bytes.push_back(static_cast<std::uint8_t>(number >> 8 * index));
}

sockaddr_in toSocketAddress(std::uint32_t address, std::uint16_t port)
{
    sockaddr_in result{};
    result.sin_family = AF_INET;
    result.sin_port = htons(port);
    result.sin_addr.s_addr = htonl(address);
    return result;
}

} // namespace

GvcpReader::GvcpReader(std::uint32_t interfaceAddress, std::uint32_t cameraAddress)
    : m_socket(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
{
    const sockaddr_in own = toSocketAddress(interfaceAddress, 0);
    const sockaddr_in camera = toSocketAddress(cameraAddress, cameraPort);
    const int number = m_socket.number();
    const bool isReady = number >= 0
        && bind(number, reinterpret_cast<const sockaddr *>(&own), sizeof own) == 0
        && connect(number, reinterpret_cast<const sockaddr *>(&camera), sizeof camera) == 0;
    if (!isReady)
        throw GenTlError(GenTL::GC_ERR_IO,
            "The camera at " + ipv4ToString(cameraAddress)
                + " cannot be reached: " + std::generic_category().message(errno) + '.');
}

void GvcpReader::read(std::uint64_t address, void *data, std::size_t size)
{
    const RegisterWords words = wordsAround(address, size);
    Bytes bytes(words.size);
    for (std::size_t done = 0; done < words.size; done += maxBlockSize) {
        const std::size_t blockSize = std::min(maxBlockSize, words.size - done);
        readBlock(static_cast<std::uint32_t>(words.start + done), bytes.data() + done, blockSize);
    }
    std::copy_n(
        bytes.begin() + static_cast<std::ptrdiff_t>(words.offset), size, static_cast<std::uint8_t *>(data));
}

std::uint32_t GvcpReader::readRegister(std::uint32_t address)
{
    std::uint32_t number = 0;
    read(address, &number, sizeof number);
    return ntohl(number);
}

void GvcpReader::readBlock(std::uint32_t address, std::uint8_t *data, std::size_t size)
{
    Bytes parameters;
    append(parameters, address);
    Bytes answer;
    if (size == registerSize) {
        answer = request(readRegisterCommand, parameters);
    } else {
        append(parameters, static_cast<std::uint32_t>(size));
        answer = request(readMemoryCommand, parameters);
    }
    if (answer.size() < size)
        throw GenTlError(GenTL::GC_ERR_IO, "The answer of the camera is too short.");
    std::copy(answer.end() - static_cast<std::ptrdiff_t>(size), answer.end(), data);
}

/// Sends a command until the camera answers. Returns the data of the answer.
GvcpReader::Bytes GvcpReader::request(std::uint16_t command, const Bytes &parameters)
{
    constexpr std::uint16_t wantsAnswer = 0x4201; // The first two bytes of a command.
    m_requestId = static_cast<std::uint16_t>(m_requestId == 0xFFFF ? 1 : m_requestId + 1);
    Bytes datagram;
    append(datagram, wantsAnswer);
    append(datagram, command);
    append(datagram, static_cast<std::uint16_t>(parameters.size()));
    append(datagram, m_requestId);
    datagram.insert(datagram.end(), parameters.begin(), parameters.end());

    for (int attempt = 0; attempt < maxAttempts; ++attempt) {
        // A failure is not looked at: the camera does not answer then.
        [[maybe_unused]] const auto sent
            = send(m_socket.number(), datagram.data(), datagram.size(), MSG_NOSIGNAL);
        if (auto answer = awaitAnswer(command))
            return *answer;
    }
    throw GenTlError(GenTL::GC_ERR_TIMEOUT, "The camera does not answer.");
}

std::optional<GvcpReader::Bytes> GvcpReader::awaitAnswer(std::uint16_t command)
{
    const Time lastDeadline = std::chrono::steady_clock::now() + maxDelay;
    Time deadline = std::chrono::steady_clock::now() + answerTimeout;
    while (auto answer = receive(deadline)) {
        const bool isAnswer = answer->size() >= headerSize && number16(answer->data() + 6) == m_requestId;
        if (!isAnswer)
            continue;
        const std::uint16_t code = number16(answer->data() + 2);
        if (code == pendingAnswer && answer->size() >= headerSize + 4) {
            const std::chrono::milliseconds delay(number16(answer->data() + headerSize + 2));
            deadline = std::min(lastDeadline, std::chrono::steady_clock::now() + delay + answerTimeout);
        }
        if (code != command + 1)
            continue;
        if (const std::uint16_t status = number16(answer->data()); status != 0)
            throw toError(status);
        return Bytes(answer->begin() + headerSize, answer->end());
    }
    return std::nullopt;
}

/// Returns the next datagram. Returns nothing if there is none until the deadline.
std::optional<GvcpReader::Bytes> GvcpReader::receive(Time deadline) const
{
    for (;;) {
        const auto remaining
            = std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        pollfd waiting{m_socket.number(), POLLIN, 0};
        if (poll(&waiting, 1, static_cast<int>(std::max<std::int64_t>(0, remaining.count()))) == 0)
            return std::nullopt;
        Bytes datagram(headerSize + registerSize + maxBlockSize);
        const ssize_t size = recv(m_socket.number(), datagram.data(), datagram.size(), 0);
        if (size < 0)
            continue; // For example, the machine has rejected the command while the camera's program
                      // restarts.
        datagram.resize(static_cast<std::size_t>(size));
        return datagram;
    }
}
