kelp_fuzz(device_list SOURCES fuzz_device_list.cpp LINK output_logic)
kelp_fuzz(container_listing SOURCES fuzz_container_listing.cpp LINK playback_logic)
kelp_fuzz(verify_lines SOURCES fuzz_verify_lines.cpp LINK playback_logic)
