#pragma once

#include "sdk/simulator/RegisterLayout.h"

#include <array>
#include <cstdint>
#include <string>

/// The values of all registers at one moment.
class RegisterBank
{
public:
    std::int64_t integer(RegisterId id, std::size_t element = 0) const;
    void setInteger(RegisterId id, std::int64_t value, std::size_t element = 0);
    bool isOn(RegisterId id, std::size_t element = 0) const { return integer(id, element) != 0; }

    double real(RegisterId id, std::size_t element = 0) const;
    void setReal(RegisterId id, double value, std::size_t element = 0);

    std::string text(RegisterId id) const;
    void setText(RegisterId id, const std::string &value); ///< Cuts off what does not fit.

    std::uint8_t *bytes() { return m_bytes.data(); }
    const std::uint8_t *bytes() const { return m_bytes.data(); }

    static constexpr std::size_t wordCount = registersSize / 8;

private:
    alignas(8) std::array<std::uint8_t, registersSize> m_bytes{};
};
