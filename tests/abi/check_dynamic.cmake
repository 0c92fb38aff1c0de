# SPDX-FileCopyrightText: 2026 the tarnwidgets developers
# SPDX-License-Identifier: MIT

# Fails unless LIBRARY, as READELF and NM read it, calls itself SONAME, names each library of the list NEEDED as needed,
# and uses none of Qt's private symbols.

cmake_minimum_required(VERSION 3.16)

execute_process(COMMAND ${READELF} -dW ${LIBRARY}
    OUTPUT_VARIABLE dynamic
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${READELF} ${LIBRARY}: ${result}")
endif()
if(NOT dynamic MATCHES "\\(SONAME\\)[^\n]*\\[([^]\n]*)\\]")
    message(FATAL_ERROR "${LIBRARY} has no soname")
endif()
if(NOT CMAKE_MATCH_1 STREQUAL SONAME)
    message("${LIBRARY} has the soname ${CMAKE_MATCH_1} instead of ${SONAME}")
    message(SEND_ERROR "Wrong soname")
endif()
foreach(library IN LISTS NEEDED)
    string(FIND "${dynamic}" "Shared library: [${library}]" position)
    if(position EQUAL -1)
        message("${LIBRARY} does not need ${library}")
        message(SEND_ERROR "Missing dependency")
    endif()
endforeach()

execute_process(COMMAND ${NM} -D --undefined-only ${LIBRARY}
    OUTPUT_VARIABLE undefined
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${NM} ${LIBRARY}: ${result}")
endif()
if(NOT undefined MATCHES "@Qt_5")
    message(FATAL_ERROR "The symbols that ${LIBRARY} takes from Qt have no versions to tell them apart by")
endif()
string(REGEX MATCHALL "[^ \n]+@Qt_5_PRIVATE_API" private "${undefined}")
if(private)
    message("${LIBRARY} uses private symbols of Qt: ${private}")
    message(SEND_ERROR "Private symbols of Qt")
endif()
