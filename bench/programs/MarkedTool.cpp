// A tool that tells when its main() is reached, in nanoseconds of the monotonic clock, and does nothing else.
// It is linked as the stand-in for the tools is, whose loading is part of every start.

#include <cstdio>
#include <cstdlib>
#include <ctime>

int main()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    std::FILE *note = std::fopen(std::getenv("BENCH_NOTE"), "w");
    if (!note)
        return EXIT_FAILURE;
    std::fprintf(note, "%lld\n", now.tv_sec * 1'000'000'000LL + now.tv_nsec);
    return std::fclose(note);
}
