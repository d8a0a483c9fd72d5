# Installs the entries and services that start a program, in which its place stands. Only an installation
# knows that: `cmake --install` may be given another prefix than the project was configured with.
set(program "${programs}/nurva")
if(NOT IS_ABSOLUTE "${programs}")
    string(PREPEND program "${CMAKE_INSTALL_PREFIX}/")
endif()
get_filename_component(program "${program}" ABSOLUTE)
if(program MATCHES "[^-+./0-9A-Z_a-z]")
    set(program "\"${program}\"")
endif()

function(install_naming_programs folder)
    foreach(file IN LISTS ARGN)
        configure_file("${source}/${file}.in" "${binary}/${file}" @ONLY)
        file(INSTALL "${binary}/${file}" DESTINATION "${CMAKE_INSTALL_PREFIX}/${folder}")
    endforeach()
    # What install_manifest.txt will name.
    set(CMAKE_INSTALL_MANIFEST_FILES "${CMAKE_INSTALL_MANIFEST_FILES}" PARENT_SCOPE)
endfunction()

install_naming_programs(share/applications
    org.nurva.DemoHost.desktop org.nurva.WidgetHost.desktop)
install_naming_programs(share/dbus-1/services org.nurva.WidgetCenter.service)
install_naming_programs(share/systemd/user nurva-demo-host.service nurva-desktop.service)
