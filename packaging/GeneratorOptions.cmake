# CPack reads this file once per generator.

if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_PACKAGING_INSTALL_PREFIX /opt/corvix-x)
endif()
