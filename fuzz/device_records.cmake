kelp_fuzz(device_records SOURCES fuzz_device_records.cpp LINK core_output)
