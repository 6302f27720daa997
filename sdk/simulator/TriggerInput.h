#pragma once

#include "sdk/simulator/RegisterFile.h"

#include <optional>

/// The triggers of one kind: at the start of the acquisition, of frames or of lines. They come from commands
/// of the consumer, from pulses that any process adds to the register file, or from simulated signals.
class TriggerInput
{
public:
    /// @param trigger One of the values of TriggerSelector.
    TriggerInput(const RegisterFile &registers, std::size_t trigger);

    /// Takes over the settings. Returns true if the triggers are on or were on, and come from another
    /// signal than before.
    bool update(const RegisterBank &bank);

    bool isOn() const { return m_isOn; }

    /// Waits for a number of triggers at or after a time: returns when the last one takes effect, which may
    /// be in the future, or nothing if not enough triggers have arrived. All times are nanoseconds of the
    /// monotonic clock.
    std::optional<std::int64_t> take(std::uint32_t count, std::int64_t from);

    /// Ignores the triggers that have arrived and were not taken.
    void discard();

private:
    void updateSource(const RegisterBank &bank);

    const RegisterFile &m_registers;
    const std::size_t m_trigger;
    bool m_isOn = false;
    double m_frequency = 0; // Frequency of the signal; 0 if the source counts pulses.
    std::int64_t m_activation = 0;
    std::int64_t m_delay = 0; // Nanoseconds.
    double m_triggersPerPulse = 1;
    std::optional<std::size_t> m_input; // Input that counts the pulses; nothing for the encoder.
    std::uint32_t m_usedPulses = 0;
};
