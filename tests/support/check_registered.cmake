# SPDX-FileCopyrightText: 2026 the tarnwidgets developers
# SPDX-License-Identifier: MIT

# Fails unless each SOURCE_DIR/tst_*.cpp is a test that CTEST would run from BINARY_DIR under the file's name. LEFT_OUT
# lists those that this build leaves out because of its options.

cmake_minimum_required(VERSION 3.16)

execute_process(COMMAND ${CTEST} -N
    WORKING_DIRECTORY ${BINARY_DIR}
    OUTPUT_VARIABLE listing
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${CTEST} -N in ${BINARY_DIR}: ${result}")
endif()

file(GLOB sources RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/tst_*.cpp)
if(NOT sources)
    message(FATAL_ERROR "No tst_*.cpp in ${SOURCE_DIR}")
endif()

set(missing)
foreach(source IN LISTS sources)
    string(REGEX REPLACE "\\.cpp$" "" name ${source})
    if(name IN_LIST LEFT_OUT)
        continue()
    endif()
    # Up to the line's end: a disabled test has a remark behind its name.
    if(NOT listing MATCHES "#[0-9]+: ${name}\n")
        list(APPEND missing ${source})
    endif()
endforeach()
if(missing)
    message(FATAL_ERROR "Not run by ctest, add them to tests/CMakeLists.txt: ${missing}")
endif()
