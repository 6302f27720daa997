#include "tools/cvxctl/Terminal.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

/// Returns the number of characters of a UTF-8 text.
std::size_t lengthOf(const std::string &text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return (byte & '\xC0') != '\x80'; }));
}

} // namespace

void printError(const std::string &text)
{
    std::fprintf(stderr, "cvxctl: %s\n", printable(text).c_str());
}

void printJson(const nlohmann::ordered_json &json)
{
    const std::string text = json.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
    std::printf("%s\n", text.c_str());
}

std::string printable(const std::string &text)
{
    std::string result;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte >= 0x20 && byte != 0x7F) {
            result += character;
            continue;
        }
        std::array<char, 5> escape{};
        std::snprintf(escape.data(), escape.size(), "\\x%02X", byte);
        result += escape.data();
    }
    return result;
}

void printTable(const std::vector<std::vector<std::string>> &rows)
{
    std::vector<std::size_t> widths;
    for (const auto &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], lengthOf(row[column]));
    }
    for (const auto &row : rows) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            line += row[column];
            if (column + 1 < row.size())
                line.append(widths[column] - lengthOf(row[column]) + 2, ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        std::printf("%s\n", line.c_str());
    }
}
