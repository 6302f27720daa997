#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

/// The producer files that the conformance tests run over, filled by main().
inline std::vector<std::filesystem::path> &producersUnderTest()
{
    static std::vector<std::filesystem::path> files;
    return files;
}

/// For INSTANTIATE_TEST_SUITE_P: a test's name ends in the producer's.
inline std::string producerTestName(const testing::TestParamInfo<std::filesystem::path> &info)
{
    return info.param.stem().string();
}
