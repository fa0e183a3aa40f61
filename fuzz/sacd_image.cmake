kelp_fuzz(sacd_image SOURCES fuzz_sacd_image.cpp LINK core_source)
