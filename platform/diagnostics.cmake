# What a frozen thread is doing: its stack, the loaded modules, the names of functions.
add_library(platform_diagnostics STATIC
    elf_symbols.cpp
    module_list.cpp
    stack_sample.cpp
    symbol_names.cpp)
kelp_qt_defaults(platform_diagnostics)
set_target_properties(platform_diagnostics PROPERTIES AUTOMOC OFF)
target_link_libraries(platform_diagnostics PUBLIC Qt6::Core Threads::Threads)
target_precompile_headers(platform_diagnostics PRIVATE "${PROJECT_SOURCE_DIR}/cmake/pch_logic.h")
