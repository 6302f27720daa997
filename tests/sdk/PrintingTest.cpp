#include "tests/sdk/support/SystemTest.h"

#include <fcntl.h>
#include <unistd.h>

using PrintingTest = SystemTest;

TEST_F(PrintingTest, ADriverMayPrintWhereNobodyReads)
{
    const int output = dup(STDOUT_FILENO);
    int ends[2] = {-1, -1};
    ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
    close(ends[0]);
    dup2(ends[1], STDOUT_FILENO);
    addProducer("a", "fault IFUpdateDeviceList print\n" + cameras(2));
    start();
    const bool isListed = waitUntil([this] { return list().size() == 2; });
    stop();
    dup2(output, STDOUT_FILENO); // Before a failure is printed.
    close(output);
    close(ends[1]);
    EXPECT_TRUE(isListed);
    EXPECT_TRUE(reports().empty()) << testing::PrintToString(reports());
}
