#pragma once

#include <filesystem>
#include <string>

/// Counts how often a file is opened.
class FileVisits
{
public:
    explicit FileVisits(const std::filesystem::path &file);
    ~FileVisits();
    FileVisits(const FileVisits &) = delete;
    FileVisits &operator=(const FileVisits &) = delete;

    /// Since the last call.
    int count() const;

private:
    int m_watcher;
};

/// A web server on this computer that never answers, and counts who comes.
class ServerVisits
{
public:
    ServerVisits();
    ~ServerVisits();
    ServerVisits(const ServerVisits &) = delete;
    ServerVisits &operator=(const ServerVisits &) = delete;

    std::string address() const;

    /// Comes itself, to see whether that is counted.
    void visit() const;

    /// Since the last call.
    int count() const;

private:
    int m_socket;
};
