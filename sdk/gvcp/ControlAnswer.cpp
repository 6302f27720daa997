#include "sdk/gvcp/ControlAnswer.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace {

struct StatusMeaning
{
    std::uint16_t status;
    const char *text;
};

constexpr StatusMeaning statusMeanings[] = {
    {ControlAnswer::notImplemented, "the camera does not know the command"},
    {ControlAnswer::invalidParameter, "the camera refuses a parameter"},
    {ControlAnswer::invalidAddress, "the camera does not have the register"},
    {ControlAnswer::writeProtected, "the camera does not permit the register to be written"},
    {ControlAnswer::badAlignment, "the address of the register is not aligned"},
    {ControlAnswer::accessDenied, "another program controls the camera"},
    {ControlAnswer::busy, "the camera is busy"},
};

} // namespace

std::string statusText(std::uint16_t status)
{
    const auto found = std::find_if(std::begin(statusMeanings), std::end(statusMeanings),
        [status](const StatusMeaning &meaning) { return meaning.status == status; });
    if (found != std::end(statusMeanings))
        return found->text;
    char text[sizeof "the camera reports the status 0x0000"];
    std::snprintf(text, sizeof text, "the camera reports the status 0x%04X", static_cast<unsigned>(status));
    return text;
}

std::optional<ParsedAnswer> parseAnswer(const MessageBytes &datagram)
{
    if (datagram.size() < messageHeaderSize)
        return std::nullopt;
    ParsedAnswer result;
    result.answer.status = read16(datagram.data());
    result.code = read16(datagram.data() + 2);
    result.requestId = read16(datagram.data() + 6);
    result.answer.data.assign(datagram.begin() + messageHeaderSize, datagram.end());
    return result;
}
