#include "sdk/camerahost/RegisterDescription.h"

#include "sdk/camerahost/DescriptionArchive.h"
#include "sdk/camerahost/DescriptionText.h"
#include "sdk/camerahost/DescriptionUrl.h"
#include "sdk/camerahost/PortFileReader.h"
#include "sdk/text/Utf8.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace {

constexpr std::size_t maxTransferredSize = 16 << 20; // In bytes; real descriptions have at most some MiB.
constexpr std::size_t maxDescriptionSize = 64 << 20;
constexpr std::uint32_t maxUrls = 16;
constexpr std::size_t maxUrlListSize = 64 << 10;
constexpr std::size_t maxUrlInText = 200;

using Bytes = std::variant<std::string, DescriptionProblem>;

DescriptionProblem tooLarge(std::uint64_t size)
{
    return {"its size of " + std::to_string(size) + " bytes exceeds the limit of "
        + std::to_string(maxTransferredSize) + " bytes"};
}

Bytes readRegularFile(const std::filesystem::path &path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) // Opening a named pipe could block.
        return DescriptionProblem{"there is no file " + toPrintable(path.string())};
    const std::uint64_t size = std::filesystem::file_size(path, error);
    if (!error && size > maxTransferredSize)
        return tooLarge(size);
    std::string bytes(error ? 0 : size, '\0');
    std::ifstream file(path, std::ios::binary);
    if (error || !file.read(bytes.data(), static_cast<std::streamsize>(bytes.size())))
        return DescriptionProblem{"the file " + toPrintable(path.string()) + " cannot be read"};
    return bytes;
}

/// Fetches the description of one port.
class DescriptionFetcher
{
public:
    DescriptionFetcher(const DeviceLibrary &library, GenTL::PORT_HANDLE port,
        std::filesystem::path producerFolder, PortFileReader::TimePoint deadline)
        : m_library(library), m_port(port), m_producerFolder(std::move(producerFolder)), m_deadline(deadline)
    { }

    std::variant<std::string, RequestFailedReply> fetch()
    {
        std::string reasons;
        for (const std::string &url : urls()) {
            Bytes description = read(url);
            if (const auto *xml = std::get_if<std::string>(&description))
                return *xml;
            reasons += (reasons.empty() ? " " : "; ") + toPrintable(url.substr(0, maxUrlInText)) + ": "
                + std::get<DescriptionProblem>(description).text;
        }
        if (reasons.empty())
            reasons = m_problem ? ' ' + toText(*m_problem) : " the producer does not say where it is";
        return RequestFailedReply{
            DeviceFailure::Device, "The register description of the camera cannot be read:" + reasons + '.'};
    }

private:
    std::vector<std::string> urls()
    {
        std::vector<std::string> urls;
        std::uint32_t count = 0;
        if (m_library.GCGetNumPortURLs && m_library.GCGetPortURLInfo)
            m_problem = m_library.call("GCGetNumPortURLs", m_library.GCGetNumPortURLs, m_port, &count);
        if (m_problem)
            count = 0;
        for (std::uint32_t i = 0; i < std::min(count, maxUrls); ++i) {
            const auto query = [this, i](char *buffer, std::size_t *size) {
                GenTL::INFO_DATATYPE type = GenTL::INFO_DATATYPE_STRING;
                return m_library.GCGetPortURLInfo(m_port, i, GenTL::URL_INFO_URL, &type, buffer, size);
            };
            addStrings(urls, "GCGetPortURLInfo", query);
        }
        if (urls.empty() && m_library.GCGetPortURL) { // Producers before GenTL 1.1 have only this function.
            const auto query = [this](char *buffer, std::size_t *size) {
                return m_library.GCGetPortURL(m_port, buffer, size);
            };
            addStrings(urls, "GCGetPortURL", query);
        }
        return urls;
    }

    template <typename Query>
    void addStrings(std::vector<std::string> &urls, const char *call, const Query &query)
    {
        std::size_t size = 0;
        m_problem = m_library.call(call, query, static_cast<char *>(nullptr), &size);
        if (m_problem)
            return;
        std::string buffer(std::min(size, maxUrlListSize), '\0');
        size = buffer.size();
        m_problem = m_library.call(call, query, buffer.data(), &size);
        if (m_problem)
            return;
        buffer.resize(std::min(size, buffer.size()));
        for (std::string &url : splitStringList(buffer))
            urls.push_back(std::move(url));
        urls.resize(std::min<std::size_t>(urls.size(), maxUrls));
    }

    Bytes read(const std::string &text) const
    {
        const std::optional<DescriptionUrl> url = parseDescriptionUrl(text);
        if (!url)
            return DescriptionProblem{"this is not a valid URL"};
        Bytes bytes = readBytes(*url);
        if (std::holds_alternative<DescriptionProblem>(bytes))
            return bytes;
        if (isZipArchive(std::get<std::string>(bytes)))
            bytes = extractDescription(std::get<std::string>(bytes), maxDescriptionSize);
        if (auto *const description = std::get_if<std::string>(&bytes))
            return tidyDescription(std::move(*description));
        return bytes;
    }

    Bytes readBytes(const DescriptionUrl &url) const
    {
        switch (url.scheme) {
        case DescriptionUrl::Scheme::Local:
            if (url.length > maxTransferredSize)
                return tooLarge(url.length);
            return PortFileReader(m_library, m_port, m_deadline).read(url.address, url.length);
        case DescriptionUrl::Scheme::File:
            return readRegularFile(m_producerFolder / url.path); // An absolute path replaces the folder.
        case DescriptionUrl::Scheme::Http:
            return DescriptionProblem{"descriptions are not downloaded from the network"};
        case DescriptionUrl::Scheme::Unknown:
            break;
        }
        return DescriptionProblem{"the kind of this URL is unknown"};
    }

    const DeviceLibrary &m_library;
    const GenTL::PORT_HANDLE m_port;
    const std::filesystem::path m_producerFolder;
    const PortFileReader::TimePoint m_deadline;
    std::optional<Problem> m_problem; // Why the last call for URLs failed.
};

} // namespace

std::variant<std::string, RequestFailedReply> fetchRegisterDescription(const DeviceLibrary &library,
    GenTL::PORT_HANDLE port, const std::string &producerFile, std::chrono::milliseconds timeout)
{
    return DescriptionFetcher(library, port, std::filesystem::path(producerFile).parent_path(),
        std::chrono::steady_clock::now() + timeout)
        .fetch();
}
