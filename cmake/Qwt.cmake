# Finds Qwt and defines the imported target Qwt::Qwt. Debian's pkg-config file of Qwt requires parts of Qt that Qwt's
# headers for plots do not use, so this file searches for header and library itself.
find_path(QWT_INCLUDE_DIRECTORY qwt_plot.h PATH_SUFFIXES qwt qwt-qt5 qt5/qwt REQUIRED)
find_library(QWT_LIBRARY NAMES qwt-qt5 qwt REQUIRED)
mark_as_advanced(QWT_INCLUDE_DIRECTORY QWT_LIBRARY)

file(STRINGS ${QWT_INCLUDE_DIRECTORY}/qwt_global.h qwt_version REGEX "define QWT_VERSION_STR ")
string(REGEX REPLACE ".*\"([0-9.]+)\".*" "\\1" qwt_version "${qwt_version}")
if(qwt_version VERSION_LESS 6.1)
    message(FATAL_ERROR "Qwt 6.1 or later is needed. ${QWT_INCLUDE_DIRECTORY} contains Qwt ${qwt_version}.")
endif()

add_library(Qwt::Qwt UNKNOWN IMPORTED)
set_target_properties(Qwt::Qwt PROPERTIES
    IMPORTED_LOCATION ${QWT_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${QWT_INCLUDE_DIRECTORY}) # The compiler treats them as system headers.
