#pragma once

#include <string>

/// What perform() returns when the call is to go on as usual; everything else it returns at once.
constexpr int Continue = 1'000'000;

/// Does what a fault of a script says; see TestProducer.cpp for the actions.
int perform(const std::string &action);
