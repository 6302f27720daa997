#include "sdk/imagefile/RawRecording.h"

#include "sdk/imagefile/SampleConverter.h"
#include "sdk/imagefile/Sidecar.h"

namespace {

constexpr char indexHeader[] = "frameId,timestamp,time,offset,size,isComplete,width,height,offsetX,offsetY,"
                               "paddingX,pixelFormat,pixelFormatName,isBigEndian\n";

std::string indexLine(const CvxCPP::Image &image, std::uint64_t offset)
{
    const CvxCPP::ImageInfo &info = image.GetInfo();
    std::string line = std::to_string(info.frameId) + "," + std::to_string(info.timestamp) + ","
        + utcTime(info.receivedAt);
    const std::uint64_t numbers[] = {offset, image.GetSize(), info.isComplete, info.width, info.height,
        info.offsetX, info.offsetY, info.paddingX, info.pixelFormat};
    for (const std::uint64_t number : numbers)
        line += "," + std::to_string(number);
    return line + "," + pixelFormatName(info.pixelFormat) + (info.isBigEndian ? ",1\n" : ",0\n");
}

} // namespace

RawRecording::RawRecording(const std::string &path) : m_hasIndex(!isSpecialFile(path))
{
    if (m_data.create(path) && m_hasIndex && m_index.create(path + ".csv"))
        appendToIndex(indexHeader);
}

bool RawRecording::append(const CvxCPP::Image &image)
{
    const std::uint64_t offset = m_data.size();
    if (m_data.append(image.GetData(), image.GetSize()) && appendToIndex(indexLine(image, offset)))
        return true;
    m_data.truncate(offset);
    return false;
}

bool RawRecording::appendToIndex(const std::string &line)
{
    if (!m_hasIndex)
        return true;
    const std::uint64_t size = m_index.size();
    if (m_index.append(line.data(), line.size()))
        return true;
    m_index.truncate(size);
    return false;
}

bool RawRecording::finish()
{
    const bool isDataWritten = m_data.publish();
    return (!m_hasIndex || m_index.publish()) && isDataWritten;
}

std::string RawRecording::problem() const
{
    return m_data.problem().empty() ? m_index.problem() : m_data.problem();
}
