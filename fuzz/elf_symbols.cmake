kelp_fuzz(elf_symbols QT SOURCES fuzz_elf_symbols.cpp LINK platform_diagnostics)
