add_executable(nurva_delivery_reader DeliveryReader.cpp)
target_link_libraries(nurva_delivery_reader PRIVATE nurva_peticiones)

add_executable(nurva_delivery_glib_reader peers/GLibReader.cpp)
target_link_libraries(nurva_delivery_glib_reader PRIVATE nurva_options PkgConfig::GIO)

nurva_bench(delivery
    SOURCES DeliveryBenchmark.cpp peers/GLibDelivery.cpp
    ROOMS peticiones
    LIBRARIES PkgConfig::GIO)
target_include_directories(nurva_bench_delivery PRIVATE
    ${PROJECT_SOURCE_DIR}/bench ${PROJECT_SOURCE_DIR}/tests)
target_compile_definitions(nurva_bench_delivery PRIVATE
    NURVA_BENCH_FOLDER="${PROJECT_BINARY_DIR}"
    NURVA_DELIVERY_READER="$<TARGET_FILE:nurva_delivery_reader>"
    NURVA_DELIVERY_GLIB_READER="$<TARGET_FILE:nurva_delivery_glib_reader>")
add_dependencies(nurva_bench_delivery nurva_delivery_reader nurva_delivery_glib_reader)
