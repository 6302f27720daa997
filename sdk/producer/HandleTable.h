#pragma once

#include "sdk/producer/LastError.h"
#include "sdk/producer/Module.h"

#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

/// Returns a handle that this process has not used before.
void *newHandle();

/// The handles of everything that is open, as a tree. Any thread may call any function. No function holds the
/// lock while a module is opened or closed.
class HandleTable
{
public:
    /// Returns what the handle identifies, or null if it is not open or not a T.
    template <typename T>
    std::shared_ptr<T> find(void *handle) const
    {
        return std::dynamic_pointer_cast<T>(findAny(handle));
    }

    /// Returns the handle of the entry with this name below the parent, or null.
    void *child(void *parent, const std::string &name) const;

    /// Returns the parent of an open handle, or null.
    void *parent(void *handle) const;

    /// Adds the module that create() returns below the parent, and writes its handle. The parent of the root
    /// is null. If create() throws, nothing is added and the exception reaches the caller. Returns
    /// GC_ERR_INVALID_PARAMETER if `handle` is null, GC_ERR_RESOURCE_IN_USE if the name is open already, and
    /// GC_ERR_INVALID_HANDLE if the parent was closed meanwhile.
    template <typename Create>
    GenTL::GC_ERROR open(void *parent, const std::string &name, void **handle, Create &&create)
    {
        if (!handle)
            return failMissingArgument();
        void *reserved = nullptr;
        if (const GenTL::GC_ERROR error = reserve(parent, name, &reserved))
            return error;
        std::shared_ptr<Module> module;
        try {
            module = create();
        } catch (...) {
            remove(reserved);
            throw;
        }
        const GenTL::GC_ERROR error = fill(reserved, std::move(module));
        if (!error)
            *handle = reserved;
        return error;
    }

    /// Closes the handle and everything below it, the lowest first. Returns false if the handle is not open.
    bool close(void *handle);

    /// Closes everything.
    void closeAll();

private:
    struct Entry
    {
        void *parent;
        std::string name; // Unique below the parent.
        std::shared_ptr<Module> module; // Null until create() has returned.
    };
    using Entries = std::unordered_map<void *, Entry>;
    using Closed = std::vector<std::pair<void *, std::shared_ptr<Module>>>;

    static void closeModules(Closed closed);
    std::shared_ptr<Module> findAny(void *handle) const;
    void *findChild(void *parent, const std::string &name) const;
    GenTL::GC_ERROR reserve(void *parent, const std::string &name, void **handle);
    GenTL::GC_ERROR fill(void *handle, std::shared_ptr<Module> module);
    void remove(void *handle);

    mutable std::mutex m_mutex; // Guards the member below.
    Entries m_entries;
};
