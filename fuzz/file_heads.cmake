kelp_fuzz(file_heads SOURCES fuzz_file_heads.cpp LINK core_source)
