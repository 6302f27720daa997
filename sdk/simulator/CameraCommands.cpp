#include "sdk/simulator/CameraCommands.h"

#include "sdk/simulator/CameraStatus.h"
#include "sdk/simulator/CameraTemperature.h"
#include "sdk/simulator/FeatureRules.h"
#include "sdk/simulator/UserSets.h"

namespace {

using Id = RegisterId;

void start(RegisterBank &bank, const RegisterFile &registers)
{
    setAcquisitionActive(bank, true, monotonicNow());
    bank.setInteger(Id::AcquisitionStarts, bank.integer(Id::AcquisitionStarts) + 1);
    forgetPulses(bank, registers);
}

/// Returns the contents of a user set; those after power-on if it is the default one or was never saved.
RegisterBank userSet(std::int64_t set, const RegisterFile &registers, const CameraModel &model)
{
    return registers.userSet(static_cast<std::size_t>(set)).value_or(powerOnRegisters(model));
}

void saveUserSet(const RegisterBank &bank, RegisterFile &registers)
{
    const std::int64_t set = bank.integer(Id::UserSetSelector);
    if (set == defaultUserSet)
        throw GenTlError(GenTL::GC_ERR_ACCESS_DENIED, "The default user set cannot be overwritten");
    registers.saveUserSet(static_cast<std::size_t>(set), bank);
}

void reset(RegisterFile &registers, const CameraModel &model)
{
    const RegisterBank before = registers.load();
    RegisterBank powerOn = powerOnRegisters(model);
    keepOverRestart(powerOn, before);
    applyUserSet(powerOn, userSet(before.integer(Id::UserSetDefault), registers, model));
    registers.restart(powerOn);
}

void changeRegisters(
    RegisterId command, RegisterBank &bank, RegisterFile &registers, const CameraModel &model)
{
    switch (command) {
    case Id::AcquisitionStart:
        return start(bank, registers);
    case Id::AcquisitionStop:
        return setAcquisitionActive(bank, false, monotonicNow());
    case Id::TimestampReset:
        return bank.setInteger(Id::TimestampOrigin, monotonicNow());
    case Id::TimestampLatch:
        return bank.setInteger(Id::TimestampLatchValue, timestampAt(bank, monotonicNow()));
    case Id::EncoderReset:
        return bank.setInteger(Id::EncoderOrigin, monotonicNow());
    case Id::UserSetLoad:
        return applyUserSet(bank, userSet(bank.integer(Id::UserSetSelector), registers, model));
    case Id::UserSetSave:
        return saveUserSet(bank, registers);
    default:
        return;
    }
}

} // namespace

void executeCommand(
    const RegisterInfo &command, std::size_t element, RegisterFile &registers, const CameraModel &model)
{
    checkCommand(registers.load(), command);
    if (command.id == Id::DeviceReset)
        return reset(registers, model);
    if (command.id == Id::TriggerSoftware)
        return registers.addPulse(element);
    registers.update([&](RegisterBank &bank) { changeRegisters(command.id, bank, registers, model); });
}
