#include "tests/camerahost/HostClient.h"

#include "tests/sdk/support/Waiting.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <new>
#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int maxWait = 30'000; // Milliseconds; longer than any deadline of a host.

/// Creates memory that cannot change its size any more, maps it, and stores its descriptor.
void *createMemory(std::size_t size, int &descriptor)
{
    descriptor = memfd_create("test", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    EXPECT_EQ(ftruncate(descriptor, static_cast<off_t>(size)), 0);
    EXPECT_EQ(fcntl(descriptor, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL), 0);
    return mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
}

} // namespace

HostClient::HostClient(const std::string &ctiPath)
{
    auto result = m_process.start(CVX_CAMERA_HOST, ctiPath);
    EXPECT_EQ(result.failure, "");
    m_channel = std::move(result.channel);
}

HostClient::~HostClient()
{
    m_channel.close();
    m_process.kill();
    EXPECT_TRUE(waitForEnd());
    releaseMemory();
}

void HostClient::releaseMemory()
{
    if (m_ring)
        munmap(m_ring, sizeof(StreamRing));
    if (m_pixels)
        munmap(const_cast<std::uint8_t *>(m_pixels), m_pixelBytes);
}

std::optional<Message> HostClient::receive()
{
    std::string line;
    for (;;) {
        const auto status = m_channel.tryReadLine(line);
        if (status == LineChannel::Status::Line)
            return Message::fromLine(line);
        pollfd end{m_channel.descriptor(), POLLIN, 0};
        if (status != LineChannel::Status::Pending || poll(&end, 1, maxWait) == 0)
            return std::nullopt;
    }
}

std::optional<Message> HostClient::exchange(const Message &request, const std::vector<int> &descriptors)
{
    failure = {};
    if (descriptors.empty())
        m_channel.send(request.toLine());
    else
        m_channel.send(request.toLine(), descriptors);
    while (auto message = receive()) {
        if (const auto lost = message->content<DeviceLostNotice>())
            m_loss = lost->reason;
        if (const auto changed = message->content<NodesChangedNotice>())
            changedNodes.insert(changed->names.begin(), changed->names.end());
        if (message->id() != request.id())
            continue;
        if (auto failed = message->content<RequestFailedReply>())
            failure = *failed;
        return message;
    }
    failure.text = "the connection has ended";
    return std::nullopt;
}

bool HostClient::open(CvxCPP::CvxAccess access, const std::string &camera)
{
    auto reply = ask<DeviceOpenedReply>(OpenDeviceRequest{"net0", camera, access});
    if (reply)
        nodes = std::move(reply->nodes);
    return reply.has_value();
}

CvxCPP::NodeValue HostClient::read(const std::string &name)
{
    const auto reply = ask<NodeValueReply>(ReadValueRequest{name});
    return reply ? reply->value : CvxCPP::NodeValue();
}

bool HostClient::write(const std::string &name, const CvxCPP::NodeValue &value)
{
    return ask<NodeValueReply>(WriteValueRequest{name, value}).has_value();
}

bool HostClient::prepareStream(std::uint32_t buffers)
{
    const auto reply = ask<StreamPreparedReply>(PrepareStreamRequest{buffers});
    if (reply)
        prepared = *reply;
    return reply.has_value();
}

bool HostClient::startStream(bool isOnlyNewest)
{
    releaseMemory();
    int pixels = -1;
    int ring = -1;
    m_pixelBytes = prepared.buffers * prepared.bufferSize;
    m_pixels = static_cast<const std::uint8_t *>(createMemory(m_pixelBytes, pixels));
    m_ring = new (createMemory(sizeof(StreamRing), ring)) StreamRing;
    const StartStreamRequest request{prepared.buffers, prepared.bufferSize, isOnlyNewest};
    const bool isStarted = ask<StreamStartedReply>(request, {pixels, ring}).has_value();
    ::close(pixels);
    ::close(ring);
    return isStarted;
}

std::optional<ReceivedImage> HostClient::nextImage(std::chrono::milliseconds timeout)
{
    std::optional<std::uint32_t> buffer;
    waitUntil([&] { return m_isDisconnected || (buffer = m_ring->pop()).has_value(); }, timeout);
    if (!buffer)
        return std::nullopt;
    const std::uint8_t *start = m_pixels + *buffer * prepared.bufferSize;
    ReceivedImage image{m_ring->record(*buffer), {start, start + prepared.bufferSize}, {}};
    const ImageRecord &record = image.record;
    const bool isInside = record.imageOffset <= prepared.bufferSize
        && record.imageSize <= prepared.bufferSize - record.imageOffset;
    EXPECT_TRUE(isInside) << record.imageOffset << " + " << record.imageSize;
    if (isInside)
        image.picture.assign(start + record.imageOffset, start + record.imageOffset + record.imageSize);
    m_ring->release(*buffer);
    return image;
}

void HostClient::disconnect()
{
    m_isDisconnected = true;
    shutdown(m_channel.descriptor(), SHUT_RDWR);
}

std::optional<std::string> HostClient::waitForLoss()
{
    while (!m_loss) {
        const auto message = receive();
        if (!message)
            break;
        if (const auto lost = message->content<DeviceLostNotice>())
            m_loss = lost->reason;
    }
    return m_loss;
}

std::optional<int> HostClient::waitForEnd()
{
    std::optional<int> status;
    waitUntil([&] { return !m_process.isStarted() || (status = m_process.tryReap()).has_value(); });
    return m_process.isStarted() ? std::nullopt : status ? status : std::optional<int>(0);
}
