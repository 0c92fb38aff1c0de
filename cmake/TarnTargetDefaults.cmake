# SPDX-FileCopyrightText: 2026 the tarnwidgets developers
# SPDX-License-Identifier: MIT

# What every target of this project is compiled with.
function(tarn_target_defaults target)
    set_target_properties(${target} PROPERTIES
        AUTOMOC ON
        CXX_STANDARD 17
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    # Qt's macros with optional arguments, QSKIP among them, are used as Qt documents them.
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic
        $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>)
    if(TARN_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()

# The strictest settings that an application may use; the libraries keep to them, so that their headers do.
function(tarn_strict_qt target)
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_CAST_FROM_BYTEARRAY
        QT_NO_URL_CAST_FROM_STRING
        QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
        QT_NO_FOREACH)
endfunction()

# For what the coverage report is about. The tests need no counters of their own: they run as they do elsewhere. Not
# optimised, so that each line and each branch is still the one that the source has.
function(tarn_counted target)
    if(TARN_COVERAGE)
        target_compile_options(${target} PRIVATE --coverage -O0 -fno-exceptions)
    endif()
endfunction()

# For the sources of our shared libraries: the linker can leave out what no exported symbol leads to, and a call within
# a source file goes straight to its function. The address of a function stays the one that the program sees, which
# -Bsymbolic-functions would change: in a program without -fPIC, as Qt for AArch64 allows, a connection to a signal by
# its function pointer would then fail.
function(tarn_lean_objects target)
    target_compile_options(${target} PRIVATE -ffunction-sections -fdata-sections -fno-semantic-interposition)
endfunction()

# For our shared libraries: nothing undefined, nothing unreached, and nothing visible but our own exported classes.
function(tarn_link_strictly target)
    set(exports ${PROJECT_SOURCE_DIR}/cmake/exports.map)
    target_link_options(${target} PRIVATE -Wl,--version-script=${exports} -Wl,--gc-sections)
    # Clang leaves the sanitizers' symbols to the program.
    if(NOT TARN_SANITIZE OR NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${exports})
endfunction()

# Lets the headers of the current directory be found as <directory/x.h> and as <x.h>. The first form goes through a
# root that holds this directory alone: in the source tree the stand-in for libtarnutils lies beside it, and would be
# found where a device's own is asked for.
function(tarn_header_directories target)
    set(root ${CMAKE_CURRENT_BINARY_DIR}/include)
    get_filename_component(name ${CMAKE_CURRENT_SOURCE_DIR} NAME)
    file(MAKE_DIRECTORY ${root})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${name} SYMBOLIC)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${root}>
        $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>)
endfunction()
