// Prints the milliseconds that libaravis alone takes to parse a register description.
//
// usage: bench_parse_description FILE

#include "bench/programs/Timing.h"

#include <arv.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

int main(int argc, char *argv[])
{
    if (argc != 2)
        return EXIT_FAILURE;
    std::ifstream file(argv[1]);
    const std::string xml{std::istreambuf_iterator<char>(file), {}};
    arv_gc_get_type();
    const auto start = Clock::now();
    ArvGc *const features = arv_gc_new(nullptr, xml.data(), xml.size());
    const double time = microsecondsSince(start);
    if (!features || !arv_gc_get_node(features, "Root"))
        return EXIT_FAILURE;
    std::printf("%f\n", time / 1000);
    g_object_unref(features);
    return EXIT_SUCCESS;
}
