#pragma once

#include "sdk/gentl/GenTL.h"

#include <string>

/// The output arguments of an "ID" or "Info" function, and the two-call protocol of GenTL: without a buffer
/// the caller gets the size of the value, with a buffer the value itself. The size of a string includes its
/// terminating NUL.
class InfoOutput
{
public:
    /// For the "ID" functions, which report no data type.
    InfoOutput(char *buffer, std::size_t *size);
    InfoOutput(GenTL::INFO_DATATYPE *type, void *buffer, std::size_t *size);

    /// Returns false if a required output argument is NULL. Check this before writing.
    bool isComplete() const;

    // Each returns GC_ERR_SUCCESS, or GC_ERR_BUFFER_TOO_SMALL without writing anything.

    /// Writes the string up to its first NUL.
    GenTL::GC_ERROR writeString(const std::string &value) const;
    GenTL::GC_ERROR writeInt32(std::int32_t value) const;
    GenTL::GC_ERROR writeUint32(std::uint32_t value) const;

private:
    GenTL::GC_ERROR write(GenTL::INFO_DATATYPE type, const void *value, std::size_t size) const;

    bool m_hasType;
    GenTL::INFO_DATATYPE *m_type;
    void *m_buffer;
    std::size_t *m_size;
};
