# Read by CPack before it makes a package: which parts go where.
if(CPACK_GENERATOR STREQUAL "DEB")
    list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 BUILD_FOLDER)
    set(CPACK_INSTALL_CMAKE_PROJECTS
        "${BUILD_FOLDER};program;Unspecified;/opt/tav-dairy"
        "${BUILD_FOLDER};system;System;/usr")
endif()
