# Defines the target CvxCPP::CvxCPP, which provides the header and the library of the camera SDK.
# CMake may find this file through a symbolic link in the system's CMake directory. CvxCPPTargets.cmake is in the
# directory of the real file.
get_filename_component(_CvxCPP_config "${CMAKE_CURRENT_LIST_FILE}" REALPATH)
get_filename_component(_CvxCPP_directory "${_CvxCPP_config}" DIRECTORY)
include("${_CvxCPP_directory}/CvxCPPTargets.cmake")
unset(_CvxCPP_config)
unset(_CvxCPP_directory)
