#include "tests/producer/ProducersUnderTest.h"

#include <gtest/gtest.h>

/// Runs the tests over the producers whose files are named on the command line.
int main(int argc, char **argv)
{
    // Before InitGoogleTest, which asks for the parameters of the tests.
    for (int i = 1; i < argc; ++i)
        if (std::string(argv[i]).rfind("--", 0) != 0)
            producersUnderTest().emplace_back(argv[i]);
    testing::InitGoogleTest(&argc, argv);
    if (producersUnderTest().empty())
        return (std::fputs("Name at least one producer file.\n", stderr), 2);
    return RUN_ALL_TESTS();
}
