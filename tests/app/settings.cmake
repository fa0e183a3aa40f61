kelp_test(app_settings_test LABEL logic QT
    SOURCES settings_rules_test.cpp stored_params_test.cpp
    LINK app_settings)
