# What every target of the project shares.
find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
endif()

add_library(qvdc_flags INTERFACE)
target_compile_options(qvdc_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wno-missing-field-initializers)
target_compile_definitions(qvdc_flags INTERFACE QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS_FOREACH QT_NO_FOREACH)
if(QVDC_SANITIZE)
    target_compile_options(qvdc_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(qvdc_flags INTERFACE -fsanitize=address,undefined)
endif()

# A source that joins a folder must reach the meta-object compiler too, which runs only when its stamp is gone or a known
# source is newer.
function(qvdc_follow_sources target)
    get_target_property(sources ${target} SOURCES)
    set(list ${CMAKE_CURRENT_BINARY_DIR}/${target}.sources)
    set(before)
    if(EXISTS ${list})
        file(READ ${list} before)
    endif()
    if(NOT before STREQUAL "${sources}")
        file(WRITE ${list} "${sources}")
        file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp)
    endif()
endfunction()

# qvdc_room(target folder LINKS libraries...): one room of the house, every source below its folder.
function(qvdc_room target kind folder)
    cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp
                                                ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h)
    add_library(${target} ${kind} ${sources})
    qvdc_follow_sources(${target})
    target_link_libraries(${target} PUBLIC ${ARG_LINKS} PRIVATE $<BUILD_INTERFACE:qvdc_flags>)
    target_precompile_headers(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/pch.h)
endfunction()
