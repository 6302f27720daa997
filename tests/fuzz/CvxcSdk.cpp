// CvxC.xml as the SDK library reads it.

#include "sdk/cvxcpp/CtiSearchPath.h"
#include "sdk/cvxcpp/Utf8.h"
#include "tests/fuzz/ExpatEvents.h"
#include "tests/fuzz/FuzzTarget.h"
#include "tests/fuzz/Installation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const Installation &installation = Installation::get();
    const std::string document = textOf(data, size);
    noteExpatEvents(document);
    installation.writeDocument(document);
    const auto directories = configuredCtiDirectories(installation.root(), installation.document());
    installation.requireDirectories(directories);
    for (const std::string &directory : directories)
        require(toValidUtf8(directory) == directory, "a directory's name is valid UTF-8");
    return 0;
}
