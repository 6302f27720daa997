#pragma once

#include <dirent.h>
#include <fstream>
#include <string>
#include <sys/types.h>
#include <unistd.h>

/// Returns the process of the opened camera, a child of this process.
inline std::string hostProcess()
{
    std::string host;
    DIR *const directory = opendir("/proc");
    while (const dirent *const entry = readdir(directory)) {
        const std::string process = entry->d_name;
        std::ifstream status("/proc/" + process + "/status");
        std::string name, key;
        pid_t parent = 0;
        status >> key >> name;
        while (status >> key && key != "PPid:") { }
        status >> parent;
        if (name == "CvxCameraHost" && parent == getpid())
            host = process;
    }
    closedir(directory);
    return host;
}

/// Returns the processor time in microseconds that the threads of another process have used.
inline double processorTimeOf(const std::string &process)
{
    double nanoseconds = 0;
    const std::string tasks = "/proc/" + process + "/task";
    DIR *const directory = opendir(tasks.c_str());
    while (const dirent *const entry = directory ? readdir(directory) : nullptr) {
        double time = 0;
        if (std::ifstream(tasks + '/' + entry->d_name + "/schedstat") >> time)
            nanoseconds += time;
    }
    closedir(directory);
    return nanoseconds / 1000;
}
