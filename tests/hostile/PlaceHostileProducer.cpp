// The table of hostile producers for tests in other languages: "list" prints its rows, a line of JSON each;
// "place NAME FOLDER" puts one row into a folder of producers.

#include "tests/hostile/HostileProducer.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <nlohmann/json.hpp>

namespace {

using Rows = std::vector<HostileProducer>;

constexpr int UsageError = 64;

void list(const Rows &rows)
{
    for (const HostileProducer &row : rows) {
        const nlohmann::json json{{"name", row.name}, {"words", row.words}, {"file", row.file},
            {"lines", row.due == HostileProducer::Due::Never ? 0 : row.files},
            {"atStart", row.due == HostileProducer::Due::AtStart}, {"cameras", row.cameras},
            {"leavesDaemon", row.leavesDaemon}};
        std::printf("%s\n", json.dump().c_str());
    }
}

int place(const Rows &rows, const std::string &name, const std::string &folder)
{
    const auto found = std::find_if(
        rows.begin(), rows.end(), [&](const HostileProducer &row) { return row.name == name; });
    if (found == rows.end())
        return UsageError;
    found->place(folder);
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char *argv[])
try {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const Rows rows = hostileProducers();
    if (arguments.size() == 3 && arguments[0] == "place")
        return place(rows, arguments[1], arguments[2]);
    if (arguments.size() != 1 || arguments[0] != "list")
        return UsageError;
    list(rows);
    return EXIT_SUCCESS;
} catch (const std::exception &error) {
    std::fprintf(stderr, "%s\n", error.what());
    return EXIT_FAILURE;
}
