add_executable(nurva_cold_start_plain peers/PlainCairoFace.cpp peers/PlainCairo.cpp)
target_include_directories(nurva_cold_start_plain PRIVATE
    ${PROJECT_SOURCE_DIR}/bench ${PROJECT_SOURCE_DIR}/tests)
target_link_libraries(nurva_cold_start_plain PRIVATE
    nurva_views PkgConfig::CAIRO PkgConfig::PANGO)

nurva_bench(cold_start SOURCES ColdStartBenchmark.cpp)
target_include_directories(nurva_bench_cold_start PRIVATE ${PROJECT_SOURCE_DIR}/tests)
target_compile_definitions(nurva_bench_cold_start PRIVATE
    ${NURVA_EXAMPLE}
    NURVA_COMMAND="$<TARGET_FILE:nurva>"
    NURVA_PLAIN_PROGRAM="$<TARGET_FILE:nurva_cold_start_plain>")
add_dependencies(nurva_bench_cold_start nurva nurva_cold_start_plain)
