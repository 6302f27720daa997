#pragma once

#include "tests/producer/ProducerSession.h"

#include <cstdlib>
#include <stdexcept>

/// Returns the file of the producer that the conformance tests check.
inline std::filesystem::path producerUnderTest()
{
    const char *const file = std::getenv("PRODUCER_UNDER_TEST");
    return file ? file : throw std::runtime_error("PRODUCER_UNDER_TEST must name a producer file.");
}

/// Provides an initialised producer with an open system module.
class Conformance : public testing::Test
{
protected:
    const LoadedProducer &producer() const { return session.producer(); }

    const ProducerSession session{producerUnderTest()};
};
