#pragma once

#include <string>
#include <vector>

/// Returns the text of every Path element inside a CtiPaths element of an XML document, in order.
///
/// Element names are compared without their namespace prefix and without regard to case. White space around
/// a path is removed, and empty paths are left out. Expat parses the document, which may be encoded in
/// UTF-8, UTF-16, ISO-8859-1 or US-ASCII. If the document contains an error, the result contains the paths
/// that are complete before the error. External entities are not loaded.
std::vector<std::string> readCtiPaths(const std::string &document);
