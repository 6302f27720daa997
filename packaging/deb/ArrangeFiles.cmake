# CPack runs this script between staging and packing. It moves the files that the system expects in standard directories
# out of /opt/corvix-x into /usr, and adds the files that every Debian package contains.

if(NOT CPACK_GENERATOR STREQUAL "DEB")
    return()
endif()

# Writes a changelog that refers to CHANGELOG.md. Its date is SOURCE_DATE_EPOCH if that is set, or today.
function(write_changelog package file)
    string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
    file(WRITE ${file} "${package} (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) stable; urgency=medium

  * The changes of ${CPACK_PACKAGE_VERSION} are listed in /opt/corvix-x/doc/CHANGELOG.md.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
    execute_process(COMMAND gzip --best --no-name --force ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# Moves a directory of the installation into the system's directories, if the component contains this directory.
function(move_to_system root from to)
    if(NOT EXISTS ${root}/opt/corvix-x/${from})
        return()
    endif()
    get_filename_component(parent ${root}/${to} DIRECTORY)
    file(MAKE_DIRECTORY ${parent})
    file(RENAME ${root}/opt/corvix-x/${from} ${root}/${to})
endfunction()

# A desktop does not search /opt/corvix-x/bin, so the entry has to contain the whole path.
function(complete_desktop_entries root)
    file(GLOB entries ${root}/usr/share/applications/*.desktop)
    foreach(entry IN LISTS entries)
        file(READ ${entry} text)
        string(REGEX REPLACE "(Exec=)([A-Za-z]+)" "\\1/opt/corvix-x/bin/\\2" text "${text}")
        file(WRITE ${entry} "${text}")
    endforeach()
endfunction()

function(compress_man_pages root)
    file(GLOB pages ${root}/usr/share/man/man1/*.1)
    foreach(page IN LISTS pages)
        execute_process(COMMAND gzip --best --no-name --force ${page} COMMAND_ERROR_IS_FATAL ANY)
    endforeach()
endfunction()

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} key)
    set(package ${CPACK_DEBIAN_${key}_PACKAGE_NAME})
    set(root ${CPACK_TEMPORARY_DIRECTORY}/${component})

    move_to_system(${root} share usr/share)
    move_to_system(${root} lib/udev usr/lib/udev)
    file(REMOVE_RECURSE ${root}/opt/corvix-x/lib) # This directory is empty now.
    complete_desktop_entries(${root})
    compress_man_pages(${root})
    if(EXISTS ${root}/opt/corvix-x/bin/cvxctl) # A shell does not search /opt/corvix-x/bin.
        file(MAKE_DIRECTORY ${root}/usr/bin)
        file(CREATE_LINK ../../opt/corvix-x/bin/cvxctl ${root}/usr/bin/cvxctl SYMBOLIC)
    endif()

    set(documents ${root}/usr/share/doc/${package})
    file(MAKE_DIRECTORY ${documents} ${root}/usr/share/lintian/overrides)
    configure_file(${CPACK_SOURCE_DIR}/packaging/deb/copyright ${documents}/copyright COPYONLY)
    configure_file(${CPACK_SOURCE_DIR}/packaging/deb/${package}/lintian-overrides
        ${root}/usr/share/lintian/overrides/${package} COPYONLY)
    write_changelog(${package} ${documents}/changelog.Debian)

    if(component STREQUAL "sdk-dev") # With this link find_package(CvxCPP) needs no hint.
        file(MAKE_DIRECTORY ${root}/usr/share/cmake)
        file(CREATE_LINK /opt/corvix-x/api/lib/cmake/CvxCPP ${root}/usr/share/cmake/CvxCPP SYMBOLIC)
    endif()
endforeach()
