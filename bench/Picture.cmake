nurva_bench(picture
    SOURCES PictureBenchmark.cpp
    ROOMS remote foundation
    LIBRARIES PkgConfig::SYSTEMD)
target_include_directories(nurva_bench_picture PRIVATE ${PROJECT_SOURCE_DIR}/tests)
