# What goes on before the toolkit's libraries are there: C++ alone.
pkg_check_modules(FONTCONFIG REQUIRED IMPORTED_TARGET GLOBAL fontconfig)
add_library(platform_start STATIC
    console_streams.cpp
    font_answers.cpp
    font_library.cpp
    font_warm_up.cpp
    font_wishes.cpp
    head_start.cpp
    letter_weight.cpp
    memory_layout.cpp)
kelp_warnings(platform_start)
target_include_directories(platform_start PUBLIC "${PROJECT_SOURCE_DIR}")
target_link_libraries(platform_start PUBLIC PkgConfig::FONTCONFIG Threads::Threads ${CMAKE_DL_LIBS})
