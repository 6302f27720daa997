# CPack reads this once for each kind of package.

if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_PACKAGING_INSTALL_PREFIX /opt/corvix-x)
endif()
