if(TARGET engine_logic)
    kelp_fuzz(engine_lines SOURCES fuzz_engine_lines.cpp LINK engine_logic)
endif()
