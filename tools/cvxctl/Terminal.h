#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

/// Prints "cvxctl: " and the text on standard error.
void printError(const std::string &text);

/// Prints the JSON on standard output, indented, with one line feed at the end.
void printJson(const nlohmann::ordered_json &json);

/// Returns the text with every control character as "\x1B", because names come from cameras, and a terminal
/// would obey them.
std::string printable(const std::string &text);

/// Prints the rows in columns that are as wide as their longest cell. Characters are counted, not bytes.
void printTable(const std::vector<std::vector<std::string>> &rows);
