#include "tests/producer/StrictRead.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>

using namespace GenTL;

namespace {

constexpr std::size_t guardSize = 32;
constexpr char guard = '\xA5';

/// The results of a call with a buffer.
struct Reply
{
    GC_ERROR code;
    INFO_DATATYPE type;
    std::string bytes;
};

/// Calls with a buffer, and checks that the call does not change the bytes after the end of the buffer.
Reply callWithBuffer(const InfoCall &call, std::size_t capacity)
{
    std::string buffer(capacity + guardSize, guard);
    INFO_DATATYPE type = INFO_DATATYPE_UNKNOWN;
    std::size_t size = capacity;
    const GC_ERROR code = call(&type, buffer.data(), &size);
    EXPECT_EQ(buffer.substr(capacity), std::string(guardSize, guard)) << "written past the end";
    EXPECT_LE(size, capacity);
    return {code, type, buffer.substr(0, size)};
}

/// Reads the bytes of a value and checks all rules. The expected type of an "ID" function is
/// INFO_DATATYPE_UNKNOWN, because the function reports no type.
std::string readBytes(const InfoCall &call, INFO_DATATYPE expectedType)
{
    INFO_DATATYPE type = INFO_DATATYPE_UNKNOWN;
    std::size_t size = 0;
    const GC_ERROR code = call(&type, nullptr, &size);
    EXPECT_EQ(code, GC_ERR_SUCCESS);
    EXPECT_EQ(type, expectedType);
    EXPECT_GT(size, 0U);
    if (code != GC_ERR_SUCCESS || size == 0)
        return {};

    const Reply exact = callWithBuffer(call, size);
    const Reply longer = callWithBuffer(call, size + 10);
    EXPECT_EQ(exact.code, GC_ERR_SUCCESS);
    EXPECT_EQ(exact.type, expectedType);
    EXPECT_EQ(exact.bytes.size(), size);
    EXPECT_EQ(longer.code, GC_ERR_SUCCESS);
    EXPECT_EQ(longer.bytes, exact.bytes);
    EXPECT_EQ(callWithBuffer(call, size - 1).code, GC_ERR_BUFFER_TOO_SMALL);
    EXPECT_EQ(callWithBuffer(call, 0).code, GC_ERR_BUFFER_TOO_SMALL);

    std::string buffer(size, '\0');
    EXPECT_EQ(call(&type, nullptr, nullptr), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(call(&type, buffer.data(), nullptr), GC_ERR_INVALID_PARAMETER);
    const bool needsType = expectedType != INFO_DATATYPE_UNKNOWN;
    EXPECT_EQ(call(nullptr, nullptr, &size), needsType ? GC_ERR_INVALID_PARAMETER : GC_ERR_SUCCESS);
    return exact.bytes;
}

std::string withoutNul(const std::string &bytes)
{
    EXPECT_EQ(bytes.find('\0') + 1, bytes.size()) << "one NUL, at the end";
    return bytes.substr(0, bytes.find('\0'));
}

template <typename Value>
Value toValue(const std::string &bytes)
{
    Value value{};
    EXPECT_EQ(bytes.size(), sizeof value);
    std::memcpy(&value, bytes.data(), std::min(bytes.size(), sizeof value));
    return value;
}

} // namespace

std::string readId(const InfoCall &call)
{
    return withoutNul(readBytes(call, INFO_DATATYPE_UNKNOWN));
}

std::string readString(const InfoCall &call)
{
    return withoutNul(readBytes(call, INFO_DATATYPE_STRING));
}

std::vector<std::string> readStringList(const InfoCall &call)
{
    const std::string bytes = readBytes(call, INFO_DATATYPE_UNKNOWN);
    std::vector<std::string> strings;
    std::size_t start = 0;
    for (std::size_t end = bytes.find('\0'); end != start && end != std::string::npos;
         end = bytes.find('\0', start)) {
        strings.push_back(bytes.substr(start, end - start));
        start = end + 1;
    }
    EXPECT_EQ(start + 1, bytes.size()) << "one more NUL, at the end";
    return strings;
}

std::int32_t readNumber(const InfoCall &call, INFO_DATATYPE type)
{
    return toValue<std::int32_t>(readBytes(call, type));
}

std::uint64_t readLong(const InfoCall &call, INFO_DATATYPE type)
{
    return toValue<std::uint64_t>(readBytes(call, type));
}

bool readBool(const InfoCall &call)
{
    const auto byte = toValue<bool8_t>(readBytes(call, INFO_DATATYPE_BOOL8));
    EXPECT_LE(byte, 1);
    return byte != 0;
}

std::string readBuffer(const InfoCall &call)
{
    return readBytes(call, INFO_DATATYPE_BUFFER);
}

GC_ERROR codeOf(const InfoCall &call)
{
    INFO_DATATYPE type = INFO_DATATYPE_UNKNOWN;
    std::size_t size = 0;
    return call(&type, nullptr, &size);
}
