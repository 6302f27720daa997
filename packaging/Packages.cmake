# CPack builds one Debian package per component, which installs into /opt/corvix-x, and one archive of all components.

set(CPACK_PACKAGE_NAME corvix-x)
set(CPACK_PACKAGE_VENDOR "The Corvix X launcher authors")
set(CPACK_PACKAGE_CONTACT "The Corvix X launcher authors <launcher@orvelle.example>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/GeneratorOptions.cmake)
set(CPACK_PRE_BUILD_SCRIPTS
    ${CMAKE_CURRENT_LIST_DIR}/deb/ArrangeFiles.cmake
    ${CMAKE_CURRENT_LIST_DIR}/OpenToAll.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/SortArchive.cmake)
set(CPACK_STRIP_FILES ON)
set(CPACK_SOURCE_DIR ${PROJECT_SOURCE_DIR})

string(TOLOWER ${CMAKE_SYSTEM_NAME} system)
set(CPACK_PACKAGE_FILE_NAME corvix-x-${PROJECT_VERSION}-${system}-${CMAKE_SYSTEM_PROCESSOR})

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://www.orvelle.example")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(same_version "corvix-x-launcher (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

# corvix_deb_package(COMPONENT NAME SUMMARY LINE…): defines the package of a component, with a summary and a description.
macro(corvix_deb_package component name)
    string(TOUPPER ${component} key)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${name})
    set(lines ${ARGN})
    list(JOIN lines "\n" CPACK_DEBIAN_${key}_DESCRIPTION)
    if(EXISTS ${PROJECT_SOURCE_DIR}/packaging/deb/${name}/conffiles)
        set(CPACK_DEBIAN_${key}_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/deb/${name}/conffiles)
    endif()
endmacro()

set(CPACK_COMPONENTS_ALL "")
corvix_deb_package(launcher corvix-x-launcher
    "launcher for industrial cameras and their tools"
    "The launcher lists the cameras that GenICam GenTL producers report, and the"
    "GigE Vision and USB3 Vision cameras of any vendor. It sorts them into hardware"
    "groups and starts the tools of the Corvix X camera SDK that suit them.")
set(CPACK_DEBIAN_LAUNCHER_PACKAGE_RECOMMENDS "xdg-utils, qttranslations5-l10n, qtwayland5")
# The stand-ins of earlier versions had the names of the tools.
set(CPACK_DEBIAN_LAUNCHER_PACKAGE_CONFLICTS "corvix-x-demo")
set(CPACK_DEBIAN_LAUNCHER_PACKAGE_REPLACES "corvix-x-demo")
set(CPACK_DEBIAN_LAUNCHER_PACKAGE_SUGGESTS "corvix-x-simulator, ffmpeg")

corvix_deb_package(simulator corvix-x-simulator
    "simulated cameras for the Corvix X launcher"
    "A GenTL producer that reports the cameras that its JSON configuration file"
    "describes. Adding a camera to the file simulates that it is plugged in, and"
    "deleting a camera that it is unplugged.")
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_DEPENDS ${same_version})

corvix_deb_package(sdk-dev corvix-x-dev
    "camera enumeration of the Corvix X SDK - development files"
    "The C++ header, a CMake package (find_package(CvxCPP)) and the source of an"
    "example program that lists cameras.")
set(CPACK_DEBIAN_SDK-DEV_PACKAGE_DEPENDS ${same_version})
set(CPACK_DEBIAN_SDK-DEV_PACKAGE_SECTION libdevel)

include(CPack)
