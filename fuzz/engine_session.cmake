kelp_fuzz(control_line SOURCES fuzz_control_line.cpp LINK core_session)
kelp_fuzz(command_line SOURCES fuzz_command_line.cpp LINK core_session)
