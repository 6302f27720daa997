#pragma once

#include "tools/cvxctl/ExitStatus.h"

#include <CLI/CLI.hpp>

// Each function adds one sub-command to the program. The sub-command stores its exit status in `status`,
// which exists as long as the program.

void addListCommand(CLI::App &program, ExitStatus &status);
void addInfoCommand(CLI::App &program, ExitStatus &status);
void addFeaturesCommand(CLI::App &program, ExitStatus &status);
void addGetCommand(CLI::App &program, ExitStatus &status);
void addSetCommand(CLI::App &program, ExitStatus &status);
void addRunCommand(CLI::App &program, ExitStatus &status);
void addWatchCommand(CLI::App &program, ExitStatus &status);
void addSnapshotCommand(CLI::App &program, ExitStatus &status);
void addSaveCommand(CLI::App &program, ExitStatus &status);
void addLoadCommand(CLI::App &program, ExitStatus &status);
void addCompareCommand(CLI::App &program, ExitStatus &status);
void addRecordCommand(CLI::App &program, ExitStatus &status);
void addAddressCommand(CLI::App &program, ExitStatus &status);
void addDoctorCommand(CLI::App &program, ExitStatus &status);
void addFocusCommand(CLI::App &program, ExitStatus &status);
void addThermalCommand(CLI::App &program, ExitStatus &status);
void addDefectsCommand(CLI::App &program, ExitStatus &status);
void addFlatFieldCommand(CLI::App &program, ExitStatus &status);
void addLineScanCommand(CLI::App &program, ExitStatus &status);
void addTapsCommand(CLI::App &program, ExitStatus &status);

/// The text that explains the argument CAMERA of every sub-command.
constexpr char cameraHelp[]
    = "ID, serial number or user name of the camera, or a part of them that is unique";
