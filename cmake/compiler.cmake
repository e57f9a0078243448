# SPDX-License-Identifier: MIT
# Options for the project's own targets: link project-options privately.
add_library(project-options INTERFACE)
# Each index into a container is checked: the files that the program reads come from strangers.
target_compile_definitions(project-options INTERFACE _GLIBCXX_ASSERTIONS)
target_compile_options(project-options INTERFACE
    -Wall -Wextra -Wpedantic
    -Wcast-align -Wcast-qual -Wconversion -Wdouble-promotion -Wextra-semi -Wformat=2
    -Wimplicit-fallthrough -Wmissing-declarations -Wnon-virtual-dtor -Wold-style-cast
    -Woverloaded-virtual -Wredundant-decls -Wshadow -Wsign-conversion -Wundef -Wunused
    -Wzero-as-null-pointer-constant
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-branches -Wduplicated-cond -Wlogical-op
        -Wsuggest-override -Wuseless-cast>)

if(KALVON_SANITIZE)
    # The instrumented code misleads the compiler's search for uninitialised variables.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    add_link_options(-fsanitize=address,undefined)
endif()

if(KALVON_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

find_program(CCACHE_PROGRAM ccache)
if(KALVON_CCACHE AND CCACHE_PROGRAM)
    # ccache takes a precompiled header into account only with these two settings and this option.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()
