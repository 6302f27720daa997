#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// One device as its producer describes it. Valid UTF-8; every text but the ID may be empty.
struct ListedDevice
{
    std::string id;
    std::string vendor;
    std::string model;
    std::string serial;
    std::string name;
    std::string type; ///< GenTL transport layer type.
};

/// One interface with the devices on it, sorted by ID.
struct ListedInterface
{
    std::uint64_t number = 0; ///< What the host calls it in requests.
    std::string id;
    std::string name;
    std::string type;
    std::vector<ListedDevice> devices;
};

/// One call of a producer that went wrong.
struct CallProblem
{
    std::string call;
    std::int32_t code = 0;
    std::string text;
};

/// What a host answers to one request.
struct ProducerAnswer
{
    enum class Kind
    {
        List,
        Error,
        Ended
    };

    Kind kind = Kind::List;
    std::vector<ListedInterface> interfaces; ///< Of a list; sorted by ID.
    std::vector<CallProblem> problems; ///< Of an error the one that is fatal.
};

/// A longer answer is not read: the host that sends it is out of its mind.
constexpr std::size_t LongestAnswer = 64U << 20;

/// An answer with more objects is not read either: a few bytes of text each, they would be gigabytes here.
constexpr std::size_t MostRecords = 1U << 18;

/// Reads one line of JSON. False when it is no answer; nothing is thrown, whatever the text.
bool parseAnswer(std::string_view line, ProducerAnswer &answer);

bool operator==(const ListedDevice &a, const ListedDevice &b);
bool operator<(const ListedDevice &a, const ListedDevice &b); ///< By ID, then by the other texts.
bool operator==(const ListedInterface &a, const ListedInterface &b);
