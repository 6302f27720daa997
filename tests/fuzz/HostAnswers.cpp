// What a producer host sends, as the library reads it. The first byte decides in how many portions it
// arrives.

#include "sdk/cvxcpp/CameraCatalogue.h"
#include "sdk/cvxcpp/ProducerClient.h"
#include "sdk/cvxcpp/Utf8.h"
#include "sdk/protocol/DiscoveryMessages.h"
#include "tests/fuzz/FuzzTarget.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <sys/socket.h>
#include <unistd.h>
#include <variant>

namespace {

constexpr std::size_t maxLength = 4096; // Bytes; the real limit is out of a fuzzer's reach.

/// The source of interfaces that nobody searches here.
class NoSource final : public InterfaceSource
{
public:
    RunningFlag runningFlag() const override { return std::make_shared<const std::atomic<bool>>(true); }
    SearchResult searchInterface(std::size_t, const std::string &) override
    {
        return {CvxCPP::CvxErrorNotFound, nullptr};
    }
};

/// Two producers report the same cameras, one list after the other.
class Catalogue
{
public:
    Catalogue()
    {
        for (const char *path : {"a.cti", "b.cti"})
            m_catalogue.addProducer(m_source, path);
        require(m_catalogue.handOut().empty(), "a new catalogue is empty");
    }

    void replace(const CameraListReply &reply)
    {
        m_catalogue.replaceInterfaces(0, reply.interfaces);
        m_catalogue.replaceInterfaces(1, reply.interfaces);
        require(!m_catalogue.replaceInterfaces(1, reply.interfaces), "an equal list changes nothing");
        const std::size_t before = m_count;
        m_count = m_catalogue.handOut().size();
        require(m_count <= 2 * CameraList::maxCameras, "the number of cameras is limited");
        const CameraListChange change = m_catalogue.takeChange();
        require(before + change.addedCameras.size() == m_count + change.removedCameras.size(),
            "the change is the difference of the lists");
        const CameraListChange none = m_catalogue.takeChange();
        require(none.addedCameras.empty() && none.removedCameras.empty(), "a change is reported once");
    }

private:
    const std::shared_ptr<NoSource> m_source = std::make_shared<NoSource>();
    CameraCatalogue m_catalogue;
    std::size_t m_count = 0;
};

void requireValidText(const CameraListReply &reply)
{
    for (const InterfaceRecord &interface : reply.interfaces) {
        require(toValidUtf8(interface.id) == interface.id, "a string is valid UTF-8");
        for (const DeviceRecord &device : interface.devices)
            require(toValidUtf8(device.model) == device.model, "a string is valid UTF-8");
    }
}

/// Reads what has arrived. Returns false if the host would be given up.
bool receive(ProducerClient &client, Catalogue &catalogue)
{
    const auto received = client.receive();
    const auto *message = std::get_if<Message>(&received);
    if (!message)
        return std::holds_alternative<ProducerClient::Nothing>(received);
    require(!client.isWaiting(), "a reply answers the request");
    const auto reply = message->content<CameraListReply>();
    if (!reply)
        return false;
    requireValidText(*reply);
    catalogue.replace(*reply);
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    std::array<int, 2> ends{};
    require(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) == 0, "there is a socket");
    ProducerClient client(std::chrono::seconds(3), std::chrono::seconds(10));
    client.connect(LineChannel(ends[0], maxLength));
    Catalogue catalogue;
    const std::string sent = textOf(data + 1, size - 1);
    const std::size_t portion = sent.size() / (1U + data[0] % 8U) + 1;
    bool isUsable = true;
    for (std::size_t at = 0; isUsable && at < sent.size(); at += portion) {
        if (!client.isWaiting())
            client.send(ListCamerasRequest(), TimePoint());
        const std::size_t count = std::min(portion, sent.size() - at);
        require(::send(ends[1], sent.data() + at, count, MSG_NOSIGNAL) == static_cast<ssize_t>(count),
            "the socket takes a portion");
        isUsable = receive(client, catalogue);
    }
    close(ends[1]);
    return 0;
}
