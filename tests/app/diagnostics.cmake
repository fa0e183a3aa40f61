kelp_test(app_diagnostics_test LABEL logic QT
    SOURCES stall_sampler_test.cpp
    LINK app_diagnostics)
