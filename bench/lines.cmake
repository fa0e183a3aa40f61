kelp_bench(lines_bench SOURCES lines_bench.cpp LINK engine_logic)
