#pragma once

#include <string>
#include <vector>

/// The texts of the Path elements inside CtiPaths, trimmed, in order, up to the end or the first fault of the
/// XML document. Nothing outside the document is ever fetched, and what its entities expand to is bounded.
std::vector<std::string> readCtiPaths(std::string document);
