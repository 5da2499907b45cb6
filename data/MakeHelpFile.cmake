# cmake -DSOURCE=folder -DOUTPUT=file -P MakeHelpFile.cmake
#
# Puts the texts of the help into the one file that the program reads; src/desktop/help_file.h says
# what it looks like.
file(WRITE "${OUTPUT}.part" "TAV Dairy Cattle Program Help 1\n")

function(add_part MARK FILE)
    file(READ "${FILE}" TEXT)
    string(FIND "\n${TEXT}" "\n@@ " PLACE)
    if(NOT PLACE EQUAL -1)
        message(FATAL_ERROR "${FILE}: a line must not begin with @@")
    endif()
    file(APPEND "${OUTPUT}.part" "@@ ${MARK}\n${TEXT}\n")
endfunction()

add_part("contents" "${SOURCE}/contents.txt")
file(GLOB PAGES "${SOURCE}/*.md")
foreach(PAGE IN LISTS PAGES)
    get_filename_component(NAME "${PAGE}" NAME_WE)
    add_part("page ${NAME}" "${PAGE}")
endforeach()
add_part("what's this" "${SOURCE}/whats_this.txt")

file(SHA256 "${OUTPUT}.part" HASH)
file(APPEND "${OUTPUT}.part" "@@ end ${HASH}\n")
file(RENAME "${OUTPUT}.part" "${OUTPUT}")
