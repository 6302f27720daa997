#pragma once

#include "tests/sdk/support/TemporaryDirectory.h"

#include <string>
#include <vector>

/// A copy of the quirk producer in a directory of its own; producer/QuirkScript.h describes its scripts.
class QuirkProducer
{
public:
    explicit QuirkProducer(const std::string &script = {});

    std::string ctiPath() const { return m_directory.path() / "quirk.cti"; }
    void setScript(const std::string &script);

    /// Removes exported functions, as if the producer had been built without them. Call it before the
    /// producer is loaded.
    void removeExports(const std::vector<std::string> &functions);

    /// Replaces the register description, which may be anything.
    void setDescription(const std::string &content);
    std::string description() const;

    /// Returns how often a call, for example "DSFlushQueue 4", is in the log. "violation" counts the rules
    /// that the host has broken.
    std::size_t count(const std::string &call) const;
    std::vector<std::string> log() const; ///< The calls of all processes, in their order.

    const TemporaryDirectory &directory() const { return m_directory; }

private:
    TemporaryDirectory m_directory;
};
