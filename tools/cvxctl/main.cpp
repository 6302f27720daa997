#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/Interruption.h"
#include "tools/cvxctl/Terminal.h"

int main(int argc, char *argv[])
{
    CLI::App program("Works with industrial cameras of any vendor on the command line.", "cvxctl");
    program.set_version_flag("--version", "cvxctl " CORVIX_VERSION);
    program.require_subcommand(1);
    program.footer(exitStatusHelp);

    ExitStatus status = exitSuccess;
    addListCommand(program, status);
    addInfoCommand(program, status);
    addFeaturesCommand(program, status);
    addGetCommand(program, status);
    addSetCommand(program, status);
    addRunCommand(program, status);
    addWatchCommand(program, status);
    addSnapshotCommand(program, status);
    addSaveCommand(program, status);
    addLoadCommand(program, status);
    addCompareCommand(program, status);
    addRecordCommand(program, status);
    addAddressCommand(program, status);
    addDoctorCommand(program, status);
    addFocusCommand(program, status);
    addThermalCommand(program, status);
    addDefectsCommand(program, status);
    addFlatFieldCommand(program, status);
    addLineScanCommand(program, status);
    addTapsCommand(program, status);

    catchInterruption();
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return program.exit(error) == 0 ? exitSuccess
                                        : exitUsage; // A request for help is such an error, too.
    } catch (const std::exception &) { // std::bad_alloc, or std::length_error of a damaged image.
        printError("there is not enough memory");
        return exitFailure;
    }
    return status;
}
