# Options, compilers' switches and the tools that make builds fast.

option(KELP_BUILD_TESTS "Build the tests" ON)
option(KELP_BUILD_BENCH "Build the benchmarks" ON)
set(KELP_SANITIZE "" CACHE STRING "address, thread, fuzz, or empty")
set_property(CACHE KELP_SANITIZE PROPERTY STRINGS "" address thread fuzz)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
# Line tables stay in a release build: a stall sample or a crash report without them helps nobody.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -g1 -DNDEBUG")
set(CMAKE_C_FLAGS_RELEASE "-O2 -g1 -DNDEBUG")
if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

# The programs and the engine library stand side by side at the top of the build folder.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

find_program(KELP_CCACHE ccache)
if(KELP_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Precompiled headers carry time stamps; without these settings every one of them is a cache miss.
    set(launcher "${CMAKE_COMMAND}" -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" CCACHE_NOHASHDIR=1 "${KELP_CCACHE}")
    set(CMAKE_C_COMPILER_LAUNCHER "${launcher}")
    set(CMAKE_CXX_COMPILER_LAUNCHER "${launcher}")
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
    endif()
endif()
find_program(KELP_MOLD mold)
if(KELP_MOLD)
    add_link_options(-fuse-ld=mold)
endif()

if(KELP_SANITIZE STREQUAL "address")
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined -O1)
    add_link_options(-fsanitize=address,undefined)
elseif(KELP_SANITIZE STREQUAL "thread")
    add_compile_options(-fsanitize=thread -fno-omit-frame-pointer -O1)
    add_link_options(-fsanitize=thread)
elseif(KELP_SANITIZE STREQUAL "fuzz")
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer -O1)
    add_link_options(-fsanitize=address,undefined)
endif()

# Our own code compiles without a warning; headers of libraries come in as system headers.
function(kelp_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wundef -Werror
        $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual -Wextra-semi>)
endfunction()

# What a sanitizer should know; nothing in a build without one.
if(KELP_SANITIZE STREQUAL "address" OR KELP_SANITIZE STREQUAL "thread")
    add_library(sanitizer_defaults OBJECT "${PROJECT_SOURCE_DIR}/tests/support/sanitizer_defaults.cpp")
    kelp_warnings(sanitizer_defaults)
else()
    add_library(sanitizer_defaults INTERFACE)
endif()

# Qt without its implicit conversions and macros: what is converted stands in the code.
set(KELP_QT_DEFINITIONS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
