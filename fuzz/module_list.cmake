kelp_fuzz(module_list QT SOURCES fuzz_module_list.cpp LINK platform_diagnostics)
