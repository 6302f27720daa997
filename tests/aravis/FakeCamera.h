#pragma once

#include <string>
#include <sys/types.h>

/// A GigE Vision camera made of software, which answers from the start to the end of its life: Aravis's fake
/// camera, in a process of its own.
class FakeCamera
{
public:
    explicit FakeCamera(const std::string &serial, const std::string &address = "127.0.0.1");
    ~FakeCamera();
    FakeCamera(const FakeCamera &) = delete;
    FakeCamera &operator=(const FakeCamera &) = delete;

    void pause(); ///< From here on it answers nothing, as if packets were lost.
    void resume();

private:
    pid_t m_process;
};
