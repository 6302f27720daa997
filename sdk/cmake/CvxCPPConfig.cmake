# Gives the target CvxCPP::CvxCPP: the camera SDK's interface and its library.
# A link in the system's own CMake directory may lead here, but the rest lies where this file really is.
get_filename_component(_CvxCPP_config "${CMAKE_CURRENT_LIST_FILE}" REALPATH)
get_filename_component(_CvxCPP_directory "${_CvxCPP_config}" DIRECTORY)
include("${_CvxCPP_directory}/CvxCPPTargets.cmake")
unset(_CvxCPP_config)
unset(_CvxCPP_directory)
