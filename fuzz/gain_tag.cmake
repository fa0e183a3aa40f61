kelp_fuzz(gain_tag SOURCES fuzz_gain_tag.cpp LINK core_source)
