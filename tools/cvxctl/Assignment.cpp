#include "tools/cvxctl/Assignment.h"

#include "tools/cvxctl/CameraSession.h"

std::string checkAssignment(const std::string &text)
{
    return text.find('=') != std::string::npos && text.front() != '=' ? std::string()
                                                                      : "\"" + text + "\" is not NAME=VALUE";
}

std::string assignedName(const std::string &assignment)
{
    return assignment.substr(0, assignment.find('='));
}

ExitStatus writeAssignment(CvxCPP::Device &device, const std::string &assignment)
{
    const std::string name = assignedName(assignment);
    const CvxCPP::CvxResult result = device.WriteText(name, assignment.substr(name.size() + 1));
    return result ? exitSuccess : reportFailure(result);
}

ExitStatus writeAssignments(CvxCPP::Device &device, const std::vector<std::string> &assignments)
{
    for (const std::string &assignment : assignments) {
        if (const ExitStatus status = writeAssignment(device, assignment))
            return status;
    }
    return exitSuccess;
}

void addSetOption(CLI::App &command, std::vector<std::string> &assignments)
{
    command
        .add_option("--set", assignments,
            "Feature to write before the stream starts; several of these options are obeyed in their order")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false) // Otherwise, the option would take the arguments after it.
        ->check(checkAssignment);
}
