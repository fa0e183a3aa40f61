# The window under an engine that talks far more than any does.
if(KELP_BUILD_BENCH AND TARGET kelp_window)
    add_executable(telemetry_load telemetry_load.cpp)
    kelp_qt_defaults(telemetry_load)
    set_target_properties(telemetry_load PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bench")
    target_link_libraries(telemetry_load PRIVATE kelp_window app_parts)
endif()
