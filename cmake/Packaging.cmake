# The program folder as `cmake --install` makes it, and the packages of it: `cpack -G TGZ` the folder
# itself, `cpack -G DEB` the folder in /opt with its entries in the system (component System).
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/Version.txt" CONTENT "@PROJECT_VERSION@\n" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/Version.txt" LICENSE DESTINATION .)
install(FILES data/desktop/README.txt DESTINATION .)

set(PROGRAMS tav)
if(TAV_DESKTOP)
    list(APPEND PROGRAMS tav-dairy)
endif()
set(SYSTEM_PART COMPONENT System EXCLUDE_FROM_ALL)
foreach(PROGRAM IN LISTS PROGRAMS)
    set(LINK "${PROJECT_BINARY_DIR}/links/${PROGRAM}")
    file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/links")
    file(CREATE_LINK "/opt/tav-dairy/${PROGRAM}" "${LINK}" SYMBOLIC)
    install(FILES "${LINK}" DESTINATION bin ${SYSTEM_PART})
endforeach()
install(FILES LICENSE DESTINATION share/doc/tav-dairy RENAME copyright ${SYSTEM_PART})

string(TOLOWER "${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}" MACHINE)
set(CPACK_PACKAGE_NAME tav-dairy)
set(CPACK_PACKAGE_VENDOR "TAV Dairy Cattle Program")
set(CPACK_PACKAGE_CONTACT "TAV Dairy Cattle Program maintainers <maintainers@tav-dairy.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "decision aid for feeding dairy cattle")
set(CPACK_PACKAGE_DESCRIPTION
"For one animal (a lactating cow, a dry cow, a replacement heifer or a young
calf) and a ration of feeds it computes nutrient requirements and supply,
predicted intake, balances, allowable milk and gain. For nutritionists,
advisers, students and researchers.
The program tav-dairy has screens and reports; tav computes simulations and
makes reports from scripts, without a display.")
set(CPACK_PACKAGE_FILE_NAME "tav-dairy-${PROJECT_VERSION}-${MACHINE}")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /)
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/PackagePermissions.cmake")
set(CPACK_GENERATOR TGZ)
set(CPACK_SOURCE_GENERATOR "")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-liberation)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-noto-core, fonts-droid-fallback")
if(TAV_DESKTOP)
    # Qt loads what draws on the display when it starts: no library names it.
    string(APPEND CPACK_DEBIAN_PACKAGE_DEPENDS ", qt6-qpa-plugins")
    string(APPEND CPACK_DEBIAN_PACKAGE_RECOMMENDS ", qt6-wayland, shared-mime-info")
endif()
set(CPACK_PROJECT_CONFIG_FILE "${PROJECT_SOURCE_DIR}/cmake/PackageParts.cmake")
include(CPack)
