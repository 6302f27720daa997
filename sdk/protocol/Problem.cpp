#include "sdk/protocol/Problem.h"

#include "sdk/protocol/JsonConversions.h"

CORVIX_JSON_CONVERSIONS(Problem, call, code, text)
