# Run by CPack on the files of a package: its folders are open to everybody, whatever the habits of
# whoever makes it.
file(GLOB_RECURSE ALL LIST_DIRECTORIES ON "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*")
foreach(ONE IN LISTS ALL)
    if(IS_DIRECTORY "${ONE}" AND NOT IS_SYMLINK "${ONE}")
        file(CHMOD "${ONE}" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
            GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
    endif()
endforeach()
