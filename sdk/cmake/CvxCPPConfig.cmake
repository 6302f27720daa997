# Defines the target CvxCPP::CvxCPP: the camera SDK's interface and its library.
# This file may be found through a link in the system's CMake directory. The targets lie beside the real file.
get_filename_component(_CvxCPP_config "${CMAKE_CURRENT_LIST_FILE}" REALPATH)
get_filename_component(_CvxCPP_directory "${_CvxCPP_config}" DIRECTORY)
include("${_CvxCPP_directory}/CvxCPPTargets.cmake")
unset(_CvxCPP_config)
unset(_CvxCPP_directory)
