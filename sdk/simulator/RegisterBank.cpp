#include "sdk/simulator/RegisterBank.h"

#include <algorithm>
#include <cstring>

namespace {

std::size_t offsetOf(RegisterId id, std::size_t element)
{
    const RegisterInfo &info = registerInfo(id);
    return info.offset + element * info.elementSize();
}

template <typename Value>
Value valueAt(const std::uint8_t *address)
{
    Value value;
    std::memcpy(&value, address, sizeof value);
    return value;
}

} // namespace

std::int64_t RegisterBank::integer(RegisterId id, std::size_t element) const
{
    const std::uint8_t *const address = bytes() + offsetOf(id, element);
    return registerInfo(id).type == RegisterType::Integer ? valueAt<std::uint32_t>(address)
                                                          : valueAt<std::int64_t>(address);
}

void RegisterBank::setInteger(RegisterId id, std::int64_t value, std::size_t element)
{
    std::memcpy(bytes() + offsetOf(id, element), &value, registerInfo(id).valueSize());
}

double RegisterBank::real(RegisterId id, std::size_t element) const
{
    return valueAt<double>(bytes() + offsetOf(id, element));
}

void RegisterBank::setReal(RegisterId id, double value, std::size_t element)
{
    std::memcpy(bytes() + offsetOf(id, element), &value, sizeof value);
}

std::string RegisterBank::text(RegisterId id) const
{
    const auto *const start = reinterpret_cast<const char *>(bytes() + offsetOf(id, 0));
    return {start, strnlen(start, registerInfo(id).elementSize())};
}

void RegisterBank::setText(RegisterId id, const std::string &value)
{
    const std::size_t size = registerInfo(id).elementSize();
    std::uint8_t *const start = bytes() + offsetOf(id, 0);
    std::memset(start, 0, size);
    std::memcpy(start, value.data(), std::min(size, value.size()));
}
