kelp_test(platform_diagnostics_test LABEL logic QT
    SOURCES elf_symbols_test.cpp module_list_test.cpp stack_sample_test.cpp
    LINK platform_diagnostics)
