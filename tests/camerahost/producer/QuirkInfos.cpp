#include "tests/camerahost/producer/QuirkInfos.h"

#include "tests/camerahost/producer/QuirkScript.h"

#include <map>

using namespace GenTL;

namespace {

Info size(std::size_t value)
{
    return {INFO_DATATYPE_SIZET, value, {}, GC_ERR_SUCCESS};
}

Info number(std::uint64_t value)
{
    return {INFO_DATATYPE_UINT64, value, {}, GC_ERR_SUCCESS};
}

Info integer(std::uint32_t value)
{
    return {INFO_DATATYPE_INT32, value, {}, GC_ERR_SUCCESS};
}

Info flag(bool value)
{
    return {INFO_DATATYPE_BOOL8, value, {}, GC_ERR_SUCCESS};
}

Info text(const std::string &value)
{
    return {INFO_DATATYPE_STRING, 0, value, GC_ERR_SUCCESS};
}

Info pointer(const void *value)
{
    return {INFO_DATATYPE_PTR, reinterpret_cast<std::uintptr_t>(value), {}, GC_ERR_SUCCESS};
}

/// Looks up a command in a table of functions, and calls the function with the subject.
template <typename Table, typename Subject>
Info lookUp(const Table &table, std::int32_t command, const Subject &subject)
{
    const auto found = table.find(command);
    return found == table.end() ? noInfo(GC_ERR_NOT_IMPLEMENTED) : found->second(subject);
}

template <typename Subject>
using Table = std::map<std::int32_t, Info (*)(const Subject &)>;

const Table<Stream> streamTable{
    {STREAM_INFO_ID, [](const Stream &) { return text("Stream0"); }},
    {STREAM_INFO_NUM_DELIVERED, [](const Stream &stream) { return number(stream.delivered); }},
    {STREAM_INFO_NUM_UNDERRUN, [](const Stream &stream) { return number(stream.underruns); }},
    {STREAM_INFO_NUM_ANNOUNCED, [](const Stream &stream) { return size(stream.announced()); }},
    {STREAM_INFO_NUM_QUEUED, [](const Stream &stream) { return size(stream.input.size()); }},
    {STREAM_INFO_NUM_AWAIT_DELIVERY, [](const Stream &stream) { return size(stream.output.size()); }},
    {STREAM_INFO_NUM_STARTED, [](const Stream &stream) { return number(stream.images); }},
    {STREAM_INFO_PAYLOAD_SIZE,
        [](const Stream &stream) { return size(stream.camera->layout().totalSize()); }},
    {STREAM_INFO_IS_GRABBING, [](const Stream &stream) { return flag(stream.isGrabbing); }},
    {STREAM_INFO_DEFINES_PAYLOADSIZE, [](const Stream &) { return flag(true); }},
    {STREAM_INFO_TLTYPE, [](const Stream &) { return text(QuirkScript::text("technology", "GEV")); }},
    {STREAM_INFO_NUM_CHUNKS_MAX, [](const Stream &) { return size(3); }},
    {STREAM_INFO_BUF_ANNOUNCE_MIN,
        [](const Stream &) { return size(QuirkScript::number("min-buffers", 2)); }},
    {STREAM_INFO_BUF_ALIGNMENT, [](const Stream &) { return size(QuirkScript::number("alignment", 1)); }},
};

const Table<Layout> pictureTable{
    {BUFFER_INFO_WIDTH, [](const Layout &layout) { return size(layout.width); }},
    {BUFFER_INFO_HEIGHT, [](const Layout &layout) { return size(layout.height); }},
    {BUFFER_INFO_DELIVERED_IMAGEHEIGHT, [](const Layout &layout) { return size(layout.height); }},
    {BUFFER_INFO_XOFFSET, [](const Layout &) { return size(2); }},
    {BUFFER_INFO_YOFFSET, [](const Layout &) { return size(4); }},
    {BUFFER_INFO_XPADDING, [](const Layout &layout) { return size(layout.linePadding); }},
    {BUFFER_INFO_YPADDING, [](const Layout &) { return size(0); }},
    {BUFFER_INFO_PIXELFORMAT, [](const Layout &layout) { return number(layout.pixelFormat); }},
    {BUFFER_INFO_PIXELFORMAT_NAMESPACE,
        [](const Layout &) { return number(PIXELFORMAT_NAMESPACE_PFNC_32BIT); }},
};

const Table<Buffer> bufferTable{
    {BUFFER_INFO_BASE, [](const Buffer &buffer) { return pointer(buffer.base); }},
    {BUFFER_INFO_SIZE, [](const Buffer &buffer) { return size(buffer.size); }},
    {BUFFER_INFO_USER_PTR, [](const Buffer &buffer) { return pointer(buffer.userPointer); }},
    {BUFFER_INFO_TIMESTAMP, [](const Buffer &buffer) { return number(buffer.timestamp / 1000); }}, // 1 MHz.
    {BUFFER_INFO_NEW_DATA, [](const Buffer &buffer) { return flag(buffer.isNew); }},
    {BUFFER_INFO_IS_QUEUED,
        [](const Buffer &buffer) { return flag(buffer.state != Buffer::State::Announced); }},
    {BUFFER_INFO_IS_ACQUIRING, [](const Buffer &) { return flag(false); }},
    {BUFFER_INFO_IS_INCOMPLETE, [](const Buffer &buffer) { return flag(buffer.isIncomplete); }},
    {BUFFER_INFO_TLTYPE, [](const Buffer &) { return text(QuirkScript::text("technology", "GEV")); }},
    {BUFFER_INFO_SIZE_FILLED, [](const Buffer &buffer) { return size(buffer.filled); }},
    {BUFFER_INFO_FRAMEID, [](const Buffer &buffer) { return number(buffer.frameId); }},
    {BUFFER_INFO_IMAGEPRESENT, [](const Buffer &) { return flag(true); }},
    {BUFFER_INFO_IMAGEOFFSET, [](const Buffer &buffer) { return size(buffer.layout.imageOffset); }},
    {BUFFER_INFO_PAYLOADTYPE,
        [](const Buffer &buffer) {
            return size(buffer.layout.parts > 0 ? PAYLOAD_TYPE_MULTI_PART : PAYLOAD_TYPE_IMAGE);
        }},
    {BUFFER_INFO_CHUNKLAYOUTID, [](const Buffer &) { return number(0); }},
    {BUFFER_INFO_PIXEL_ENDIANNESS, [](const Buffer &) { return integer(PIXELENDIANNESS_LITTLE); }},
    {BUFFER_INFO_DATA_SIZE, [](const Buffer &buffer) { return size(buffer.layout.totalSize()); }},
    {BUFFER_INFO_TIMESTAMP_NS, [](const Buffer &buffer) { return number(buffer.timestamp); }},
    {BUFFER_INFO_DATA_LARGER_THAN_BUFFER, [](const Buffer &buffer) { return flag(buffer.isTooSmall); }},
    {BUFFER_INFO_CONTAINS_CHUNKDATA, [](const Buffer &buffer) { return flag(buffer.layout.hasChunks); }},
};

} // namespace

