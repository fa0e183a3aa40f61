# What stored choices mean.
add_library(app_settings STATIC
    settings_rules.cpp
    stored_params.cpp)
kelp_qt_defaults(app_settings)
set_target_properties(app_settings PROPERTIES AUTOMOC OFF)
target_link_libraries(app_settings PUBLIC platform_settings Qt6::Core)
target_precompile_headers(app_settings PRIVATE "${PROJECT_SOURCE_DIR}/cmake/pch_logic.h")
