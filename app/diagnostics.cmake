# The log, and the watch over a frozen user interface.
add_library(app_diagnostics STATIC
    crash_guard.cpp
    stall_sampler.cpp)
kelp_qt_defaults(app_diagnostics)
set_target_properties(app_diagnostics PROPERTIES AUTOMOC OFF)
target_link_libraries(app_diagnostics PUBLIC platform_diagnostics Qt6::Core)
target_precompile_headers(app_diagnostics PRIVATE "${PROJECT_SOURCE_DIR}/cmake/pch_logic.h")
