find_package(Python3 REQUIRED COMPONENTS Interpreter)
kelp_test(platform_settings_test LABEL logic QT
    SOURCES player_conf_path_test.cpp settings_access_test.cpp settings_table_test.cpp qsettings_access_test.cpp settings_file_test.cpp
    LINK platform_settings)
add_test(NAME settings.keys COMMAND Python3::Interpreter "${CMAKE_CURRENT_SOURCE_DIR}/test_settings_keys.py")
set_tests_properties(settings.keys PROPERTIES LABELS logic)
