// Prints the register description that the build compresses.

#include "sdk/simulator/DescriptionText.h"
#include "sdk/simulator/ZippedDescription.h"

#include <cstdio>

int main()
{
    const std::string text = descriptionText(zippedKind);
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() ? 0 : 1;
}
