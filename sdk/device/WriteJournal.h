#pragma once

#include "CvxCPP/Node.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// The camera to which a journal is written back.
class JournalTarget
{
public:
    virtual ~JournalTarget() = default;

    /// Returns nothing if the value cannot be read.
    virtual std::optional<CvxCPP::NodeValue> read(const std::string &name) = 0;
    /// Returns false if the camera refuses the value.
    virtual bool write(const std::string &name, const CvxCPP::NodeValue &value) = 0;
    /// Returns true if the camera was lost, so that further calls would fail too.
    virtual bool isLost() const = 0;
};

/// The values that the program has written since the camera was opened. Knows for which values of its
/// selectors each value was written.
class WriteJournal
{
public:
    /// Returns true if the value of this selector is known and has not been doubted since.
    bool knowsSelector(const std::string &selector) const;

    /// Remembers that the camera may have changed its selectors, for example by loading a user set.
    void doubtSelectors();

    /// Records the value that a selector has without being written by the program.
    void selectorRead(const std::string &selector, const CvxCPP::NodeValue &value);

    /// Records a successful write. `selectors` are the selectors of the node, each after its own selectors.
    /// Replaces an earlier value that was written with the same values of the selectors.
    void written(const std::string &name, const CvxCPP::NodeValue &value,
        const std::vector<std::string> &selectors, bool isSelector);

    /// Writes all values in the order in which they were last written, each with the values of its selectors.
    /// The camera may refuse a value until another one is written, so the refused values are tried again
    /// until the camera accepts no more of them. Then sets the selectors to their last values. Returns the
    /// names of the nodes whose values were refused.
    std::vector<std::string> replay(JournalTarget &target) const;

private:
    struct Setting
    {
        std::string name;
        CvxCPP::NodeValue value;

        bool operator<(const Setting &other) const
        {
            return name != other.name ? name < other.name : value < other.value;
        }
    };
    using Settings = std::vector<Setting>;

    struct Entry
    {
        Settings selectors;
        Setting setting;
    };

    struct Selector
    {
        CvxCPP::NodeValue value;
        std::uint64_t number = 0; // Position in the order of the writes.
        bool isCertain = true;
    };

    class Replay;

    Settings lastSelectors() const;

    std::uint64_t m_count = 0; // Number of recorded values.
    std::map<std::uint64_t, Entry> m_entries; // In the order of the last writes.
    std::map<Settings, std::uint64_t> m_numbers; // By the selectors of an entry, then the node without value.
    std::map<std::string, Selector> m_selectors; // Last values of the selectors, by name.
};
