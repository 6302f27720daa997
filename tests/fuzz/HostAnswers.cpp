// What a producer host sends, as the library reads it. The first byte says in how many portions it arrives.

#include "sdk/cvxcpp/AnswerLines.h"
#include "sdk/cvxcpp/CameraList.h"
#include "sdk/cvxcpp/DoubleListing.h"
#include "sdk/cvxcpp/InterfaceSource.h"
#include "sdk/cvxcpp/Utf8.h"
#include "tests/fuzz/FuzzTarget.h"

#include <algorithm>
#include <array>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr std::size_t Longest = 4096; // Bytes; the real limit is out of a fuzzer's reach.

/// Both ends of a host's connection.
class Connection
{
public:
    Connection()
    {
        require(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, m_ends.data()) == 0, "there is a socket");
    }
    ~Connection()
    {
        for (const int end : m_ends)
            close(end);
    }
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    int ours() const { return m_ends[0]; }
    void send(const char *data, std::size_t size) const
    {
        require(::send(m_ends[1], data, size, MSG_NOSIGNAL) == static_cast<ssize_t>(size), "it is sent");
    }
    void hangUp() const { shutdown(m_ends[1], SHUT_WR); }

private:
    std::array<int, 2> m_ends{};
};

/// Moves every line that has arrived over; false when there will be no more.
bool collect(AnswerLines &lines, int socket, std::vector<std::string> &received)
{
    std::string line;
    for (;;) {
        switch (lines.read(socket, line)) {
        case AnswerLines::Reading::Line:
            received.push_back(line);
            break;
        case AnswerLines::Reading::Pending:
            return true;
        case AnswerLines::Reading::Closed:
            return false;
        case AnswerLines::Reading::TooLong:
            require(lines.hasMore(), "a line is called too long when something has come");
            return false;
        }
    }
}

std::vector<std::string> receive(const std::string &sent, std::size_t portion)
{
    const Connection connection;
    AnswerLines lines(Longest);
    std::vector<std::string> received;
    for (std::size_t at = 0; at < sent.size(); at += portion) {
        connection.send(sent.data() + at, std::min(portion, sent.size() - at));
        if (!collect(lines, connection.ours(), received))
            return received;
    }
    connection.hangUp();
    require(!collect(lines, connection.ours(), received), "the end of the connection is noticed");
    return received;
}

/// The lines of a text, without what follows its last line feed.
std::vector<std::string> linesOf(const std::string &text)
{
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (auto end = text.find('\n'); end != std::string::npos; end = text.find('\n', start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

void requireText(const std::string &text)
{
    require(text.find('\0') == std::string::npos, "a text holds no NUL");
    require(toValidUtf8(text) == text, "a text is valid UTF-8");
}

void requireDevices(const std::vector<ListedDevice> &devices)
{
    const auto byId = [](const ListedDevice &a, const ListedDevice &b) { return a.id < b.id; };
    require(std::is_sorted(devices.begin(), devices.end(), byId), "devices are sorted");
    for (const ListedDevice &device : devices) {
        for (const std::string &text :
            {device.id, device.vendor, device.model, device.serial, device.name, device.type})
            requireText(text);
    }
}

void requireRecords(const ProducerAnswer &answer)
{
    const auto byId = [](const ListedInterface &a, const ListedInterface &b) { return a.id < b.id; };
    require(
        std::is_sorted(answer.interfaces.begin(), answer.interfaces.end(), byId), "interfaces are sorted");
    for (const ListedInterface &record : answer.interfaces) {
        for (const std::string &text : {record.id, record.name, record.type})
            requireText(text);
        requireDevices(record.devices);
    }
    if (answer.kind == ProducerAnswer::Kind::Error)
        require(!answer.problems.empty(), "an error comes with its problem");
    for (const CallProblem &problem : answer.problems) {
        requireText(problem.call);
        requireText(problem.text);
    }
}

/// What an interface asks for its devices; nobody does here.
class NoSource final : public InterfaceSource
{
public:
    RunningFlag runningFlag() const override { return std::make_shared<const std::atomic<bool>>(true); }
    CvxCPP::CvxError searchInterface(
        std::size_t, const std::string &, std::shared_ptr<const ListedInterface> &) override
    {
        return CvxCPP::CvxErrorNotFound;
    }
};

CameraList::Pointer listOf(const ProducerAnswer &answer)
{
    std::vector<std::shared_ptr<const ListedInterface>> records;
    for (const ListedInterface &record : answer.interfaces)
        records.push_back(std::make_shared<const ListedInterface>(record));
    static const std::shared_ptr<InterfaceSource> source = std::make_shared<NoSource>();
    return CameraList::create(source, 0, std::make_shared<const std::string>("a.cti"), records);
}

/// What the library does with one list after the other.
void follow(CameraList::Pointer &before, const CameraList::Pointer &after)
{
    const CameraListChange change = CameraListChange::between(*before, *after);
    require(before->cameras.size() + change.newCameras.size()
            == after->cameras.size() + change.goneCameras.size(),
        "what comes and goes is what differs");
    const CameraListChange none = CameraListChange::between(*after, *after);
    require(none.newCameras.empty() && none.goneCameras.empty(), "a list does not differ from itself");
    for (const CameraList::Pointer &shown : withoutRepeats({{0, before}, {1, after}}))
        require(shown != nullptr, "every producer has a list to show");
    before = after;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string sent = textOf(data + 1, size - 1);
    const std::vector<std::string> received = receive(sent, sent.size() / (1U + data[0] % 8U) + 1);
    const std::vector<std::string> lines = linesOf(sent);
    require(received.size() <= lines.size() && std::equal(received.begin(), received.end(), lines.begin()),
        "lines are what stands between line feeds, in order");

    CameraList::Pointer before = CameraList::empty();
    for (const std::string &line : received) {
        ProducerAnswer answer;
        if (!parseAnswer(line, answer))
            continue;
        requireRecords(answer);
        ProducerAnswer again;
        require(parseAnswer(line, again) && again.interfaces == answer.interfaces, "reading has no memory");
        follow(before, listOf(answer));
    }
    return 0;
}
