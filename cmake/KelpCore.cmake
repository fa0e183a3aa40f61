# The bundled engine's own libraries: C++ without Qt, one static library a folder of player_core.

# kelp_core_library(<name> SOURCES a.cpp … [LINK libs …])
function(kelp_core_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    kelp_warnings(${name})
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/player_core/include")
    target_link_libraries(${name} PUBLIC Threads::Threads ${arg_LINK})
endfunction()
