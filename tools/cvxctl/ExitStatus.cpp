#include "tools/cvxctl/ExitStatus.h"

const char exitStatusHelp[] = "Exit status:\n"
                              "  0    success\n"
                              "  1    the SDK, the camera or a file failed\n"
                              "  2    the command line is wrong\n"
                              "  3    no camera matches\n"
                              "  4    several cameras match\n"
                              "  5    another program uses the camera\n"
                              "  6    the camera is gone or does not answer\n"
                              "  7    a feature does not exist, or cannot be read or written\n"
                              "  10   the doctor has found something to correct\n"
                              "  130  interrupted by Ctrl-C";

ExitStatus exitStatus(CvxCPP::CvxError error)
{
    switch (error) {
    case CvxCPP::CvxErrorSuccess:
        return exitSuccess;
    case CvxCPP::CvxErrorInUse:
        return exitInUse;
    case CvxCPP::CvxErrorDeviceLost:
    case CvxCPP::CvxErrorTimeout:
        return exitLost;
    case CvxCPP::CvxErrorNotFound:
    case CvxCPP::CvxErrorNotAvailable:
    case CvxCPP::CvxErrorNotWritable:
    case CvxCPP::CvxErrorOutOfRange:
    case CvxCPP::CvxErrorWrongType:
    case CvxCPP::CvxErrorInvalidParameter:
        return exitFeature;
    default:
        return exitFailure;
    }
}
