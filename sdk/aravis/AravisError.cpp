#include "sdk/aravis/AravisError.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace {

struct Translation
{
    int aravisCode;
    GenTL::GC_ERROR genTlCode;
};

// A code that is not in the table becomes GC_ERR_IO.
constexpr Translation translations[] = {
    {ARV_DEVICE_ERROR_TIMEOUT, GenTL::GC_ERR_TIMEOUT},
    {ARV_DEVICE_ERROR_NOT_FOUND, GenTL::GC_ERR_INVALID_ID},
    {ARV_DEVICE_ERROR_NOT_CONTROLLER, GenTL::GC_ERR_ACCESS_DENIED},
    {ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_PARAMETER, GenTL::GC_ERR_INVALID_VALUE},
    {ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS, GenTL::GC_ERR_INVALID_ADDRESS},
    {ARV_DEVICE_ERROR_PROTOCOL_ERROR_BAD_ALIGNMENT, GenTL::GC_ERR_INVALID_ADDRESS},
    {ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT, GenTL::GC_ERR_ACCESS_DENIED},
    {ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED, GenTL::GC_ERR_ACCESS_DENIED},
};

/// Returns true if libusb has refused access to the camera. libaravis reports that only in the text.
bool isRefusedByUsb(std::string_view text)
{
    return text.find("LIBUSB_ERROR_BUSY") != text.npos || text.find("LIBUSB_ERROR_ACCESS") != text.npos;
}

GenTL::GC_ERROR toGenTlCode(const GError &error)
{
    if (isRefusedByUsb(error.message))
        return GenTL::GC_ERR_ACCESS_DENIED;
    if (error.domain != ARV_DEVICE_ERROR)
        return GenTL::GC_ERR_IO;
    const auto found = std::find_if(std::begin(translations), std::end(translations),
        [&](const Translation &translation) { return translation.aravisCode == error.code; });
    return found == std::end(translations) ? GenTL::GC_ERR_IO : found->genTlCode;
}

} // namespace

bool AravisError::isDisconnected() const
{
    return m_error && m_error->domain == ARV_DEVICE_ERROR && m_error->code == ARV_DEVICE_ERROR_NOT_CONNECTED;
}

GenTlError AravisError::toGenTl(const std::string &action) const
{
    if (!m_error)
        return {GenTL::GC_ERR_IO, action + '.'};
    return {toGenTlCode(*m_error), action + ": " + m_error->message + '.'};
}
