nurva_bench(redraw
    SOURCES RedrawBenchmark.cpp Example.cpp peers/PlainCairo.cpp
    ROOMS vistas estado widgets canvas views foundation
    LIBRARIES PkgConfig::CAIRO PkgConfig::PANGO)
target_include_directories(nurva_bench_redraw PRIVATE ${PROJECT_SOURCE_DIR}/bench)
target_compile_definitions(nurva_bench_redraw PRIVATE ${NURVA_EXAMPLE})
