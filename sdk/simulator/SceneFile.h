#pragma once

#include "sdk/simulator/Scene.h"

#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <sys/stat.h>

/// The scene file, read anew whenever it may have changed.
/// A missing file gives the default scene. A broken one keeps the last good scene, or the default while there
/// was none, and is reported on standard error once, so that the person who edits it learns where it is
/// wrong.
class SceneFile
{
public:
    explicit SceneFile(std::filesystem::path path);

    /// The scene as of now. May be called from several threads.
    std::shared_ptr<const Scene> current();

private:
    /// By what a changed file is told from an unchanged one.
    struct Stamp
    {
        explicit Stamp(const struct stat &status);
        bool operator==(const Stamp &other) const;

        dev_t device;
        ino_t inode;
        off_t size;
        timespec modified;
        timespec changed;
    };

    void update();
    void updateFrom(int descriptor);
    void parse(int descriptor);
    void reportProblem(const std::string &problem);

    const std::filesystem::path m_path;

    std::mutex m_mutex; // Guards what follows.
    bool m_missing = true;
    std::shared_ptr<const Scene> m_lastGood;
    std::optional<Stamp> m_stamp; // Of the file as read; empty if it has to be read again in any case.
    std::string m_reported; // The problem last reported; empty while the file is good or missing.
};
