# One folder of the front end gives two static libraries: <folder>_logic (QtCore only, so that a decision
# cannot reach a widget even by accident) and <folder>_parts (widgets, servers, sessions).
# Files in <folder>/window belong to the window and are collected in kelp_window (see app/CMakeLists.txt).

function(kelp_qt_defaults target)
    kelp_warnings(${target})
    target_compile_definitions(${target} PRIVATE ${KELP_QT_DEFINITIONS})
    target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}")
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
endfunction()

# kelp_logic(<folder> SOURCES a.cpp … [LINK libs …])
function(kelp_logic folder)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    add_library(${folder}_logic STATIC ${arg_SOURCES})
    kelp_qt_defaults(${folder}_logic)
    # Logic has no meta objects, so the generator need not look for any.
    set_target_properties(${folder}_logic PROPERTIES AUTOMOC OFF)
    target_link_libraries(${folder}_logic PUBLIC Qt6::Core ${arg_LINK})
    target_precompile_headers(${folder}_logic PRIVATE "${PROJECT_SOURCE_DIR}/cmake/pch_logic.h")
endfunction()

# kelp_parts(<folder> SOURCES a.cpp … [LINK libs …])
function(kelp_parts folder)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    add_library(${folder}_parts STATIC ${arg_SOURCES})
    kelp_qt_defaults(${folder}_parts)
    target_link_libraries(${folder}_parts PUBLIC Qt6::Core Qt6::Gui Qt6::Widgets Qt6::DBus
        Threads::Threads ${arg_LINK})
    target_precompile_headers(${folder}_parts PRIVATE "${PROJECT_SOURCE_DIR}/cmake/pch_parts.h")
endfunction()
