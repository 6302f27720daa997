#pragma once

#include "sdk/doctor/Finding.h"
#include "sdk/doctor/ProducerTrial.h"

#include <string>
#include <vector>

/// The producers of this machine.
struct ProducerSurvey
{
    std::vector<std::string> directories; ///< The directories that are searched, in order.
    std::vector<std::string>
        missingDirectories; ///< Directories that GENICAM_GENTL64_PATH names and that do not exist.
    std::vector<std::string> faults; ///< Entries of the directories that are no producers, with the reason.
    std::vector<ProducerReport> reports; ///< In the order in which the camera system uses the producers.
};

/// Searches and tries the producers of the installation and of GENICAM_GENTL64_PATH.
/// @param libraryDirectory The directory that contains libCvxCPP.so, the host programs and CvxC.xml.
/// @param searchPath The value of the variable; null if it is not set.
ProducerSurvey surveyProducers(const std::string &libraryDirectory, const char *searchPath);

/// Checks that there are producers, that they work, and that each of them is present once.
Findings checkProducers(const ProducerSurvey &survey);
