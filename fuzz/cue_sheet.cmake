kelp_fuzz(cue_sheet SOURCES fuzz_cue_sheet.cpp LINK core_source)
