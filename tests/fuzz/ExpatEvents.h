#pragma once

#include <string>

/// Notes which events Expat makes of a document, and where it gives up. Whether it does not.
bool noteExpatEvents(const std::string &document);
