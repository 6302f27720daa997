#pragma once

/// Prevents Qt on X11 from loading OpenGL. The program does not use OpenGL, and loading it takes a third of
/// the start-up time. Create this object before the QApplication, and destroy it as soon as the QApplication
/// exists.
class NoOpenGl
{
public:
    /// Sets the environment variable that disables OpenGL in Qt, unless the user has set it.
    NoOpenGl();

    /// Makes Qt read the variable, which Qt does only once. Removes the variable if the constructor has set
    /// it.
    ~NoOpenGl();

    NoOpenGl(const NoOpenGl &) = delete;
    NoOpenGl &operator=(const NoOpenGl &) = delete;

private:
    const bool m_isSetByUs;
};
