#pragma once

#include "sdk/gentl/GenTL.h"

#include <string>
#include <vector>

/// The output arguments of an "ID" or "Info" function. The class implements the two-call protocol of GenTL: a
/// call without a buffer returns the size of the value, a call with a buffer returns the value itself. The
/// size of a string includes the terminating NUL.
class InfoOutput
{
public:
    /// Creates the output of an "ID" function, which reports no data type.
    InfoOutput(char *buffer, std::size_t *size);
    /// Creates the output of an "Info" function.
    InfoOutput(GenTL::INFO_DATATYPE *type, void *buffer, std::size_t *size);

    /// Returns false if a required output argument is null. Call isComplete() before any write function.
    bool isComplete() const;

    // Each write function returns GC_ERR_SUCCESS. If the buffer is too small, the function writes nothing and
    // returns GC_ERR_BUFFER_TOO_SMALL.

    /// Writes the string up to its first NUL.
    GenTL::GC_ERROR writeString(const std::string &value) const;
    GenTL::GC_ERROR writeInt32(std::int32_t value) const;
    GenTL::GC_ERROR writeUint32(std::uint32_t value) const;
    GenTL::GC_ERROR writeUint64(std::uint64_t value) const;
    GenTL::GC_ERROR writeSize(std::size_t value) const;
    GenTL::GC_ERROR writePointer(void *value) const;
    GenTL::GC_ERROR writeBool8(bool value) const;
    GenTL::GC_ERROR writeBytes(const void *data, std::size_t size) const;
    /// Writes the strings one after another, each with its NUL, and one more NUL.
    GenTL::GC_ERROR writeStringList(const std::vector<std::string> &values) const;

private:
    GenTL::GC_ERROR write(GenTL::INFO_DATATYPE type, const void *value, std::size_t size) const;

    bool m_hasType;
    GenTL::INFO_DATATYPE *m_type;
    void *m_buffer;
    std::size_t *m_size;
};
