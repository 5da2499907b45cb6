# Refuses an #include line that crosses a wall between the folders of src/. Run as a script with
#   FOLDER         the folder whose files are read
#   ALLOWED        comma-separated folders that a quoted include may name
#   STANDARD_ONLY  ON: an include in angle brackets must be a header of the C++ standard library

cmake_policy(VERSION 3.25)

set(STANDARD algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv
    chrono cinttypes climits clocale cmath codecvt compare complex concepts condition_variable coroutine
    csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque
    exception execution filesystem format forward_list fstream functional future initializer_list
    iomanip ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource
    mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator
    semaphore set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string
    string_view syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map
    unordered_set utility valarray variant vector version)
string(REPLACE "," ";" ALLOWED "${ALLOWED}")
get_filename_component(OWN "${FOLDER}" NAME)

set(FAULTS "")
file(GLOB FILES "${FOLDER}/*.h" "${FOLDER}/*.cpp" "${FOLDER}/*.def")
foreach(FILE IN LISTS FILES)
    get_filename_component(NAME "${FILE}" NAME)
    file(STRINGS "${FILE}" LINES REGEX "^[ \t]*#[ \t]*include")
    foreach(LINE IN LISTS LINES)
        if(LINE MATCHES "include[ \t]*\"([^\"]+)\"")
            set(HEADER "${CMAKE_MATCH_1}")
            string(REGEX REPLACE "/.*" "" LAYER "${HEADER}")
            if(NOT HEADER MATCHES "/" OR NOT LAYER IN_LIST ALLOWED)
                list(APPEND FAULTS "${OWN}/${NAME}: \"${HEADER}\" is not in a folder that ${OWN}/ may use")
            endif()
        elseif(STANDARD_ONLY AND LINE MATCHES "include[ \t]*<([^>]+)>")
            if(NOT CMAKE_MATCH_1 IN_LIST STANDARD)
                list(APPEND FAULTS "${OWN}/${NAME}: <${CMAKE_MATCH_1}> is not of the standard library")
            endif()
        endif()
    endforeach()
endforeach()
if(FAULTS)
    list(JOIN FAULTS "\n  " TEXT)
    string(REPLACE ";" ", " ALLOWED "${ALLOWED}")
    message(FATAL_ERROR "Forbidden includes (${OWN}/ may use ${ALLOWED}):\n  ${TEXT}")
endif()
