# Whether the desktop prefers light or dark windows.
add_library(platform_scheme STATIC
    system_scheme.cpp
    system_scheme.h)
kelp_qt_defaults(platform_scheme)
target_link_libraries(platform_scheme PUBLIC Qt6::Gui Qt6::DBus)
