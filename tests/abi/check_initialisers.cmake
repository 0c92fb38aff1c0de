# SPDX-FileCopyrightText: 2026 the tarnwidgets developers
# SPDX-License-Identifier: MIT

# Fails if LIBRARY, as READELF and NM read it, has anything of its own to run when it is loaded. The compiler's start-up
# files bring one entry of .init_array themselves: frame_dummy.

cmake_minimum_required(VERSION 3.16)

function(read variable)
    execute_process(COMMAND ${ARGN} ${LIBRARY}
        OUTPUT_VARIABLE output
        RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN} ${LIBRARY}: ${result}")
    endif()
    set(${variable} "${output}" PARENT_SCOPE)
endfunction()

read(header ${READELF} -h)
read(dynamic ${READELF} -dW)
read(symbols ${NM} -C)

if(NOT header MATCHES "Class: +ELF(32|64)")
    message(FATAL_ERROR "${LIBRARY} is of no known ELF class")
endif()
math(EXPR pointer_size "${CMAKE_MATCH_1} / 8")
if(NOT dynamic MATCHES "\\(INIT_ARRAYSZ\\) +([0-9]+)")
    message(FATAL_ERROR "${LIBRARY} has no .init_array, not even the entry of the compiler's own")
endif()
math(EXPR entries "${CMAKE_MATCH_1} / ${pointer_size}")
if(NOT symbols MATCHES " t frame_dummy\n")
    message(FATAL_ERROR "${LIBRARY} is stripped, or its compiler brings no frame_dummy")
endif()

# Named after the source file that they come from.
string(REGEX MATCHALL "[^\n]+ _GLOBAL__(sub_)?[ID][^\n]*" own "${symbols}")
if(entries GREATER 1 OR own)
    message("${LIBRARY} runs ${entries} functions when loaded instead of frame_dummy alone: ${own}")
    message(FATAL_ERROR "Dynamic initialisers")
endif()
