#pragma once

#include "sdk/producer/LastError.h"
#include "sdk/producer/OpenCamera.h"
#include "sdk/producer/Producer.h"
#include "sdk/producer/UpdatedList.h"

#include <new>

// What all exported functions have in common.

/// Runs the body of an exported function. Converts every exception to an error code, because the consumer may
/// be written in C.
template <typename Body>
GenTL::GC_ERROR guarded(Body &&body) noexcept
{
    try {
        return body();
    } catch (const GenTlError &error) {
        return fail(error.code(), error.what());
    } catch (const std::bad_alloc &) {
        return fail(GenTL::GC_ERR_OUT_OF_MEMORY, "Out of memory.");
    } catch (const std::exception &exception) {
        return fail(GenTL::GC_ERR_ERROR, exception.what());
    } catch (...) {
        return fail(GenTL::GC_ERR_ERROR, "Unknown exception.");
    }
}

/// Runs the body with the T that the handle identifies. Returns GC_ERR_NOT_INITIALIZED or
/// GC_ERR_INVALID_HANDLE if there is none.
template <typename T, typename Body>
GenTL::GC_ERROR with(void *handle, Body &&body) noexcept
{
    return guarded([&] {
        const std::shared_ptr<T> module = Producer::instance().handles().find<T>(handle);
        return module ? body(*module) : Producer::instance().failHandle(T::handleName);
    });
}

/// Writes a handle, or fails if the output is null.
inline GenTL::GC_ERROR writeHandle(void *handle, void **output)
{
    if (!output)
        return failMissingArgument();
    *output = handle;
    return GenTL::GC_ERR_SUCCESS;
}

/// Closes the T that the handle identifies, and everything below it.
template <typename T>
GenTL::GC_ERROR closeHandle(void *handle) noexcept
{
    return with<T>(handle, [&](T &) {
        return Producer::instance().handles().close(handle) ? GenTL::GC_ERR_SUCCESS
                                                            : Producer::instance().failHandle(T::handleName);
    });
}

/// Returns the entry with this ID. Throws GC_ERR_INVALID_ID if the list does not contain it.
template <typename Record>
Record listedRecord(const UpdatedList<Record> &list, const std::string &id)
{
    const std::optional<Record> record = list.find(id);
    return record ? *record
                  : throw GenTlError(GenTL::GC_ERR_INVALID_ID, "There is no \"" + id + "\" in the list.");
}
