#pragma once

#include "sdk/camerahost/NodeMap.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

/// The values that features had before temporary changes, each with the values of its selectors.
class OriginalValues
{
public:
    using Clock = std::chrono::steady_clock;

    /// Returns the present value of a feature that is going to be written, or nothing if its value is
    /// remembered already or cannot be read.
    std::optional<SelectedValue> findNew(NodeMap &nodes, const std::string &name) const;

    /// Remembers a value. It is put back before those that are remembered now.
    void remember(SelectedValue value) { m_values.push_back(std::move(value)); }

    struct PutBack
    {
        std::vector<std::string> written; ///< Names of the features that were written.
        std::vector<SelectedValue> refused; ///< In the order in which they were remembered.
        std::vector<std::string> reasons; ///< One sentence for each refused value.
    };

    /// Writes the values back, the last one first, then those of selectors. The camera may refuse a value
    /// until another one is written, so the refused values are tried again until the camera accepts no more
    /// of them; they stay remembered. Begins no write after the deadline.
    PutBack putBack(NodeMap &nodes, Clock::time_point deadline);

    bool isEmpty() const { return m_values.empty(); }
    void forget() { m_values.clear(); }

private:
    std::vector<SelectedValue> m_values; // In the order of the first writes.
};
