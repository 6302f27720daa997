#include "sdk/simulator/RegisterLayout.h"

const std::array<RegisterInfo, registerCount> &registerTable()
{
    static const std::array<RegisterInfo, registerCount> table = [] {
        std::array<RegisterInfo, registerCount> registers{{
#define CORVIX_REGISTER_INFO(name, type, elements, use, selector, invalidator)                               \
    {RegisterId::name, #name, RegisterType::type, elements, RegisterUse::use, selector, invalidator},
            CORVIX_SIMULATOR_REGISTERS(CORVIX_REGISTER_INFO)
#undef CORVIX_REGISTER_INFO
        }};
        std::size_t offset = 0;
        for (RegisterInfo &info : registers) {
            info.offset = offset;
            offset = info.end();
        }
        return registers;
    }();
    return table;
}

const RegisterInfo &registerInfo(RegisterId id)
{
    return registerTable()[static_cast<std::size_t>(id)];
}
