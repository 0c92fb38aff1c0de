# SPDX-FileCopyrightText: 2026 the tarnwidgets developers
# SPDX-License-Identifier: MIT

# Fails unless LIBRARY, as READELF and NM read it, calls itself SONAME, names each library of the list NEEDED as needed
# and no module of Qt but MODULES (a regular expression), and calls nothing of Qt's private symbols, nothing that reads the
# environment, and nothing that makes a thread or a timer.

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

string(REGEX MATCHALL "libQt5[A-Za-z0-9]+" modules "${dynamic}")
foreach(module IN LISTS modules)
    if(NOT module MATCHES "^libQt5(${MODULES})$")
        message("${LIBRARY} needs ${module}")
        message(SEND_ERROR "Unexpected dependency")
    endif()
endforeach()

execute_process(COMMAND ${NM} -D --undefined-only -C ${LIBRARY}
    OUTPUT_VARIABLE undefined
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${NM} ${LIBRARY}: ${result}")
endif()
if(NOT undefined MATCHES "@Qt_5")
    message(FATAL_ERROR "The symbols that ${LIBRARY} takes from Qt have no versions to tell them apart by")
endif()
string(REGEX MATCHALL "[^\n]+@Qt_5_PRIVATE_API" private "${undefined}")
if(private)
    message("${LIBRARY} uses private symbols of Qt: ${private}")
    message(SEND_ERROR "Private symbols of Qt")
endif()

set(own_means
    "qgetenv|qEnvironmentVariable|QProcessEnvironment::|(secure_)?getenv@" # the environment
    "QThread|QtConcurrent::|std::thread::|pthread_create@|thrd_create@" # threads
    "QTimer::|QBasicTimer::|QObject::startTimer|timer_create@|timerfd_create@") # timers
list(JOIN own_means "|" own_means)
string(REGEX MATCHALL "U (${own_means})[^\n]*" calls "${undefined}")
if(calls)
    message("${LIBRARY} calls ${calls}")
    message(SEND_ERROR "Environment, threads or timers")
endif()
