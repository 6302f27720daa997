#pragma once

#include "tests/producer/LoadedProducer.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The features of a module or a camera, which libaravis evaluates over the port.
class PortNodes
{
public:
    /// Reads the register description. A failure is a test failure.
    PortNodes(const LoadedProducer &producer, GenTL::PORT_HANDLE port);
    ~PortNodes();

    /// Returns a line for each feature below "Root": category, name, access and value.
    std::vector<std::string> dump() const;

    /// Writes a feature or executes a command. Returns false if it fails.
    bool write(const std::string &name, const std::string &value) const;
    bool execute(const std::string &name) const;

    /// Returns the value of a feature, or nothing if it is not available.
    std::optional<std::string> read(const std::string &name) const;

    /// Returns the register description.
    const std::string &xml() const { return m_xml; }

private:
    struct Tree; // Keeps the headers of libaravis away from those of the tests.

    std::string m_xml;
    std::unique_ptr<Tree> m_tree;
};
