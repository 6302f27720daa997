#pragma once

#include <string>

/// Takes what this process and its children print, until it is gone: standard output is dropped, standard
/// error kept.
class OutputAside
{
public:
    OutputAside();
    ~OutputAside();
    OutputAside(const OutputAside &) = delete;
    OutputAside &operator=(const OutputAside &) = delete;

    /// What has come on standard error so far.
    std::string errors() const;

private:
    int m_output; // What they were before.
    int m_error;
    int m_kept;
};
