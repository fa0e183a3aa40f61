# Tests are GoogleTest programs under CTest, one a folder and label: logic, parts, e2e, fuzz-replay.

if(KELP_BUILD_TESTS)
    find_package(GTest REQUIRED)
    include(GoogleTest)
    # An environment set here would reach only the tests that CTest starts, and of a list only its first part.
    add_library(test_environment OBJECT "${PROJECT_SOURCE_DIR}/tests/support/test_environment.cpp")
    kelp_warnings(test_environment)
endif()

# kelp_test(<name> LABEL logic SOURCES a.cpp … LINK libs … [QT] [TIMEOUT s])
#   QT: compiled with Qt's definitions and the automatic meta-object compiler.
#   The test's own main() comes from GTest::gtest_main unless MAIN names a source that has one.
function(kelp_test name)
    cmake_parse_arguments(arg "QT;OWN_MAIN" "LABEL;TIMEOUT" "SOURCES;LINK" ${ARGN})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 300) # for what takes seconds, on a slow machine that is busy with other tests
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/tests")
    if(arg_QT)
        kelp_qt_defaults(${name})
    else()
        kelp_warnings(${name})
    endif()
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    if(KELP_SANITIZE STREQUAL "thread")
        target_sources(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests/support/tsan_clone.cpp")
    endif()
    target_link_libraries(${name} PRIVATE test_environment sanitizer_defaults)
    if(arg_OWN_MAIN)
        target_link_libraries(${name} PRIVATE ${arg_LINK} GTest::gtest GTest::gmock)
    else()
        target_link_libraries(${name} PRIVATE ${arg_LINK} GTest::gtest GTest::gmock GTest::gtest_main)
    endif()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 300
        PROPERTIES LABELS "${arg_LABEL}" TIMEOUT ${arg_TIMEOUT} ENVIRONMENT QT_QPA_PLATFORM=offscreen
        SKIP_REGULAR_EXPRESSION "\\[  SKIPPED \\]")
endfunction()
