# The file manager of the desktop, asked over the session bus.
add_library(platform_file_manager STATIC file_manager.cpp)
kelp_qt_defaults(platform_file_manager)
set_target_properties(platform_file_manager PROPERTIES AUTOMOC OFF)
target_link_libraries(platform_file_manager PUBLIC Qt6::Core Qt6::DBus)
