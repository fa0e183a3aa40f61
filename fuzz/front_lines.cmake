if(TARGET engine_logic AND TARGET output_logic)
    kelp_fuzz(output_lines SOURCES fuzz_output_lines.cpp LINK engine_logic)
    kelp_fuzz(device_list SOURCES fuzz_device_list.cpp LINK output_logic)
endif()
