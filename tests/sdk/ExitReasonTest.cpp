#include "sdk/process/ExitReason.h"

#include <csignal>
#include <gtest/gtest.h>

TEST(ExitReasonTest, reasonContainsTheSignal)
{
    EXPECT_EQ(exitReason(SIGSEGV), "was ended by SIGSEGV (Segmentation fault)");
    EXPECT_EQ(exitReason(SIGABRT | 0x80), "was ended by SIGABRT (Aborted)"); // Bit 0x80 marks a core dump.
    EXPECT_EQ(exitReason(50), "was ended by signal 50");
}

TEST(ExitReasonTest, reasonContainsTheExitCode)
{
    EXPECT_EQ(exitReason(7 << 8), "exited with code 7");
    EXPECT_EQ(exitReason(0), "exited with code 0");
    EXPECT_EQ(exitReason(-1), "ended");
    EXPECT_EQ(exitReason(113 << 8), "closed its host's connection");
}

TEST(ExitReasonTest, reasonContainsTheCallAndItsErrorCode)
{
    EXPECT_EQ(callReason("TLOpen", -1001, "no"), "TLOpen failed with -1001 (GC_ERR_ERROR): no");
    EXPECT_EQ(callReason("TLOpen", -1023, ""), "TLOpen failed with -1023 (GC_ERR_AMBIGUOUS)");
    EXPECT_EQ(callReason("TLOpen", -1024, ""), "TLOpen failed with -1024 (not a GenTL code)");
    EXPECT_EQ(callReason("TLOpen", 5, ""), "TLOpen failed with 5 (not a GenTL code)");
    EXPECT_EQ(callReason("TLOpen", -10000, ""), "TLOpen failed with -10000 (specific to the producer)");
    EXPECT_EQ(callReason("dlopen", 0, "no such file"), "dlopen failed: no such file");
}
