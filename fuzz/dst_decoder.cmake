kelp_fuzz(dst_decoder SOURCES fuzz_dst_decoder.cpp LINK core_source)
