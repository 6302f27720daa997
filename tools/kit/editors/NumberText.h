#pragma once

#include "CvxCPP/Node.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>

// Numbers as a person reads and types them, units and the entries of enumerations.

/// Returns the integer as the camera wants it to be shown: decimal, "0x1F", "192.168.1.2" or
/// "02:00:5E:10:00:01".
QString integerText(std::int64_t value, CvxCPP::NodeRepresentation representation);

/// Returns the integer in a text of the form that integerText() writes; decimal and hexadecimal are accepted
/// for every representation, also with the separators of the present locale.
std::optional<std::int64_t> parseInteger(const QString &text, CvxCPP::NodeRepresentation representation);

/// Returns the number in the present locale, rounded to the digits that a person can use, without exponent as
/// long as this is readable.
QString floatText(double value);

/// Returns the number in a text, in the present locale or with a decimal point.
std::optional<double> parseFloat(const QString &text);

/// Returns the entry of an enumeration as the camera shows it; its name if the camera has no other text.
QString entryText(const CvxCPP::NodeInfo &info, const std::string &name);

/// Returns the unit as it is written, for example "µs" for "us".
QString unitText(const std::string &unit);
