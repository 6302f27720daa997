// CvxC.xml as the launcher reads it.

#include "tests/fuzz/FuzzTarget.h"
#include "tests/fuzz/Installation.h"
#include "tests/fuzz/LauncherDirectories.h"
#include "tests/fuzz/QtTokens.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const Installation &installation = Installation::get();
    const std::string document = textOf(data, size);
    noteQtTokens(document);
    installation.writeDocument(document);
    installation.requireDirectories(launcherDirectories(installation.root()));
    return 0;
}
