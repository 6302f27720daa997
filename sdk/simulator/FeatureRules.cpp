#include "sdk/simulator/FeatureRules.h"

#include "sdk/simulator/ChunkTrailer.h"
#include "sdk/simulator/EnumerationValues.h"
#include "sdk/simulator/FeatureLimits.h"
#include "sdk/simulator/PixelPacking.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

using Id = RegisterId;

/// A register that the camera itself controls while another register is not 0.
struct AutoLock
{
    RegisterId id;
    RegisterId lock;
};
constexpr AutoLock autoLocks[] = {
    {Id::ExposureTime, Id::ExposureAuto},
    {Id::GainRaw, Id::GainAuto},
    {Id::BalanceRatio, Id::BalanceWhiteAuto},
};

[[noreturn]] void refuse(GenTL::GC_ERROR code, const RegisterInfo &info, const std::string &reason)
{
    throw GenTlError(code, std::string(info.name) + ' ' + reason);
}

void checkLocks(const RegisterBank &bank, const RegisterInfo &info, std::size_t element)
{
    if (info.isIn({RegisterUse::Constant, RegisterUse::Status, RegisterUse::Internal}))
        refuse(GenTL::GC_ERR_ACCESS_DENIED, info, "is read-only");
    if (info.isIn({RegisterUse::Locked, RegisterUse::LockedCommand}) && bank.isOn(Id::TLParamsLocked))
        refuse(GenTL::GC_ERR_ACCESS_DENIED, info, "is locked because a stream runs (TLParamsLocked is 1)");
    for (const AutoLock &rule : autoLocks)
        if (rule.id == info.id && bank.isOn(rule.lock))
            refuse(GenTL::GC_ERR_ACCESS_DENIED, info,
                "is locked because " + std::string(registerInfo(rule.lock).name) + " is not Off");
    if (info.id == Id::ChunkEnable && element == chunkImage)
        refuse(GenTL::GC_ERR_ACCESS_DENIED, info, "is always on for the image");
}

bool isAllowed(
    const RegisterBank &bank, const RegisterInfo &info, const RegisterBank &wanted, std::size_t element)
{
    switch (info.type) {
    case RegisterType::Text:
        return true;
    case RegisterType::Float:
        return realLimits(bank, info.id).contains(wanted.real(info.id, element));
    default:
        break;
    }
    const std::int64_t value = wanted.integer(info.id, element);
    return info.id == Id::PixelFormat ? isPixelFormatOffered(bank, value)
                                      : integerLimits(bank, info.id).contains(value);
}

/// Keeps the part of the scene that the region shows when the binning of one direction changes.
struct Region
{
    RegisterId binning;
    RegisterId size;
    RegisterId offset;
};
constexpr Region regions[] = {
    {Id::BinningHorizontal, Id::Width, Id::OffsetX},
    {Id::BinningVertical, Id::Height, Id::OffsetY},
};

void scaleRegion(RegisterBank &bank, const Region &region, std::int64_t oldBinning)
{
    const std::int64_t binning = bank.integer(region.binning);
    const std::int64_t increment = integerLimits(bank, region.size).increment;
    const auto scaled
        = [&](RegisterId id) { return bank.integer(id) * oldBinning / binning / increment * increment; };
    const std::int64_t sizeMax = region.size == Id::Width ? widthMax(bank) : heightMax(bank);
    const std::int64_t size = std::clamp(scaled(region.size), integerLimits(bank, region.size).min, sizeMax);
    bank.setInteger(region.size, size);
    bank.setInteger(region.offset, std::min(scaled(region.offset), sizeMax - size));
}

} // namespace

void checkCommand(const RegisterBank &bank, const RegisterInfo &info)
{
    checkLocks(bank, info, 0);
}

void writeRegister(
    RegisterBank &bank, const RegisterInfo &info, std::size_t element, const std::uint8_t *value)
{
    checkLocks(bank, info, element);
    RegisterBank changed = bank;
    std::memcpy(changed.bytes() + info.offset + element * info.elementSize(), value, info.elementSize());
    if (!isAllowed(bank, info, changed, element))
        refuse(GenTL::GC_ERR_INVALID_VALUE, info, "does not accept this value");
    for (const Region &region : regions)
        if (region.binning == info.id)
            scaleRegion(changed, region, bank.integer(info.id));
    if (info.id == Id::ExposureTime)
        limitRates(changed);
    updatePayloadSize(changed);
    bank = changed;
}

void limitRates(RegisterBank &bank)
{
    for (const RegisterId id : {Id::AcquisitionFrameRate, Id::AcquisitionLineRate})
        bank.setReal(id, std::min(bank.real(id), realLimits(bank, id).max));
}

void updatePayloadSize(RegisterBank &bank)
{
    const PackedFormat &format = pixelFormat(static_cast<std::uint32_t>(bank.integer(Id::PixelFormat)));
    const std::size_t imageSize = format.lineSize(static_cast<int>(bank.integer(Id::Width)))
        * static_cast<std::size_t>(bank.integer(Id::Height));
    bank.setInteger(Id::PayloadSize, static_cast<std::int64_t>(imageSize + chunkOverhead(bank)));
}
