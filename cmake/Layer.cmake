# add_layer(NAME SOURCES file... [MAY_USE layer...] [SYSTEM target...])
#
# One folder of src/ as a static library. MAY_USE names the folders it may link to and whose headers
# it may include; SYSTEM names libraries from outside. A link list alone is no wall (with one include
# root any header can be reached), so a check of the folder's #include lines runs before anything of
# it is compiled: quoted includes may name only the folder itself and those of MAY_USE, and a layer
# without SYSTEM may include nothing but the C++ standard library.
function(add_layer NAME)
    cmake_parse_arguments(LAYER "" "" "SOURCES;MAY_USE;SYSTEM" ${ARGN})
    add_library(${NAME} STATIC ${LAYER_SOURCES})
    target_include_directories(${NAME} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${NAME} PUBLIC ${LAYER_MAY_USE} PRIVATE ${LAYER_SYSTEM})
    add_include_check(${NAME} "${CMAKE_CURRENT_SOURCE_DIR}" "${LAYER_MAY_USE}" "${LAYER_SYSTEM}")
endfunction()

# The check alone, for a folder that is a program and not a library.
function(add_include_check TARGET FOLDER MAY_USE SYSTEM)
    file(GLOB FILES CONFIGURE_DEPENDS "${FOLDER}/*.h" "${FOLDER}/*.cpp" "${FOLDER}/*.def")
    get_filename_component(OWN "${FOLDER}" NAME)
    set(STAMP "${CMAKE_CURRENT_BINARY_DIR}/${TARGET}.includes-checked")
    string(REPLACE ";" "," ALLOWED "${OWN};${MAY_USE}")
    set(STANDARD_ONLY ON)
    if(SYSTEM)
        set(STANDARD_ONLY OFF)
    endif()
    add_custom_command(OUTPUT "${STAMP}"
        COMMAND ${CMAKE_COMMAND} "-DFOLDER=${FOLDER}" "-DALLOWED=${ALLOWED}"
            "-DSTANDARD_ONLY=${STANDARD_ONLY}" -P "${PROJECT_SOURCE_DIR}/cmake/CheckIncludes.cmake"
        COMMAND ${CMAKE_COMMAND} -E touch "${STAMP}"
        DEPENDS ${FILES} "${PROJECT_SOURCE_DIR}/cmake/CheckIncludes.cmake"
        COMMENT "Checking the includes of ${OWN}/"
        VERBATIM)
    add_custom_target(${TARGET}_includes DEPENDS "${STAMP}")
    add_dependencies(${TARGET} ${TARGET}_includes)
endfunction()
