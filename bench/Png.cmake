nurva_bench(png
    SOURCES PngBenchmark.cpp
    ROOMS canvas
    LIBRARIES PkgConfig::CAIRO)
target_include_directories(nurva_bench_png PRIVATE ${PROJECT_SOURCE_DIR}/tests)
