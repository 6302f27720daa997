#include "sdk/device/WriteJournal.h"

#include <algorithm>
#include <utility>

using CvxCPP::NodeValue;

/// Writes entries to a camera and remembers the values that its selectors have.
class WriteJournal::Replay
{
public:
    explicit Replay(JournalTarget &target) : m_target(target) { }

    bool write(const Entry &entry)
    {
        for (const Setting &selector : entry.selectors) {
            if (!select(selector))
                return false;
        }
        return m_target.write(entry.setting.name, entry.setting.value);
    }

    bool select(const Setting &selector)
    {
        const auto current = m_current.find(selector.name);
        if (current != m_current.end() && current->second == selector.value)
            return true;
        // A selector that has only one value is often read-only.
        const bool isSet = (current == m_current.end() && m_target.read(selector.name) == selector.value)
            || m_target.write(selector.name, selector.value);
        if (isSet)
            m_current[selector.name] = selector.value;
        return isSet;
    }

private:
    JournalTarget &m_target;
    std::map<std::string, NodeValue> m_current;
};

bool WriteJournal::knowsSelector(const std::string &selector) const
{
    const auto found = m_selectors.find(selector);
    return found != m_selectors.end() && found->second.isCertain;
}

void WriteJournal::doubtSelectors()
{
    for (auto &[name, selector] : m_selectors)
        selector.isCertain = false;
}

void WriteJournal::selectorRead(const std::string &selector, const NodeValue &value)
{
    m_selectors[selector] = {value, ++m_count};
}

void WriteJournal::written(const std::string &name, const NodeValue &value,
    const std::vector<std::string> &selectors, bool isSelector)
{
    const std::uint64_t number = ++m_count;
    if (isSelector) {
        doubtSelectors(); // A selector may select the value of another one.
        m_selectors[name] = {value, number};
        return;
    }
    Entry entry{{}, {name, value}};
    for (const std::string &selector : selectors) {
        const auto known = m_selectors.find(selector);
        if (known != m_selectors.end())
            entry.selectors.push_back({selector, known->second.value});
    }
    Settings key = entry.selectors;
    key.push_back({name, {}});
    const auto [position, isNew] = m_numbers.try_emplace(std::move(key), number);
    if (!isNew)
        m_entries.erase(std::exchange(position->second, number));
    m_entries.emplace(number, std::move(entry));
}

std::vector<std::string> WriteJournal::replay(JournalTarget &target) const
{
    Replay replay(target);
    std::vector<const Entry *> refused;
    for (const auto &[number, entry] : m_entries)
        refused.push_back(&entry);
    std::size_t triedCount = 0;
    do {
        triedCount = refused.size();
        const auto isDone = [&](const Entry *entry) { return target.isLost() || replay.write(*entry); };
        refused.erase(std::remove_if(refused.begin(), refused.end(), isDone), refused.end());
    } while (!refused.empty() && refused.size() < triedCount);

    std::vector<std::string> names;
    for (const Entry *entry : refused)
        names.push_back(entry->setting.name);
    for (const Setting &selector : lastSelectors()) {
        if (!target.isLost() && !replay.select(selector))
            names.push_back(selector.name);
    }
    return names;
}

/// Returns the last values of the selectors in the order in which they were written.
WriteJournal::Settings WriteJournal::lastSelectors() const
{
    std::map<std::uint64_t, Setting> ordered;
    for (const auto &[name, selector] : m_selectors)
        ordered.emplace(selector.number, Setting{name, selector.value});
    Settings settings;
    for (auto &[number, setting] : ordered)
        settings.push_back(std::move(setting));
    return settings;
}
