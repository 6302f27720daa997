#include "sdk/gige/GvcpReader.h"

#include "sdk/gige/RegisterWords.h"
#include "sdk/gvcp/CameraData.h"
#include "sdk/producer/OpenCamera.h"

#include <algorithm>
#include <iterator>
#include <netinet/in.h>
#include <system_error>

namespace {

constexpr std::uint16_t readMemoryCommand = 0x0084;

struct StatusCode
{
    std::uint16_t status;
    GenTL::GC_ERROR code;
};

// Any other status is an input or output error.
constexpr StatusCode statusCodes[] = {
    {ControlAnswer::invalidParameter, GenTL::GC_ERR_INVALID_VALUE},
    {ControlAnswer::invalidAddress, GenTL::GC_ERR_INVALID_ADDRESS},
    {ControlAnswer::badAlignment, GenTL::GC_ERR_INVALID_ADDRESS},
    {ControlAnswer::accessDenied, GenTL::GC_ERR_ACCESS_DENIED},
};

GenTlError toError(std::uint16_t status)
{
    const auto found = std::find_if(std::begin(statusCodes), std::end(statusCodes),
        [status](const StatusCode &entry) { return entry.status == status; });
    const bool isKnown = found != std::end(statusCodes);
    return {
        isKnown ? found->code : GenTL::GC_ERR_IO, "The camera cannot be read: " + statusText(status) + '.'};
}

ControlConnection connectionTo(std::uint32_t interfaceAddress, std::uint32_t cameraAddress)
{
    try {
        return {interfaceAddress, cameraAddress};
    } catch (const std::system_error &error) {
        throw GenTlError(GenTL::GC_ERR_IO,
            "The camera at " + ipv4ToString(cameraAddress) + " cannot be reached: " + error.code().message()
                + '.');
    }
}

} // namespace

GvcpReader::GvcpReader(std::uint32_t interfaceAddress, std::uint32_t cameraAddress)
    : m_connection(connectionTo(interfaceAddress, cameraAddress))
{ }

void GvcpReader::read(std::uint64_t address, void *data, std::size_t size)
{
    constexpr std::size_t maxBlockSize = ControlConnection::maxBlockSize;
    const RegisterWords words = wordsAround(address, size);
    MessageBytes bytes(words.size);
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
    std::optional<ControlAnswer> answer;
    if (size == registerSize) {
        answer = m_connection.requestRegister(address);
    } else {
        MessageBytes parameters;
        appendNumber(parameters, address);
        appendNumber(parameters, static_cast<std::uint32_t>(size));
        answer = m_connection.request(readMemoryCommand, parameters);
    }
    if (!answer)
        throw GenTlError(GenTL::GC_ERR_TIMEOUT, "The camera does not answer.");
    if (!answer->isSuccess())
        throw toError(answer->status);
    const MessageBytes &bytes = answer->data;
    if (bytes.size() < size)
        throw GenTlError(GenTL::GC_ERR_IO, "The answer of the camera is too short.");
    std::copy(bytes.end() - static_cast<std::ptrdiff_t>(size), bytes.end(), data);
}
