#include "sdk/simulator/TriggerInput.h"

#include "sdk/simulator/LineSignal.h"

#include <cmath>
#include <tuple>

using Id = RegisterId;

TriggerInput::TriggerInput(const RegisterFile &registers, std::size_t trigger)
    : m_registers(registers), m_trigger(trigger)
{ }

bool TriggerInput::update(const RegisterBank &bank)
{
    const auto signal = [this] { return std::tuple(m_isOn, m_activation, m_input, m_frequency); };
    const auto oldSignal = signal();
    const bool wasOn = m_isOn;
    const std::optional<std::size_t> oldInput = m_input;
    m_isOn = bank.isOn(Id::TriggerMode, m_trigger);
    m_activation = bank.integer(Id::TriggerActivation, m_trigger);
    m_delay = static_cast<std::int64_t>(bank.real(Id::TriggerDelay, m_trigger) * 1e3);
    updateSource(bank);
    if (m_input) {
        const auto forgotten = static_cast<std::uint32_t>(bank.integer(Id::UsedPulses, *m_input));
        // The counters may have wrapped around.
        if (m_input != oldInput || static_cast<std::int32_t>(forgotten - m_usedPulses) > 0)
            m_usedPulses = forgotten;
    }
    return (m_isOn || wasOn) && signal() != oldSignal;
}

void TriggerInput::updateSource(const RegisterBank &bank)
{
    const std::int64_t source = bank.integer(Id::TriggerSource, m_trigger);
    m_input = m_trigger;
    m_frequency = 0;
    if (source == encoderSource) {
        m_input.reset();
        m_frequency = encoderFrequency(bank);
    } else if (source != softwareSource) {
        const auto line = static_cast<std::size_t>(source - line0Source);
        m_input = lineInput + line;
        m_frequency = bank.real(Id::LineSignalFrequency, line);
    }
    m_triggersPerPulse = triggersPerPulse(bank, m_trigger);
    m_frequency *= m_triggersPerPulse;
}

std::optional<std::int64_t> TriggerInput::take(std::uint32_t count, std::int64_t from)
{
    if (m_frequency > 0)
        return LineSignal{m_frequency}.edgeTime(m_activation, from, count) + m_delay;
    const auto pulses = static_cast<std::uint32_t>(std::ceil(count / m_triggersPerPulse));
    if (!m_input || m_registers.pulses(*m_input) - m_usedPulses < pulses)
        return std::nullopt;
    m_usedPulses += pulses;
    return monotonicNow() + m_delay;
}

void TriggerInput::discard()
{
    if (m_input)
        m_usedPulses = m_registers.pulses(*m_input);
}
