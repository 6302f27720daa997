#include "sdk/process/ExecutableFile.h"

#include <sys/stat.h>
#include <unistd.h>

bool isExecutableFile(const std::string &path)
{
    struct stat file
    { };
    return stat(path.c_str(), &file) == 0 && S_ISREG(file.st_mode) && access(path.c_str(), X_OK) == 0;
}
