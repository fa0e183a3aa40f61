kelp_bench(core_dsp_bench SOURCES dsp_bench.cpp LINK core_dsp)
