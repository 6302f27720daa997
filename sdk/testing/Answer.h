#pragma once

#include "sdk/testing/Script.h"

namespace CvxScripted {

/// Records the call and gives what the script makes of it, before any record is asked.
CvxCPP::CvxError answer(Call call);

} // namespace CvxScripted
