#include "tests/producer/StrictRead.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

using namespace GenTL;

namespace {

constexpr unsigned char untouched = 0xA5;
constexpr std::size_t guardSize = 32;

/// A buffer of some capacity with a guarded zone behind it.
struct GuardedBuffer
{
    explicit GuardedBuffer(std::size_t capacityInBytes)
        : capacity(capacityInBytes), bytes(capacityInBytes + guardSize, untouched)
    { }

    bool guardIsIntact() const
    {
        return std::all_of(bytes.begin() + static_cast<std::ptrdiff_t>(capacity), bytes.end(),
            [](unsigned char byte) { return byte == untouched; });
    }

    std::size_t capacity;
    std::vector<unsigned char> bytes;
};

/// The value, if a buffer of this capacity is long enough for all of it.
std::string readInto(const InfoCall &call, std::size_t capacity, std::size_t expectedSize)
{
    GuardedBuffer buffer(capacity);
    INFO_DATATYPE type = INFO_DATATYPE_UNKNOWN;
    std::size_t size = capacity;
    EXPECT_EQ(call(&type, buffer.bytes.data(), &size), GC_ERR_SUCCESS);
    EXPECT_EQ(size, expectedSize);
    EXPECT_TRUE(buffer.guardIsIntact());
    return {buffer.bytes.begin(), buffer.bytes.begin() + static_cast<std::ptrdiff_t>(expectedSize)};
}

void expectTooSmall(const InfoCall &call, std::size_t capacity)
{
    GuardedBuffer buffer(capacity);
    INFO_DATATYPE type = INFO_DATATYPE_UNKNOWN;
    std::size_t size = capacity;
    EXPECT_EQ(call(&type, buffer.bytes.data(), &size), GC_ERR_BUFFER_TOO_SMALL) << capacity << " bytes";
    EXPECT_TRUE(buffer.guardIsIntact());
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

    std::string value = readInto(call, size, size);
    EXPECT_EQ(readInto(call, size + 10, size), value);
    expectTooSmall(call, size - 1);
    expectTooSmall(call, 0);

    EXPECT_EQ(call(&type, nullptr, nullptr), GC_ERR_INVALID_PARAMETER);
    std::vector<unsigned char> buffer(size);
    EXPECT_EQ(call(&type, buffer.data(), nullptr), GC_ERR_INVALID_PARAMETER);
    return value;
}

std::string withoutNul(const std::string &bytes)
{
    EXPECT_EQ(bytes.find('\0'), bytes.size() - 1) << "one NUL, and that at the end";
    return bytes.substr(0, bytes.find('\0'));
}

void expectType(const InfoCall &call, INFO_DATATYPE expected)
{
    INFO_DATATYPE type = INFO_DATATYPE_UNKNOWN;
    std::size_t size = 0;
    EXPECT_EQ(call(&type, nullptr, &size), GC_ERR_SUCCESS);
    EXPECT_EQ(type, expected) << "asked for the size";

    type = INFO_DATATYPE_UNKNOWN;
    std::vector<unsigned char> buffer(size);
    EXPECT_EQ(call(&type, buffer.data(), &size), GC_ERR_SUCCESS);
    EXPECT_EQ(type, expected) << "asked for the value";

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

std::string readText(const InfoCall &call)
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
