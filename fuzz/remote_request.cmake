kelp_fuzz(remote_request QT SOURCES fuzz_remote_request.cpp LINK net_logic)
