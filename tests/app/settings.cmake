kelp_test(app_settings_test LABEL logic QT
    SOURCES combo_restore_test.cpp settings_rules_test.cpp stored_params_test.cpp
    LINK app_settings app_logic)
