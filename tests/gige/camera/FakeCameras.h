#pragma once

#include "tests/gige/camera/Options.h"

#include <chrono>
#include <map>
#include <netinet/in.h>
#include <random>
#include <vector>

/// Answers discovery commands for several GigE Vision cameras on one network interface. A broadcast is
/// answered by all cameras, any other command by the camera that has the address.
class FakeCameras
{
public:
    /// Throws std::system_error if the network interface does not exist or cannot be used.
    explicit FakeCameras(const Options &options);
    ~FakeCameras();
    FakeCameras(const FakeCameras &) = delete;
    FakeCameras &operator=(const FakeCameras &) = delete;

    /// Answers commands until a signal ends the process. Throws std::system_error if poll() fails.
    [[noreturn]] void run();

private:
    using Clock = std::chrono::steady_clock;

    struct Answer
    {
        unsigned camera;
        sockaddr_in to;
        std::array<std::uint8_t, 2> requestId; // The bytes of the command.
    };

    int millisecondsToNextAnswer() const;
    void sendDueAnswers();
    void receiveCommand();
    void schedule(const Answer &answer);
    void send(const Answer &answer);

    const Options m_options;
    std::vector<std::array<std::uint8_t, 256>> m_acknowledgements; // One for each camera.
    std::mt19937 m_random;
    std::multimap<Clock::time_point, Answer> m_answers; // The answers that are not due yet.
    int m_socket;
};
