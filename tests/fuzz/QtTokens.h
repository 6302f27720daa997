#pragma once

#include <string>

/// Notes which tokens Qt's XML reader makes of a document, and where it gives up. Whether it does not.
bool noteQtTokens(const std::string &document);
