#include "sdk/simulator/RegisterAccess.h"

#include "sdk/simulator/CameraCommands.h"
#include "sdk/simulator/CameraStatus.h"
#include "sdk/simulator/CameraTemperature.h"
#include "sdk/simulator/FeatureRules.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

using Id = RegisterId;

/// Part of a range that is one element of a register.
struct Place
{
    const RegisterInfo &info;
    std::size_t element;

    std::size_t start() const { return info.offset + element * info.elementSize(); }
};

Place placeAt(std::size_t offset)
{
    const auto &table = registerTable();
    const auto *const found = std::find_if(
        table.begin(), table.end(), [offset](const RegisterInfo &info) { return offset < info.end(); });
    return {*found, (offset - found->offset) / found->elementSize()};
}

/// Returns true if a change decides which pulses are triggers.
bool isTriggerSetting(RegisterId id)
{
    return id == Id::TriggerMode || id == Id::TriggerSource;
}

void writeElement(RegisterFile &registers, const CameraModel &model, const Place &place, std::size_t offset,
    const std::uint8_t *data, std::size_t size)
{
    if (place.info.isIn({RegisterUse::Command, RegisterUse::LockedCommand}))
        return executeCommand(place.info, place.element, registers, model);
    registers.update([&](RegisterBank &bank) {
        std::array<std::uint8_t, 64> value{};
        std::memcpy(value.data(), bank.bytes() + place.start(), place.info.elementSize());
        std::memcpy(value.data() + (offset - place.start()), data, size);
        writeRegister(bank, place.info, place.element, value.data());
        if (isTriggerSetting(place.info.id))
            forgetPulses(bank, registers);
    });
}

} // namespace

void writeRegisters(
    RegisterFile &registers, const CameraModel &model, std::size_t offset, const void *data, std::size_t size)
{
    const auto *next = static_cast<const std::uint8_t *>(data);
    const std::size_t end = offset + size;
    while (offset < end) {
        const Place place = placeAt(offset);
        const std::size_t part = std::min(end, place.start() + place.info.elementSize()) - offset;
        writeElement(registers, model, place, offset, next, part);
        offset += part;
        next += part;
    }
}

void endSession(RegisterBank &bank)
{
    if (bank.isOn(Id::AcquisitionActive))
        setAcquisitionActive(bank, false, monotonicNow());
    bank.setInteger(Id::TLParamsLocked, 0);
}
