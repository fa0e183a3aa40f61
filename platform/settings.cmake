# Every persistent choice, and the store that holds them.
add_library(platform_settings STATIC
    player_conf_path.cpp
    settings_access.cpp
    settings_file.cpp
    qsettings_access.cpp)
kelp_qt_defaults(platform_settings)
set_target_properties(platform_settings PROPERTIES AUTOMOC OFF)
target_link_libraries(platform_settings PUBLIC Qt6::Core)
target_precompile_headers(platform_settings PRIVATE "${PROJECT_SOURCE_DIR}/cmake/pch_logic.h")
