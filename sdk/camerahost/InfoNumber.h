#pragma once

#include "sdk/gentl/GenTLDevice.h"

#include <cstddef>
#include <cstdint>

/// A producer's answer to the question for one number or truth value.
struct InfoNumber
{
    GenTL::GC_ERROR code = GenTL::GC_ERR_SUCCESS;
    std::uint64_t value = 0;

    bool isKnown() const { return code == GenTL::GC_ERR_SUCCESS; }
    std::uint64_t valueOr(std::uint64_t other) const { return isKnown() ? value : other; }
};

/// Calls a function of a producer. An exception is a failure. Unlike ProducerLibrary::call(), does not ask
/// for the error text, because these calls are made for every image.
template <typename Function, typename... Arguments>
GenTL::GC_ERROR callQuietly(Function function, Arguments... arguments)
{
    try {
        return function(arguments...);
    } catch (...) {
        return GenTL::GC_ERR_ERROR;
    }
}

/// Reads a number of any size, because producers answer with other types than they should.
/// @param query Calls the producer with the addresses of the type, the value and the size.
template <typename Query>
InfoNumber readNumber(const Query &query)
{
    InfoNumber number;
    GenTL::INFO_DATATYPE type = GenTL::INFO_DATATYPE_UNKNOWN;
    std::size_t size = sizeof(number.value);
    number.code = callQuietly(query, &type, static_cast<void *>(&number.value), &size);
    const bool isNumber = type != GenTL::INFO_DATATYPE_STRING && type != GenTL::INFO_DATATYPE_STRINGLIST;
    if (number.isKnown() && (!isNumber || size > sizeof(number.value)))
        number.code = GenTL::GC_ERR_INVALID_VALUE;
    return number;
}
