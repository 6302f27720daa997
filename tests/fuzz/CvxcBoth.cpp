// CvxC.xml as the launcher and as the SDK library read it: both find the same directories.

#include "sdk/cvxcpp/CtiSearchPath.h"
#include "tests/fuzz/ExpatEvents.h"
#include "tests/fuzz/FuzzTarget.h"
#include "tests/fuzz/Installation.h"
#include "tests/fuzz/LauncherDirectories.h"
#include "tests/fuzz/QtTokens.h"

#include <algorithm>
#include <cstdio>

namespace {

using Directories = std::vector<std::string>;

void print(const char *reader, const Directories &directories)
{
    std::fprintf(stderr, "%s:\n", reader);
    for (const std::string &directory : directories)
        std::fprintf(stderr, "    %s\n", directory.c_str());
}

/// Without the carriage returns that reading in text mode drops; not in UTF-16.
std::string inTextMode(std::string document)
{
    if (document.substr(0, 4).find('\0') == std::string::npos)
        document.erase(std::remove(document.begin(), document.end(), '\r'), document.end());
    return document;
}

bool hasTypeDeclaration(std::string document)
{
    document.erase(std::remove(document.begin(), document.end(), '\0'), document.end()); // Of UTF-16.
    return document.find("<!DOCTYPE") != std::string::npos;
}

/// The others were read further, or these not at all.
bool isBeginning(const Directories &some, const Directories &others, const Directories &fallback)
{
    return some == fallback
        || (some.size() <= others.size() && std::equal(some.begin(), some.end(), others.begin()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const Installation &installation = Installation::get();
    const std::string document = textOf(data, size);
    const std::string text = inTextMode(document);
    const bool isReadByQt = noteQtTokens(text);
    const bool isReadByExpat = noteExpatEvents(text);
    installation.writeDocument(document);
    const Directories launcher = launcherDirectories(installation.root());
    const Directories sdk = configuredCtiDirectories(installation.root(), installation.document());
    if (launcher == sdk)
        return 0;
    const Directories fallback{installation.root() + "/cti"};
    // Qt overlooks some faults: bad names of attributes, white space in references, much in type
    // declarations. So the launcher may go further, but only in a document that is no XML.
    if (!isReadByExpat && isBeginning(sdk, launcher, fallback))
        return 0;
    // In type declarations it refuses some of what is allowed as well, and its limits for entities are
    // others.
    if (!isReadByQt && hasTypeDeclaration(text) && isBeginning(launcher, sdk, fallback))
        return 0;
    print("The launcher finds", launcher);
    print("The SDK library finds", sdk);
    require(false, "both find the same directories");
    return 0;
}
