kelp_fuzz(id3_picture SOURCES fuzz_id3_picture.cpp LINK core_source)
