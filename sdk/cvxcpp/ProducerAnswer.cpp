#include "sdk/cvxcpp/ProducerAnswer.h"

#include <algorithm>
#include <exception>
#include <functional>
#include <limits>
#include <nlohmann/json.hpp>
#include <tuple>
#include <utility>

namespace {

/// Builds the records while the text is read, so that no string is copied. What it does not know it skips.
///
/// The places of an answer: {"interfaces": [{…, "devices": [{…}]}], "problems": [{…}], "error": {…}, "ended":
/// …}
class AnswerHandler : public nlohmann::json_sax<nlohmann::json>
{
public:
    explicit AnswerHandler(ProducerAnswer &answer) : m_answer(answer) { }

    bool isAnswer() const { return m_isAnswer; }

    bool start_object(std::size_t) override { return ++m_objects <= MostRecords && open(placeOfObject()); }
    bool end_object() override { return close(); }
    bool start_array(std::size_t) override { return open(placeOfArray()); }
    bool end_array() override { return close(); }
    bool key(string_t &name) override
    {
        m_key = std::move(name);
        return true;
    }

    bool string(string_t &value) override
    {
        value.resize(std::min(value.find('\0'), value.size())); // A text in the SDK ends at its NUL.
        if (std::string *field = textField())
            *field = std::move(value);
        return true;
    }
    bool number_unsigned(number_unsigned_t value) override
    {
        if (place() == Place::Interface && m_key == "number")
            m_answer.interfaces.back().number = value;
        else if (value <= static_cast<number_unsigned_t>(std::numeric_limits<std::int32_t>::max()))
            setCode(static_cast<std::int32_t>(value));
        return true;
    }
    bool number_integer(number_integer_t value) override
    {
        if (value >= std::numeric_limits<std::int32_t>::min() && value < 0)
            setCode(static_cast<std::int32_t>(value));
        return true;
    }
    bool boolean(bool) override
    {
        if (place() == Place::Answer && m_key == "ended")
            setKind(ProducerAnswer::Kind::Ended);
        return true;
    }
    bool null() override { return true; }
    bool number_float(number_float_t, const string_t &) override { return true; }
    bool binary(binary_t &) override { return true; }
    bool parse_error(std::size_t, const std::string &, const nlohmann::detail::exception &) override
    {
        return false;
    }

private:
    enum class Place
    {
        Outside,
        Answer,
        Interfaces,
        Interface,
        Devices,
        Device,
        Problems,
        Problem,
        Unknown
    };

    static constexpr std::size_t DeepestNesting = 16;

    Place place() const { return m_places.empty() ? Place::Outside : m_places.back(); }

    void setKind(ProducerAnswer::Kind kind)
    {
        m_answer.kind = kind;
        m_isAnswer = true;
    }

    void setCode(std::int32_t code)
    {
        if (place() == Place::Problem && m_key == "code")
            m_answer.problems.back().code = code;
    }

    bool open(Place next)
    {
        if (m_places.size() >= DeepestNesting)
            return false;
        m_places.push_back(next);
        return true;
    }

    bool close()
    {
        m_places.pop_back();
        return true;
    }

    Place placeOfObject()
    {
        switch (place()) {
        case Place::Outside:
            return Place::Answer;
        case Place::Interfaces:
            m_answer.interfaces.emplace_back();
            return Place::Interface;
        case Place::Devices:
            m_answer.interfaces.back().devices.emplace_back();
            return Place::Device;
        case Place::Problems:
            m_answer.problems.emplace_back();
            return Place::Problem;
        case Place::Answer:
            if (m_key != "error")
                return Place::Unknown;
            setKind(ProducerAnswer::Kind::Error);
            m_answer.problems.emplace_back();
            return Place::Problem;
        default:
            return Place::Unknown;
        }
    }

    Place placeOfArray()
    {
        if (place() == Place::Answer && m_key == "interfaces") {
            m_isAnswer = true;
            return Place::Interfaces;
        }
        if (place() == Place::Answer && m_key == "problems")
            return Place::Problems;
        if (place() == Place::Interface && m_key == "devices")
            return Place::Devices;
        return Place::Unknown;
    }

    std::string *textField()
    {
        switch (place()) {
        case Place::Interface:
            return interfaceField(m_answer.interfaces.back());
        case Place::Device:
            return deviceField(m_answer.interfaces.back().devices.back());
        case Place::Problem:
            return m_key == "call" ? &m_answer.problems.back().call
                : m_key == "text"  ? &m_answer.problems.back().text
                                   : nullptr;
        default:
            return nullptr;
        }
    }

    std::string *interfaceField(ListedInterface &record) const
    {
        return m_key == "id"  ? &record.id
            : m_key == "name" ? &record.name
            : m_key == "type" ? &record.type
                              : nullptr;
    }

    std::string *deviceField(ListedDevice &record) const
    {
        static constexpr std::pair<std::string_view, std::string ListedDevice::*> fields[] = {
            {"id", &ListedDevice::id}, {"vendor", &ListedDevice::vendor}, {"model", &ListedDevice::model},
            {"serial", &ListedDevice::serial}, {"name", &ListedDevice::name}, {"type", &ListedDevice::type}};
        for (const auto &[name, field] : fields) {
            if (m_key == name)
                return &(record.*field);
        }
        return nullptr;
    }

    ProducerAnswer &m_answer;
    std::vector<Place> m_places;
    std::string m_key; // The last one; an array's elements are told by their place instead.
    std::size_t m_objects = 0;
    bool m_isAnswer = false;
};

auto fieldsOf(const ListedDevice &device)
{
    return std::tie(device.id, device.vendor, device.model, device.serial, device.name, device.type);
}

template <typename Record, typename Less>
void sort(std::vector<Record> &records, Less less)
{
    if (!std::is_sorted(records.begin(), records.end(), less)) // The host sorts, by bytes before replacement.
        std::stable_sort(records.begin(), records.end(), less);
}

} // namespace

bool parseAnswer(std::string_view line, ProducerAnswer &answer)
{
    answer = ProducerAnswer();
    try {
        AnswerHandler handler(answer);
        if (line.size() > LongestAnswer || !nlohmann::json::sax_parse(line, &handler) || !handler.isAnswer())
            return false;
        for (ListedInterface &record : answer.interfaces)
            sort(record.devices, std::less<>());
        sort(answer.interfaces, [](const auto &a, const auto &b) { return a.id < b.id; });
        return true;
    } catch (const std::exception &) { // Out of memory.
        return false;
    }
}

bool operator==(const ListedDevice &a, const ListedDevice &b)
{
    return fieldsOf(a) == fieldsOf(b);
}

bool operator<(const ListedDevice &a, const ListedDevice &b)
{
    return fieldsOf(a) < fieldsOf(b);
}

bool operator==(const ListedInterface &a, const ListedInterface &b)
{
    return a.number == b.number && a.id == b.id && a.name == b.name && a.type == b.type
        && a.devices == b.devices;
}
