#pragma once

#include "sdk/gentl/GenTL.h"

#include <string>

/// The output arguments of an "ID" or "Info" function, and the two-call protocol behind them: without a
/// buffer the caller gets the size needed, with one the value. A text's size counts its closing NUL.
class Answer
{
public:
    /// For the "ID" functions, which report no type.
    Answer(char *buffer, std::size_t *size);
    Answer(GenTL::INFO_DATATYPE *type, void *buffer, std::size_t *size);

    /// False if an output that must be there is NULL.
    bool isComplete() const;

    GenTL::GC_ERROR text(const std::string &value) const;
    GenTL::GC_ERROR int32(std::int32_t value) const;
    GenTL::GC_ERROR uint32(std::uint32_t value) const;

private:
    GenTL::GC_ERROR bytes(GenTL::INFO_DATATYPE type, const void *value, std::size_t size) const;

    bool m_hasType;
    GenTL::INFO_DATATYPE *m_type;
    void *m_buffer;
    std::size_t *m_size;
};

/// The refusals that several functions share.
GenTL::GC_ERROR failArgumentMissing();
GenTL::GC_ERROR failUnknownCommand(std::int32_t command);
GenTL::GC_ERROR failNeverUpdated();
GenTL::GC_ERROR failIndex(std::uint32_t index, std::uint32_t count);
GenTL::GC_ERROR failUnknownId(const std::string &id);
