#pragma once

#include "sdk/producer/OpenCamera.h"
#include "sdk/producer/UpdatedList.h"

#include <algorithm>
#include <atomic>

// A selector feature is an index into a list. An update may shorten the list, so the index is limited when it
// is read.

/// Returns the selected index, which is 0 if the list is empty.
template <typename Record>
std::uint64_t selectedIndex(const UpdatedList<Record> &list, const std::atomic<std::uint64_t> &selected)
{
    const std::uint64_t size = list.size();
    return size == 0 ? 0 : std::min(selected.load(), size - 1);
}

/// Selects an index. Throws GC_ERR_INVALID_VALUE if it is past the end.
template <typename Record>
void select(const UpdatedList<Record> &list, std::atomic<std::uint64_t> &selected, std::uint64_t index)
{
    if (index >= list.size())
        throw GenTlError(
            GenTL::GC_ERR_INVALID_VALUE, "There is no entry " + std::to_string(index) + " to select.");
    selected = index;
}

/// Returns the selected entry. Throws GC_ERR_NOT_AVAILABLE if the list is empty.
template <typename Record>
Record selectedEntry(const UpdatedList<Record> &list, const std::atomic<std::uint64_t> &selected)
{
    const std::optional<Record> record = list.at(selectedIndex(list, selected));
    return record ? *record : throw GenTlError(GenTL::GC_ERR_NOT_AVAILABLE, "The list is empty.");
}
