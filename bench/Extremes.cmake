nurva_bench(extremes
    SOURCES ExtremesBenchmark.cpp Example.cpp
    ROOMS vistas estado widgets canvas views foundation)
target_include_directories(nurva_bench_extremes PRIVATE ${PROJECT_SOURCE_DIR}/bench)
target_compile_definitions(nurva_bench_extremes PRIVATE ${NURVA_EXAMPLE})
