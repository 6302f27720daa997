#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// A feature of one of the producer's own modules. Its register and its node in the register description are
/// made from this record. The functions may throw GenTlError.
struct ModuleFeature
{
    enum class Kind : std::uint8_t
    {
        Text,
        Number,
        Choice, ///< One of `entries`; its value is the index.
        Command, ///< write() executes it.
        Selector ///< An index into a list whose length is the feature `countedBy`.
    };
    using ReadText = std::function<std::string()>;
    using ReadNumber = std::function<std::uint64_t()>;
    using Write = std::function<void(std::uint64_t)>;

    Kind kind;
    std::string category; ///< Empty for a feature that is not shown.
    std::string name;
    std::string toolTip;
    ReadText readText; ///< Only a text has it.
    ReadNumber readNumber; ///< All other kinds have it.
    Write write; ///< Null if the feature is read-only.
    std::vector<std::string> entries;
    std::string countedBy;
    std::string selectedBy; ///< The selector that the value depends on, or empty.

    static ModuleFeature text(const std::string &category, const std::string &name,
        const std::string &toolTip, ReadText read, const std::string &selectedBy = {})
    {
        return {Kind::Text, category, name, toolTip, std::move(read), {}, {}, {}, {}, selectedBy};
    }
    static ModuleFeature number(
        const std::string &category, const std::string &name, const std::string &toolTip, ReadNumber read)
    {
        return {Kind::Number, category, name, toolTip, {}, std::move(read), {}, {}, {}, {}};
    }
    static ModuleFeature choice(const std::string &category, const std::string &name,
        const std::string &toolTip, std::vector<std::string> entries, ReadNumber read,
        const std::string &selectedBy = {})
    {
        return {Kind::Choice, category, name, toolTip, {}, std::move(read), {}, std::move(entries), {},
            selectedBy};
    }
    static ModuleFeature command(
        const std::string &category, const std::string &name, const std::string &toolTip, Write execute)
    {
        return {Kind::Command, category, name, toolTip, {}, [] { return 0; }, std::move(execute), {}, {}, {}};
    }
    static ModuleFeature selector(const std::string &category, const std::string &name,
        const std::string &toolTip, ReadNumber read, Write write, const std::string &countedBy)
    {
        return {Kind::Selector, category, name, toolTip, {}, std::move(read), std::move(write), {}, countedBy,
            {}};
    }
};
