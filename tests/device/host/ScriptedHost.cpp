/// Takes the place of CvxCameraHost in tests and follows a script. The argument is the path of a producer;
/// the script has this path with the suffix ".script", and the received requests are written to a file with
/// the suffix ".log". The script is read again for every request. Its lines:
///
///   <request> [name] fail <failure> <text>   replies that the request has failed
///   <request> [name] hang                    does not reply
///   <request> [name] die                     kills this process
///   <request> [name] garbage                 replies with a line that is no message
///   <request> [name] endless                 replies with a line that is too long
///   <request> [name] wrongId                 replies with another ID
///   <request> [name] wrongKind               replies with another kind of message
///   do <action> [arguments]                  what the command "Do" does; see act()
///   buffers <count> and bufferSize <bytes>   what the reply to "prepareStream" contains
///
/// <request> is the kind of the message. If there is a [name], the line applies to requests for this node.

#include "sdk/device/NodeText.h"
#include "sdk/protocol/HostContract.h"
#include "sdk/protocol/LineChannel.h"
#include "sdk/protocol/Message.h"
#include "tests/device/host/ScriptedCamera.h"
#include "tests/device/host/ScriptedStream.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <map>
#include <poll.h>
#include <sstream>
#include <unistd.h>

using namespace CvxCPP;

namespace {

using Words = std::vector<std::string>;

class Host
{
public:
    explicit Host(std::string path) : m_path(std::move(path)), m_channel(hostSocketDescriptor)
    {
        m_channel.acceptDescriptors();
    }

    int run()
    {
        std::string line;
        while (receive(line)) {
            const auto message = Message::fromLine(line);
            if (!message)
                return EXIT_FAILURE;
            m_id = message->id();
            if (!handle(*message))
                return EXIT_SUCCESS;
        }
        return EXIT_SUCCESS;
    }

private:
    bool receive(std::string &line)
    {
        for (;;) {
            const auto status = m_channel.tryReadLine(line);
            if (status != LineChannel::Status::Pending)
                return status == LineChannel::Status::Line;
            pollfd poll{m_channel.descriptor(), POLLIN, 0};
            ::poll(&poll, 1, -1);
        }
    }

    /// Returns false if the host has to exit.
    bool handle(const Message &message)
    {
        if (const auto request = message.content<OpenDeviceRequest>()) {
            log("openDevice " + request->interfaceId + ' ' + request->deviceId + ' '
                + std::to_string(request->access));
            if (misbehaves("openDevice"))
                return false; // Like a host that cannot open its camera.
            reply(DeviceOpenedReply{m_camera.nodes()});
        } else if (const auto states = message.content<ReadStatesRequest>()) {
            log("readStates");
            if (!misbehaves("readStates"))
                readStates(*states);
        } else if (const auto read = message.content<ReadValueRequest>()) {
            log("readValue " + read->name);
            if (!misbehaves("readValue", read->name))
                reply(NodeValueReply{m_camera.read(read->name).value_or(NodeValue())});
        } else if (const auto write = message.content<WriteValueRequest>()) {
            log("writeValue " + write->name + ' ' + nodeText(write->value));
            if (!misbehaves("writeValue", write->name))
                writeValue(*write);
        } else {
            return handleStream(message);
        }
        return true;
    }

    bool handleStream(const Message &message)
    {
        if (const auto prepare = message.content<PrepareStreamRequest>()) {
            log("prepareStream " + std::to_string(prepare->buffers));
            if (!misbehaves("prepareStream"))
                reply(StreamPreparedReply{static_cast<std::uint32_t>(number("buffers", prepare->buffers)),
                    number("bufferSize", ScriptedStream::bufferSize), 64, ScriptedStream::chunkFeatures()});
        } else if (const auto start = message.content<StartStreamRequest>()) {
            log(std::string("startStream ") + (start->onlyNewest ? "newest" : "every"));
            const auto descriptors = m_channel.takeDescriptors();
            if (!misbehaves("startStream")) {
                if (!m_stream.start(*start, descriptors))
                    std::abort();
                reply(StreamStartedReply());
            }
        } else if (message.content<StopStreamRequest>()) {
            log("stopStream");
            if (!misbehaves("stopStream")) {
                m_stream.stop();
                reply(StreamStoppedReply());
            }
        } else if (message.content<CloseDeviceRequest>()) {
            log("closeDevice");
            if (!misbehaves("closeDevice"))
                reply(DeviceClosedReply());
            return false;
        }
        return true;
    }

    void readStates(const ReadStatesRequest &request)
    {
        NodeStatesReply states;
        for (const std::string &name : request.names)
            states.states.push_back(*m_camera.state(name));
        reply(states);
    }

