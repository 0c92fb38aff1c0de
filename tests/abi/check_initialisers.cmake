# SPDX-FileCopyrightText: 2026 the tarnwidgets developers
# SPDX-License-Identifier: MIT

# Fails if LIBRARY, as READELF and NM read it, has anything of its own to run when it is loaded, which its .init_array
# would tell. The compiler's start-up files bring functions of their own.

cmake_minimum_required(VERSION 3.16)

set(of_the_compiler
    frame_dummy
    init_have_lse_atomics) # AArch64: finds out which atomic instructions there are

function(read variable)
    execute_process(COMMAND ${ARGN} ${LIBRARY}
        OUTPUT_VARIABLE output
        RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN} ${LIBRARY}: ${result}")
    endif()
    set(${variable} "${output}" PARENT_SCOPE)
endfunction()

read(sections ${READELF} -SW)
read(relocations ${READELF} -rW)
read(symbols ${NM})

if(NOT sections MATCHES " \\.init_array +INIT_ARRAY +([0-9a-f]+) [0-9a-f]+ ([0-9a-f]+) ")
    message(FATAL_ERROR "${LIBRARY} has no .init_array, not even for the compiler's own")
endif()
math(EXPR first "0x${CMAKE_MATCH_1}")
math(EXPR last "${first} + 0x${CMAKE_MATCH_2}")

# Each entry is the target of a relocation, whose last column is the function's address.
set(functions)
string(REGEX MATCHALL "[0-9a-f]+ +[0-9a-f]+ R_[A-Z0-9_]+_RELATIV[^\n]*" relocations "${relocations}")
foreach(relocation IN LISTS relocations)
    string(REGEX MATCH "^[0-9a-f]+" place "${relocation}")
    math(EXPR place "0x${place}")
    if(place GREATER_EQUAL first AND place LESS last)
        string(REGEX MATCH "[0-9a-f]+$" address "${relocation}")
        if(symbols MATCHES "(^|\n)0*${address} [tTwW] ([^\n]+)")
            list(APPEND functions ${CMAKE_MATCH_2})
        else()
            list(APPEND functions "one without a name at ${address}")
        endif()
    endif()
endforeach()
if(NOT "frame_dummy" IN_LIST functions)
    message(FATAL_ERROR "${LIBRARY} is stripped, or its compiler brings no frame_dummy: ${functions}")
endif()

list(REMOVE_ITEM functions ${of_the_compiler})
if(functions)
    message("${LIBRARY} runs when loaded: ${functions}")
    message(FATAL_ERROR "Dynamic initialisers")
endif()
