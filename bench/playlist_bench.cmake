# A long playlist beside a bare list of the toolkit.
if(KELP_BUILD_BENCH AND TARGET kelp_window)
    add_executable(playlist_bench playlist_bench.cpp)
    kelp_qt_defaults(playlist_bench)
    target_link_libraries(playlist_bench PRIVATE kelp_window app_parts Qt6::Test)
    set_target_properties(playlist_bench PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bench")
endif()
