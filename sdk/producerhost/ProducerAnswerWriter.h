#pragma once

#include "sdk/producerhost/InterfaceUpdater.h"
#include "sdk/producerhost/Problem.h"

#include <string>
#include <vector>

// Answers as one line of JSON each, closed by a line feed. Bytes that are no UTF-8 become U+FFFD.

/// The whole list.
std::string listAnswer(const std::vector<OpenInterface> &interfaces, const std::vector<Problem> &problems);

/// One interface; null says that there is none of that number.
std::string interfaceAnswer(const OpenInterface *interface);

/// The producer is of no use; the process ends after this answer.
std::string errorAnswer(const Problem &problem);

/// The producer is closed; the process ends after this answer.
std::string endAnswer(const std::vector<Problem> &problems);