Info interfaceInfo(INTERFACE_INFO_CMD command)
{
    static const Table<int> table{
        {INTERFACE_INFO_ID, [](const int &) { return text("net0"); }},
        {INTERFACE_INFO_DISPLAYNAME, [](const int &) { return text("Network"); }},
        {INTERFACE_INFO_TLTYPE, [](const int &) { return text("GEV"); }},
    };
    return lookUp(table, command, 0);
}

Info deviceInfo(const std::string &id, DEVICE_INFO_CMD command)
{
    static const Table<std::string> table{
        {DEVICE_INFO_ID, [](const std::string &name) { return text(name); }},
        {DEVICE_INFO_VENDOR, [](const std::string &) { return text("Vendor"); }},
        {DEVICE_INFO_MODEL, [](const std::string &) { return text("Model"); }},
        {DEVICE_INFO_TLTYPE, [](const std::string &) { return text("GEV"); }},
        {DEVICE_INFO_DISPLAYNAME, [](const std::string &name) { return text("Camera " + name); }},
        {DEVICE_INFO_ACCESS_STATUS,
            [](const std::string &) { return integer(DEVICE_ACCESS_STATUS_READWRITE); }},
        {DEVICE_INFO_SERIAL_NUMBER, [](const std::string &name) { return text("SN" + name); }},
        {DEVICE_INFO_TIMESTAMP_FREQUENCY, [](const std::string &) { return number(1'000'000); }},
    };
    return lookUp(table, command, id);
}

Info portInfo(PORT_INFO_CMD command)
{
    static const Table<int> table{
        {PORT_INFO_TLTYPE, [](const int &) { return text("GEV"); }},
        {PORT_INFO_MODULE, [](const int &) { return text(remoteDeviceModuleName); }},
        {PORT_INFO_LITTLE_ENDIAN, [](const int &) { return flag(true); }},
        {PORT_INFO_BIG_ENDIAN, [](const int &) { return flag(false); }},
        {PORT_INFO_PORTNAME, [](const int &) { return text("Device"); }},
    };
    return lookUp(table, command, 0);
}

Info streamInfo(const Stream &stream, STREAM_INFO_CMD command)
{
    return lookUp(streamTable, command, stream);
}

Info bufferInfo(const Buffer &buffer, BUFFER_INFO_CMD command)
{
    const bool describesPicture = pictureTable.count(command) > 0;
    if (describesPicture && buffer.layout.parts > 0)
        return noInfo(GC_ERR_NO_DATA);
    return describesPicture ? lookUp(pictureTable, command, buffer.layout)
                            : lookUp(bufferTable, command, buffer);
}

/// Returns the property of one part: the picture, or a small confidence map before it.
Info partInfo(const Buffer &buffer, std::uint32_t index, BUFFER_PART_INFO_CMD command)
{
    constexpr std::size_t confidenceMap = 9;
    const Layout &layout = buffer.layout;
    const bool isPicture = index + 1 == layout.parts;
    const std::map<std::int32_t, Info> table{
        {BUFFER_PART_INFO_BASE, pointer(buffer.base + (isPicture ? layout.imageOffset : 0))},
        {BUFFER_PART_INFO_DATA_SIZE, size(isPicture ? layout.imageSize() : layout.imageOffset)},
        {BUFFER_PART_INFO_DATA_TYPE, size(isPicture ? PART_DATATYPE_2D_IMAGE : confidenceMap)},
        {BUFFER_PART_INFO_DATA_FORMAT, number(layout.pixelFormat)},
        {BUFFER_PART_INFO_DATA_FORMAT_NAMESPACE, number(PIXELFORMAT_NAMESPACE_PFNC_32BIT)},
        {BUFFER_PART_INFO_WIDTH, size(isPicture ? layout.width : layout.imageOffset)},
        {BUFFER_PART_INFO_HEIGHT, size(isPicture ? layout.height : 1)},
        {BUFFER_PART_INFO_XPADDING, size(layout.linePadding)},
    };
    const auto found = table.find(command);
    return found == table.end() ? noInfo(GC_ERR_NOT_IMPLEMENTED) : found->second;
}