    void writeValue(const WriteValueRequest &request)
    {
        if (std::holds_alternative<std::monostate>(request.value)) {
            for (const Words &line : script()) {
                if (line[0] == "do")
                    act({line.begin() + 1, line.end()});
            }
        } else if (const auto failure = m_camera.write(request.name, request.value)) {
            return reply(*failure);
        }
        reply(NodeValueReply());
        notify(m_camera.dependents(request.name));
    }

    void act(const Words &words)
    {
        const std::string &action = words[0];
        const auto argument
            = static_cast<std::uint32_t>(words.size() > 1 ? std::strtoul(words[1].c_str(), nullptr, 0) : 0);
        if (action == "deliver")
            m_stream.deliver(argument);
        else if (action == "push")
            m_stream.push(argument);
        else if (action == "damageCounter")
            m_stream.damageCounter();
        else if (action == "deliverLong")
            m_stream.deliverChanged([](auto &record) { record.imageOffset = record.imageSize = ~0ULL - 1; });
        else if (action == "deliverManyChunks")
            m_stream.deliverChanged([](auto &record) { record.chunkCount = ~0U; });
        else if (action == "deliverWildChunk")
            m_stream.deliverChanged([](auto &record) { record.chunks[0].offset = ~0ULL; });
        else if (action == "notify")
            notify({words.begin() + 1, words.end()});
        else if (action == "lose")
            send(Message(Message::noRequest, DeviceLostNotice{"The cable was pulled."}).toLine());
        else if (action == "leaveChild")
            leaveChild();
    }

    /// Dies, but leaves a child process that keeps the socket open.
    static void leaveChild()
    {
        if (fork() == 0) {
            ::pause();
            _exit(0);
        }
        ::kill(getpid(), SIGKILL);
    }

    void notify(const Words &names) { send(Message(Message::noRequest, NodesChangedNotice{names}).toLine()); }

    /// Does what the script demands for this request. Returns false if there is nothing.
    bool misbehaves(const std::string &kind, const std::string &name = {})
    {
        for (Words words : script()) {
            if (words[0] != kind)
                continue;
            words.erase(words.begin());
            if (!name.empty() && words[0] == name)
                words.erase(words.begin());
            if (misbehave(words))
                return true;
        }
        return false;
    }

    bool misbehave(const Words &words)
    {
        if (words[0] == "fail") {
            std::string text;
            for (std::size_t i = 2; i < words.size(); ++i)
                text += (text.empty() ? "" : " ") + words[i];
            reply(RequestFailedReply{static_cast<DeviceFailure>(std::stoi(words[1])), text});
        } else if (words[0] == "hang") {
            for (;;)
                ::pause();
        } else if (words[0] == "die") {
            ::kill(getpid(), SIGKILL);
        } else if (words[0] == "garbage") {
            send("no message\n");
        } else if (words[0] == "endless") {
            for (;;)
                send(std::string(1U << 20, 'x'));
        } else if (words[0] == "wrongId") {
            send(Message(m_id + 1, NodeValueReply()).toLine());
        } else if (words[0] == "wrongKind") {
            reply(OpenDeviceRequest());
        } else {
            return false; // The line applies to another node.
        }
        return true;
    }

    template <typename Reply>
    void reply(const Reply &content)
    {
        send(Message(m_id, content).toLine());
    }

    void send(const std::string &line)
    {
        if (m_channel.send(line) != LineChannel::Status::Line)
            std::exit(EXIT_SUCCESS); // The library has closed the connection.
    }

    std::uint64_t number(const std::string &name, std::uint64_t otherwise) const
    {
        for (const Words &line : script()) {
            if (line[0] == name)
                return std::stoull(line[1]);
        }
        return otherwise;
    }

    std::vector<Words> script() const
    {
        std::vector<Words> lines;
        std::ifstream file(m_path + ".script");
        for (std::string text; std::getline(file, text);) {
            std::istringstream stream(text);
            Words words;
            for (std::string word; stream >> word;)
                words.push_back(word);
            if (!words.empty())
                lines.push_back(words);
        }
        return lines;
    }

    void log(const std::string &line) { std::ofstream(m_path + ".log", std::ios::app) << line << std::endl; }

    const std::string m_path;
    LineChannel m_channel;
    Message::Id m_id = Message::noRequest; // ID of the present request.
    ScriptedCamera m_camera;
    ScriptedStream m_stream;
};

} // namespace

int main(int count, char **arguments)
{
    return count == 2 ? Host(arguments[1]).run() : EXIT_FAILURE;
}
