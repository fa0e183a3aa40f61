kelp_test(app_diagnostics_test LABEL logic QT
    SOURCES crash_guard_test.cpp log_batch_test.cpp stall_sampler_test.cpp
    LINK app_diagnostics)
