// A tool that writes the time at which main() starts to a pipe, in nanoseconds of the monotonic clock. The
// tool links Qt's widgets as the real tools do, because loading them is part of every start.

#include <cstdio>
#include <cstdlib>
#include <ctime>

int main()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    std::FILE *pipe = std::fopen(std::getenv("BENCH_START_PIPE"), "w");
    if (!pipe)
        return EXIT_FAILURE;
    std::fprintf(pipe, "%lld\n", now.tv_sec * 1'000'000'000LL + now.tv_nsec);
    return std::fclose(pipe);
}
