# The window as the phone remote's host, beside a bare listener.
if(KELP_BUILD_BENCH AND TARGET kelp_window)
    add_executable(remote_load remote_load.cpp)
    kelp_qt_defaults(remote_load)
    set_target_properties(remote_load PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bench")
    target_link_libraries(remote_load PRIVATE kelp_window app_parts net_service)
endif()
