// Parses the input as the SDK library parses CvxC.xml.

#include "sdk/cvxcpp/CtiPathsDocument.h"
#include "sdk/text/Utf8.h"
#include "tests/fuzz/FuzzTarget.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr const char *whiteSpace = " \t\r\n";
    for (const std::string &path : readCtiPaths(textOf(data, size))) {
        require(path.find_first_not_of(whiteSpace) == 0, "a path starts with a visible character");
        require(path.find_last_not_of(whiteSpace) + 1 == path.size(), "a path ends with a visible character");
        require(path.find('\0') == std::string::npos, "a path contains no NUL");
        require(toValidUtf8(path) == path, "a path is valid UTF-8");
    }
    return 0;
}
