#pragma once

/// Keeps Qt on X11 from loading OpenGL, which nothing in this program draws with; loading it takes a third of
/// the start-up time. Create it before the QApplication and destroy it right afterwards.
class NoOpenGl
{
public:
    /// Sets the environment variable that disables OpenGL in Qt, unless the user has set it.
    NoOpenGl();

    /// Makes Qt read the variable, which it does only once, and removes it from the environment.
    ~NoOpenGl();

    NoOpenGl(const NoOpenGl &) = delete;
    NoOpenGl &operator=(const NoOpenGl &) = delete;

private:
    const bool m_isSetByUs;
};
