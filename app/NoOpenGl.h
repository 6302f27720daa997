#pragma once

/// Keeps Qt from loading OpenGL, with which nothing here is drawn: on X11 that takes a third of a start.
/// Has to live while the application is made.
class NoOpenGl
{
public:
    /// Tells Qt by its own variable, where the user has not set it.
    NoOpenGl();

    /// Has Qt decide, which it does once, and takes the variable back.
    ~NoOpenGl();

    NoOpenGl(const NoOpenGl &) = delete;
    NoOpenGl &operator=(const NoOpenGl &) = delete;

private:
    const bool m_isOurs;
};
