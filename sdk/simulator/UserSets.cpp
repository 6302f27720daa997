#include "sdk/simulator/UserSets.h"

#include "sdk/simulator/FeatureRules.h"

#include <cstring>

namespace {

void copyRegister(RegisterBank &to, const RegisterBank &from, const RegisterInfo &info)
{
    std::memcpy(to.bytes() + info.offset, from.bytes() + info.offset, info.end() - info.offset);
}

} // namespace

void applyUserSet(RegisterBank &bank, const RegisterBank &set)
{
    for (const RegisterInfo &info : registerTable())
        if (info.isInUserSet())
            copyRegister(bank, set, info);
    updatePayloadSize(bank);
}

void keepOverRestart(RegisterBank &powerOn, const RegisterBank &before)
{
    for (const RegisterInfo &info : registerTable())
        if (info.use == RegisterUse::Kept)
            copyRegister(powerOn, before, info);
}

bool hasSameSettings(const RegisterBank &left, const RegisterBank &right)
{
    for (const RegisterInfo &info : registerTable())
        if (info.isInUserSet()
            && std::memcmp(left.bytes() + info.offset, right.bytes() + info.offset, info.end() - info.offset)
                != 0)
            return false;
    return true;
}
