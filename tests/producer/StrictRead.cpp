#include "tests/producer/StrictRead.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

using namespace GenTL;

namespace {

constexpr std::size_t guardSize = 32;
constexpr char guard = '\xA5';

/// Calls with a buffer of this capacity that has a guarded zone behind it. Returns the content of the buffer.
std::string readInto(const InfoCall &call, std::size_t capacity, GC_ERROR expected, std::size_t *size)
{
    std::string buffer(capacity + guardSize, guard);
    INFO_DATATYPE type = INFO_DATATYPE_UNKNOWN;
    *size = capacity;
    EXPECT_EQ(call(&type, buffer.data(), size), expected) << capacity << " bytes";
    EXPECT_EQ(buffer.substr(capacity), std::string(guardSize, guard)) << "written past the end";
    return buffer.substr(0, std::min(*size, capacity));
}

std::string readBytes(const InfoCall &call)
{
    INFO_DATATYPE type = INFO_DATATYPE_UNKNOWN;
    std::size_t size = 0;
    const GC_ERROR code = call(&type, nullptr, &size);
    EXPECT_EQ(code, GC_ERR_SUCCESS);
    EXPECT_GT(size, 0U);
    if (code != GC_ERR_SUCCESS || size == 0)
        return {};

    std::size_t exact = 0;
    std::size_t longer = 0;
    std::size_t ignored = 0;
    std::string value = readInto(call, size, GC_ERR_SUCCESS, &exact);
    EXPECT_EQ(exact, size);
    EXPECT_EQ(readInto(call, size + 10, GC_ERR_SUCCESS, &longer), value);
    EXPECT_EQ(longer, size);
    readInto(call, size - 1, GC_ERR_BUFFER_TOO_SMALL, &ignored);
    readInto(call, 0, GC_ERR_BUFFER_TOO_SMALL, &ignored);

    EXPECT_EQ(call(&type, nullptr, nullptr), GC_ERR_INVALID_PARAMETER);
    std::string buffer(size, '\0');
    EXPECT_EQ(call(&type, buffer.data(), nullptr), GC_ERR_INVALID_PARAMETER);
    return value;
}

std::string withoutNul(const std::string &bytes)
{
    EXPECT_EQ(bytes.find('\0') + 1, bytes.size()) << "one NUL, at the end";
    return bytes.substr(0, bytes.find('\0'));
}

void expectType(const InfoCall &call, INFO_DATATYPE expected)
{
    INFO_DATATYPE type = INFO_DATATYPE_UNKNOWN;
    std::size_t size = 0;
    EXPECT_EQ(call(&type, nullptr, &size), GC_ERR_SUCCESS);
    EXPECT_EQ(type, expected) << "without a buffer";

    type = INFO_DATATYPE_UNKNOWN;
    std::string buffer(size, '\0');
    EXPECT_EQ(call(&type, buffer.data(), &size), GC_ERR_SUCCESS);
    EXPECT_EQ(type, expected) << "with a buffer";

    EXPECT_EQ(call(nullptr, nullptr, &size), GC_ERR_INVALID_PARAMETER);
}

template <typename Number>
Number readNumber(const InfoCall &call, INFO_DATATYPE type)
{
    expectType(call, type);
    const std::string bytes = readBytes(call);
    Number number{};
    EXPECT_EQ(bytes.size(), sizeof number);
    std::memcpy(&number, bytes.data(), std::min(bytes.size(), sizeof number));
    return number;
}

} // namespace

std::string readId(const InfoCall &call)
{
    return withoutNul(readBytes(call));
}

std::string readString(const InfoCall &call)
{
    expectType(call, INFO_DATATYPE_STRING);
    return withoutNul(readBytes(call));
}

std::int32_t readInt32(const InfoCall &call)
{
    return readNumber<std::int32_t>(call, INFO_DATATYPE_INT32);
}

std::uint32_t readUint32(const InfoCall &call)
{
    return readNumber<std::uint32_t>(call, INFO_DATATYPE_UINT32);
}

GC_ERROR codeOf(const InfoCall &call)
{
    INFO_DATATYPE type = INFO_DATATYPE_UNKNOWN;
    std::size_t size = 0;
    return call(&type, nullptr, &size);
}
