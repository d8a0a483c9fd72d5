# What the author of a host application gets: the room `enlace` with the rooms below it, the headers that
# its own ones include, a CMake package, and the form of both files.
include(CMakePackageConfigHelpers)

set(package ${CMAKE_INSTALL_LIBDIR}/cmake/NurvaWidgets)
set(rooms enlace peticiones estado widgets views intents foundation)
foreach(room IN LISTS rooms)
    set_target_properties(nurva_${room} PROPERTIES EXPORT_NAME ${room})
endforeach()
list(TRANSFORM rooms PREPEND nurva_)

target_compile_features(nurva_enlace INTERFACE cxx_std_20)
set(headers
    enlace/Buzon.hpp
    enlace/Publicador.hpp
    estado/AppCorta.hpp
    estado/EstadoParaWidgets.hpp
    estado/PerfilCorto.hpp
    peticiones/Peticion.hpp
    platform/foundation/Date.hpp
    platform/foundation/json/CodingKey.hpp)
list(TRANSFORM headers PREPEND ${PROJECT_SOURCE_DIR}/src/)
target_sources(nurva_enlace PUBLIC
    FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src FILES ${headers})

install(TARGETS ${rooms} EXPORT NurvaWidgets COMPONENT development
    ARCHIVE COMPONENT development
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/nurva-widgets COMPONENT development)
install(EXPORT NurvaWidgets NAMESPACE NurvaWidgets:: FILE NurvaWidgetsTargets.cmake
    DESTINATION ${package} COMPONENT development)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/NurvaWidgetsConfig.cmake.in
    ${PROJECT_BINARY_DIR}/NurvaWidgetsConfig.cmake INSTALL_DESTINATION ${package}
    NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/NurvaWidgetsConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/NurvaWidgetsConfig.cmake
    ${PROJECT_BINARY_DIR}/NurvaWidgetsConfigVersion.cmake
    DESTINATION ${package} COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/schema
    DESTINATION share/nurva-widgets COMPONENT development)
