#pragma once

#include <string>

/// What makes the register descriptions of two cameras differ.
struct DescriptionKind
{
    bool isColor = false;
    bool isLineScan = false;
    int taps = 1;
    bool hasBigEndianChunks = false;
};

bool operator==(const DescriptionKind &left, const DescriptionKind &right);

/// Returns the name of the model in the description, which contains only letters and digits.
std::string descriptionName(const DescriptionKind &kind);

/// Returns the text of the register description. The features come from the files in description/, the
/// registers from the table of the registers.
std::string descriptionText(const DescriptionKind &kind);
