/* Prints the number of cameras of a producer, and the milliseconds that the enumeration takes. */
#define _POSIX_C_SOURCE 200809L
#include "bench/programs/directListing.h"

#include <stdio.h>
#include <time.h>

static double milliseconds(void)
{
    struct timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return (double)now.tv_sec * 1e3 + (double)now.tv_nsec / 1e6;
}

int main(int argc, char *argv[])
{
    if (argc != 2)
        return 2;
    const double start = milliseconds();
    const int count = listDirectly(argv[1]);
    printf("%d %.3f\n", count, milliseconds() - start);
    return count < 0;
}
