#include "sdk/producer/HandleTable.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <functional>

using namespace GenTL;

namespace {

GC_ERROR failParentClosed()
{
    return fail(GC_ERR_INVALID_HANDLE, "The parent module was closed meanwhile.");
}

} // namespace

void *newHandle()
{
    static std::atomic<std::uintptr_t> last{0};
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the handle is never dereferenced.
    return reinterpret_cast<void *>(++last);
}

void *HandleTable::child(void *parent, const std::string &name) const
{
    const std::lock_guard lock(m_mutex);
    return findChild(parent, name);
}

void *HandleTable::parent(void *handle) const
{
    const std::lock_guard lock(m_mutex);
    const auto entry = m_entries.find(handle);
    return entry != m_entries.end() ? entry->second.parent : nullptr;
}

bool HandleTable::close(void *handle)
{
    Closed closed;
    {
        const std::lock_guard lock(m_mutex);
        if (m_entries.count(handle) == 0)
            return false;
        std::vector<void *> open{handle};
        while (!open.empty()) {
            void *const next = open.back();
            open.pop_back();
            closed.emplace_back(next, std::move(m_entries.at(next).module));
            m_entries.erase(next);
            for (const auto &[other, entry] : m_entries)
                if (entry.parent == next)
                    open.push_back(other);
        }
    }
    closeModules(std::move(closed));
    return true;
}

void HandleTable::closeAll()
{
    Closed closed;
    {
        const std::lock_guard lock(m_mutex);
        for (auto &[handle, entry] : m_entries)
            closed.emplace_back(handle, std::move(entry.module));
        Entries().swap(m_entries); // clear() would keep memory, which unloading the library would leak.
    }
    closeModules(std::move(closed));
}

void HandleTable::closeModules(Closed closed)
{
    // A child was opened after its parent, so its handle is the larger number.
    std::sort(closed.begin(), closed.end(),
        [](const auto &left, const auto &right) { return std::greater<>()(left.first, right.first); });
    for (const auto &entry : closed)
        if (entry.second)
            entry.second->close();
}

std::shared_ptr<Module> HandleTable::findAny(void *handle) const
{
    const std::lock_guard lock(m_mutex);
    const auto entry = m_entries.find(handle);
    return entry != m_entries.end() ? entry->second.module : nullptr;
}

void *HandleTable::findChild(void *parent, const std::string &name) const
{
    for (const auto &[handle, entry] : m_entries)
        if (entry.parent == parent && entry.name == name)
            return handle;
    return nullptr;
}

GC_ERROR HandleTable::reserve(void *parent, const std::string &name, void **handle)
{
    const std::lock_guard lock(m_mutex);
    if (parent && m_entries.count(parent) == 0)
        return failParentClosed();
    if (findChild(parent, name))
        return fail(GC_ERR_RESOURCE_IN_USE, "\"" + name + "\" is open already.");
    *handle = newHandle();
    m_entries.emplace(*handle, Entry{parent, name, nullptr});
    return GC_ERR_SUCCESS;
}

GC_ERROR HandleTable::fill(void *handle, std::shared_ptr<Module> module)
{
    const std::lock_guard lock(m_mutex);
    const auto entry = m_entries.find(handle);
    if (entry == m_entries.end())
        return failParentClosed();
    entry->second.module = std::move(module);
    return GC_ERR_SUCCESS;
}

void HandleTable::remove(void *handle)
{
    const std::lock_guard lock(m_mutex);
    m_entries.erase(handle);
}
