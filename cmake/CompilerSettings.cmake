# Language level, warnings, hardening and sanitizers, for every target of the project.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()

set(CMAKE_CXX_FLAGS_RELEASE "-O3 -DNDEBUG")
set(CMAKE_CXX_FLAGS_DEBUG "-O0 -g")
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -g")

add_compile_options(-Wall -Wextra -Wpedantic -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overlapping copies in any sum of a literal and a std::string (GCC bug 105651).
    add_compile_options(-Wno-restrict)
endif()

# The same input must give the same bits on every machine and at every optimisation level: no
# fused multiply-add behind the equations' back, and no extended registers.
add_compile_options(-ffp-contract=off)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(i.86|x86)$")
    add_compile_options(-msse2 -mfpmath=sse)
endif()

add_compile_options(-fstack-protector-strong)
add_link_options(-Wl,-z,relro,-z,now)
add_compile_definitions(_GLIBCXX_ASSERTIONS)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i.86)$")
    add_compile_options(-fcf-protection=full)
endif()
if(NOT CMAKE_SYSTEM_NAME STREQUAL "Darwin")
    add_compile_options(-fstack-clash-protection)
endif()

if(TAV_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
elseif(NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
    add_compile_definitions(_FORTIFY_SOURCE=2)
endif()
if(TAV_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
