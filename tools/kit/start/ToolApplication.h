#pragma once

#include "tools/kit/start/ToolProgram.h"

#include <QApplication>

/// The application object of a tool, with everything that the tools have in common: the names by which a
/// desktop knows the program, Fusion style with the dark style sheet, and high DPI.
///
/// main() creates NoOpenGl before this object and destroys it afterwards, and creates Translations next,
/// before any window.
class ToolApplication : public QApplication
{
    Q_OBJECT

public:
    ToolApplication(int &argc, char **argv, const ToolProgram &program);
};
