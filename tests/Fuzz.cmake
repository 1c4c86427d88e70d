# Fuzz targets: what reads texts and files from outside is fed with whatever breaks it. They need clang; `ctest` runs
# each for a few seconds, `build/bin/fuzz_<name> [FOLDER]` as long as one likes.
#
# qvdc_fuzz(name SOURCES files...): tests/fuzz/fuzz_<name>.cpp with the sources it feeds, which are built afresh so
# that the fuzzer sees their branches; the rest comes from the libraries. SECONDS is the length of its run in the tests.
find_program(CLANGXX NAMES clang++ clang++-14)
if(CCACHE)
    set(CCACHE_COMMAND ${CCACHE})
endif()
set(fuzz_libraries QvDocServices QvDocContract Qt6::Core)

function(qvdc_fuzz name)
    cmake_parse_arguments(ARG "" "SECONDS" "SOURCES" ${ARGN})
    if(NOT CLANGXX OR QVDC_SANITIZE)
        return()
    endif()
    list(TRANSFORM ARG_SOURCES PREPEND ${PROJECT_SOURCE_DIR}/src/)
    set(program ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/fuzz_${name})
    set(objects)
    foreach(source ${CMAKE_CURRENT_SOURCE_DIR}/fuzz/fuzz_${name}.cpp ${ARG_SOURCES})
        get_filename_component(unit ${source} NAME_WE)
        set(object ${CMAKE_CURRENT_BINARY_DIR}/fuzz/${name}/${unit}.o)
        add_custom_command(OUTPUT ${object} DEPENDS ${source} DEPFILE ${object}.d COMMAND_EXPAND_LISTS VERBATIM
            COMMAND ${CCACHE_COMMAND} ${CLANGXX} -std=c++20 -O1 -g -fPIC -Wall -Wextra -fsanitize=fuzzer-no-link,address,undefined
                    -fno-sanitize-recover=undefined -I${PROJECT_SOURCE_DIR}/src
                    "-isystem$<JOIN:$<TARGET_PROPERTY:Qt6::Core,INTERFACE_INCLUDE_DIRECTORIES>,;-isystem>"
                    -MMD -MF ${object}.d -MT ${object} -c ${source} -o ${object}
            COMMENT "Building fuzz target ${name}: ${unit}")
        list(APPEND objects ${object})
    endforeach()
    add_custom_command(OUTPUT ${program} DEPENDS ${objects} ${fuzz_libraries} COMMAND_EXPAND_LISTS VERBATIM
        COMMAND ${CLANGXX} -fsanitize=fuzzer,address,undefined ${objects}
                $<TARGET_FILE:QvDocServices> $<TARGET_FILE:QvDocContract> $<TARGET_FILE:Qt6::Core>
                -Wl,-rpath,${CMAKE_LIBRARY_OUTPUT_DIRECTORY} -o ${program}
        COMMENT "Linking fuzz target ${name}")
    add_custom_target(fuzz_${name} ALL DEPENDS ${program})
    if(NOT ARG_SECONDS)
        set(ARG_SECONDS 10)
    endif()
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/fuzz/${name})
    add_test(NAME fuzz_${name} COMMAND ${program} -max_total_time=${ARG_SECONDS} -print_final_stats=0 -verbosity=0
             WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/fuzz/${name}) # what breaks it is left there
    set_tests_properties(fuzz_${name} PROPERTIES ENVIRONMENT "ASAN_OPTIONS=detect_leaks=0")
endfunction()
