find_package(Qt6 REQUIRED COMPONENTS Widgets)
kelp_bench(paint_bench SOURCES paint_bench.cpp LINK ui_parts)
