nurva_bench(layout
    SOURCES LayoutBenchmark.cpp Example.cpp peers/QtFaces.cpp
    ROOMS vistas estado widgets canvas views foundation
    LIBRARIES Qt5::Widgets)
target_include_directories(nurva_bench_layout PRIVATE ${PROJECT_SOURCE_DIR}/bench)
target_compile_definitions(nurva_bench_layout PRIVATE ${NURVA_EXAMPLE})
