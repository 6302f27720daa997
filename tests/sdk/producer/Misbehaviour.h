#pragma once

#include <string>

/// Result of perform() if the call continues as usual. The caller returns every other result at once.
constexpr int continueCall = 1'000'000;

/// Performs the action of a script's fault; TestProducer.cpp lists the actions.
int perform(const std::string &action);
