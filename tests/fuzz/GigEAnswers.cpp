// Interprets the input as a sequence of events on two network interfaces: answers of cameras, searches, and
// passing time.

#include "sdk/gige/CameraPlacement.h"
#include "sdk/gige/CameraRegistry.h"
#include "sdk/gvcp/DiscoveryAcknowledgement.h"
#include "tests/fuzz/FuzzTarget.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <tuple>
#include <vector>

namespace {

using Milliseconds = std::chrono::milliseconds;

const std::vector<InterfaceAddress> addresses{
    {1, "one", 0x0A000101, 0xFFFFFF00, true, true}, {2, "two", 0x0A000201, 0xFFFFFF00, true, true}};

void requireText(const std::string &text, std::size_t fieldSize)
{
    require(text.size() <= 3 * fieldSize, "a string is not much longer than its field");
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
    require(std::none_of(text.begin(), text.end(), isControl), "a string contains no control character");
    (void)nlohmann::json(text).dump(); // Throws if the string is not UTF-8.
}

void requireTexts(const CameraData &camera)
{
    for (const std::string *text : {&camera.vendor, &camera.model, &camera.version})
        requireText(*text, 32);
    for (const std::string *text : {&camera.serial, &camera.userName})
        requireText(*text, 16);
}

/// Passes the events to a registry and checks its properties.
class Events
{
public:
    Events(const std::uint8_t *data, std::size_t size) : m_data(data), m_end(data + size) { }

    void run()
    {
        while (m_data != m_end) {
            const std::uint8_t event = *m_data++;
            switch (event % 4) {
            case 0:
                m_registry.startSearch(m_now);
                m_requests.clear();
                break;
            case 1:
                m_now += Milliseconds(event * 5);
                pass();
                break;
            case 2:
                answer(1 + event / 4 % 2);
                break;
            default:
                if (event == 0xFF)
                    m_registry.removeInterface(1);
            }
            requireLists();
        }
    }

private:
    void answer(unsigned interfaceIndex)
    {
        const std::size_t size = std::min<std::size_t>(256, static_cast<std::size_t>(m_end - m_data));
        const std::vector<std::uint8_t> datagram(m_data, m_data + size); // Detects reads past the end.
        m_data += size;
        const auto parsed = parseAcknowledgement(datagram.data(), datagram.size());
        if (!parsed)
            return;
        requireTexts(parsed->camera);
        m_registry.addAnswer(interfaceIndex, parsed->requestId, parsed->camera);
        require(!m_registry.addAnswer(interfaceIndex, parsed->requestId, parsed->camera),
            "a repeated answer changes nothing");
    }

    void pass()
    {
        for (const auto &camera : m_registry.takeDueRequests(m_now))
            require(++m_requests[{camera.interfaceIndex, camera.id, camera.data.address}] <= 3,
                "a camera is asked at most three times in a search");
        m_registry.removeSilent(m_now);
        require(m_registry.nextDeadline() > m_now, "the next deadline is in the future");
    }

    void requireLists()
    {
        std::set<std::string> known, listed;
        for (const auto &camera : m_registry.cameras())
            known.insert(camera.id);
        for (const InterfaceList &list : m_placement.place(addresses, m_registry.cameras(), true)) {
            for (const ListedCamera &camera : list.cameras)
                require(listed.insert(camera.id).second, "a camera is listed once");
        }
        require(known == listed, "every camera is listed");
    }

    const std::uint8_t *m_data;
    const std::uint8_t *const m_end;
    CameraRegistry::Time m_now{};
    CameraRegistry m_registry;
    CameraPlacement m_placement;
    std::map<std::tuple<unsigned, std::string, std::uint32_t>, int>
        m_requests; // Counted for the current search.
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Events(data, size).run();
    return 0;
}
