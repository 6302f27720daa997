#include "sdk/producer/ModulePort.h"

#include "sdk/producer/ModuleDescription.h"
#include "sdk/producer/OpenCamera.h"

#include <algorithm>
#include <cstring>
#include <utility>

using namespace GenTL;

namespace {

constexpr std::uint64_t xmlAddress = 0x1000000;

std::string littleEndianBytes(std::uint64_t number)
{
    std::string bytes;
    for (unsigned shift = 0; shift < 64; shift += 8)
        bytes += static_cast<char>(number >> shift);
    return bytes;
}

/// Returns all bytes of the feature's register.
std::string registerBytes(const ModuleFeature &feature)
{
    if (!feature.readText)
        return littleEndianBytes(feature.readNumber());
    std::string bytes = feature.readText();
    bytes.resize(registerSize(feature));
    bytes.back() = '\0';
    return bytes;
}

/// Copies a part of the content of an address range. Throws if the range does not contain the part.
void copyPart(const std::string &content, std::uint64_t offset, void *data, std::size_t size)
{
    if (offset > content.size() || size > content.size() - offset)
        throw GenTlError(GC_ERR_INVALID_ADDRESS, "The module has no register at this address.");
    std::memcpy(data, content.data() + offset, size);
}

std::string hexadecimal(std::uint64_t number)
{
    char text[32];
    std::snprintf(text, sizeof text, "%llX", static_cast<unsigned long long>(number));
    return text;
}

} // namespace

ModulePort::ModulePort(PortDescription description, std::vector<ModuleFeature> features)
    : m_description(std::move(description)), m_features(std::move(features))
{ }

std::vector<PortUrl> ModulePort::urls() const
{
    PortUrl url = PortUrl::parse("Local:" + m_description.module + ".xml;" + hexadecimal(xmlAddress) + ";"
        + hexadecimal(xml().size()));
    url.schemaVersion = moduleSchemaVersion;
    url.fileVersion = moduleFileVersion;
    return {url};
}

void ModulePort::read(std::uint64_t address, void *data, std::size_t size)
{
    if (address >= xmlAddress)
        return copyPart(xml(), address - xmlAddress, data, size);
    const std::optional<RegisterPlace> place = findRegister(address, m_features.size());
    copyPart(place ? registerBytes(m_features[place->index]) : std::string(), place ? place->offset : 0, data,
        size);
}

void ModulePort::write(std::uint64_t address, const void *data, std::size_t size)
{
    const std::optional<RegisterPlace> place = findRegister(address, m_features.size());
    if (!place || place->offset != 0 || size != registerSize(m_features[place->index]))
        throw GenTlError(GC_ERR_INVALID_ADDRESS, "The module has no register at this address.");
    const ModuleFeature &feature = m_features[place->index];
    if (!feature.write)
        throw GenTlError(GC_ERR_ACCESS_DENIED, "\"" + feature.name + "\" cannot be written.");
    const auto *const bytes = static_cast<const unsigned char *>(data);
    std::uint64_t number = 0;
    for (std::size_t i = size; i-- > 0;)
        number = number << 8U | bytes[i];
    feature.write(number);
}

const std::string &ModulePort::xml() const
{
    std::call_once(m_hasXml, [this] { m_xml = describeModule(m_description, m_features); });
    return m_xml;
}
