# A room is a folder of src/ with a library of its own. It sees only the rooms it names in ROOMS;
# LIBRARIES are the outside libraries that it owns.

add_library(nurva_options INTERFACE)
target_include_directories(nurva_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(nurva_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wno-missing-field-initializers
    # g++ 12 sees uninitialized strings in every variant that is moved, and overlapping ones in sums; the
    # sanitizers and clang watch instead.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
    $<$<BOOL:${NURVA_WERROR}>:-Werror>)
# A sanitizer has memory, descriptors and system calls of its own: NURVA_SANITIZED says so, 0 or 1.
if(NURVA_SANITIZE)
    target_compile_definitions(nurva_options INTERFACE NURVA_SANITIZED=1)
    target_compile_options(nurva_options INTERFACE
        -fsanitize=${NURVA_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(nurva_options INTERFACE -fsanitize=${NURVA_SANITIZE})
else()
    target_compile_definitions(nurva_options INTERFACE NURVA_SANITIZED=0)
endif()

# Everything counts what is run of it; only the tests of rooms, which are linked for it, write that down.
if(NURVA_COVERAGE)
    target_compile_options(nurva_options INTERFACE -fprofile-instr-generate -fcoverage-mapping)
endif()

function(nurva_room name)
    cmake_parse_arguments(ARG "" "" "SOURCES;ROOMS;LIBRARIES" ${ARGN})
    list(TRANSFORM ARG_ROOMS PREPEND nurva_)
    add_library(nurva_${name} STATIC ${ARG_SOURCES})
    # The options are for those who build the room, not for those who install it.
    target_link_libraries(nurva_${name}
        PUBLIC $<BUILD_INTERFACE:nurva_options> ${ARG_ROOMS} PRIVATE ${ARG_LIBRARIES})
endfunction()

# A program that somebody waits for, made of main.cpp and rooms. At its start most of what its libraries look
# up is in the C, C++ and GLib libraries, which are searched first when they are linked first.
function(nurva_program name)
    cmake_parse_arguments(ARG "" "" "ROOMS" ${ARGN})
    list(TRANSFORM ARG_ROOMS PREPEND nurva_)
    add_executable(${name} main.cpp)
    target_link_options(${name} PRIVATE
        LINKER:--push-state,--no-as-needed
        -l:libc.so.6 -lstdc++ -lglib-2.0 -lgobject-2.0
        LINKER:--pop-state)
    target_link_libraries(${name} PRIVATE ${ARG_ROOMS})
endfunction()

# A complaint of GLib or Pango is a fault of ours; what the libraries never free is not.
set(NURVA_TEST_ENVIRONMENT
    "G_DEBUG=fatal-criticals;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0")

# In seconds. Only what hangs takes so long, under sanitizers on a busy machine too.
set(NURVA_TEST_TIMEOUT 1800)

# GoogleTest takes the compiler longer than most tests: it is read once for the programs of tests. What was
# read serves only where the flags are the same, and Pango's bring -pthread along: all tests have it.
function(nurva_test_headers)
    set(source ${PROJECT_BINARY_DIR}/test_headers.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "int main() {}\n")
    add_executable(nurva_test_headers EXCLUDE_FROM_ALL ${source})
    target_compile_options(nurva_test_headers PRIVATE -pthread)
    target_link_libraries(nurva_test_headers PRIVATE nurva_options GTest::gtest)
    target_precompile_headers(nurva_test_headers PRIVATE <gtest/gtest.h>)
endfunction()

# A program of tests. DEFINITIONS are for its sources; PROGRAMS are built before it is run.
function(nurva_test_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;ROOMS;LIBRARIES;DEFINITIONS;PROGRAMS" ${ARGN})
    list(TRANSFORM ARG_ROOMS PREPEND nurva_)
    add_executable(${name}_test ${ARG_SOURCES})
    target_include_directories(${name}_test PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_compile_definitions(${name}_test PRIVATE
        NURVA_TESTS_FOLDER="${PROJECT_SOURCE_DIR}/tests"
        NURVA_RESOURCES_FOLDER="${PROJECT_SOURCE_DIR}/resources"
        ${ARG_DEFINITIONS})
    target_link_libraries(${name}_test PRIVATE
        ${ARG_ROOMS} ${ARG_LIBRARIES} GTest::gmock GTest::gtest_main)
    target_compile_options(${name}_test PRIVATE -pthread)
    target_precompile_headers(${name}_test REUSE_FROM nurva_test_headers)
    if(ARG_PROGRAMS)
        add_dependencies(${name}_test ${ARG_PROGRAMS})
    endif()
    add_test(NAME ${name} COMMAND ${name}_test)
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${NURVA_TEST_TIMEOUT} ENVIRONMENT "${NURVA_TEST_ENVIRONMENT}")
endfunction()

# The tests of one room, as one program. The room is linked whole with nothing but the rooms it names,
# so a room that reaches for one above it does not link.
function(nurva_test room)
    nurva_test_program(${room} ${ARGN})
    target_link_libraries(${room}_test PRIVATE "$<LINK_LIBRARY:WHOLE_ARCHIVE,nurva_${room}>")
    if(NURVA_COVERAGE)
        target_link_options(${room}_test PRIVATE -fprofile-instr-generate)
    endif()
endfunction()
