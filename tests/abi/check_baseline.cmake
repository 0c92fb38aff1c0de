# SPDX-FileCopyrightText: 2026 the tarnwidgets developers
# SPDX-License-Identifier: MIT

# Fails if the binary interface of LIBRARY, as ABIDW reads it and ABIDIFF compares it, is not that of the file BASELINE.
# DESCRIPTION is where the library's own is written. With WRITE it is written to BASELINE and compared with nothing.

cmake_minimum_required(VERSION 3.16)

if(WRITE)
    set(DESCRIPTION ${BASELINE})
endif()

# Nothing that differs from one machine or one place to another, and no more of other libraries than names.
execute_process(COMMAND ${ABIDW}
        --exported-interfaces-only
        --no-architecture
        --no-comp-dir-path
        --no-corpus-path
        --no-elf-needed
        --no-parameter-names
        --no-show-locs
        --suppressions ${CMAKE_CURRENT_LIST_DIR}/foreign.abignore
        --type-id-style hash
        --out-file ${DESCRIPTION}
        ${LIBRARY}
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ABIDW} ${LIBRARY}: ${result}")
endif()
file(READ ${DESCRIPTION} description)
if(NOT description MATCHES "<class-decl [^>]*size-in-bits")
    message(FATAL_ERROR "${LIBRARY} comes without debug information, or without a class")
endif()
if(WRITE)
    # abidiff knows the file by its first line.
    string(FIND "${description}" "\n" position)
    string(SUBSTRING "${description}" 0 ${position} first_line)
    string(SUBSTRING "${description}" ${position} -1 others)
    file(WRITE ${BASELINE} "${first_line}
  <!--
  SPDX-FileCopyrightText: 2026 the tarnwidgets developers
  SPDX-License-Identifier: MIT
  -->${others}")
    return()
endif()

execute_process(COMMAND ${ABIDIFF} --harmless ${BASELINE} ${DESCRIPTION}
    OUTPUT_VARIABLE report
    RESULT_VARIABLE result)
# The lowest two bits tell of an error, the others of changes.
math(EXPR failed "${result} & 3" OUTPUT_FORMAT DECIMAL)
if(failed)
    message(FATAL_ERROR "${ABIDIFF} ${BASELINE} ${DESCRIPTION}: ${result}\n${report}")
endif()
if(result EQUAL 0)
    return()
endif()

# As a notice first, since errors are wrapped.
message("${report}")
if(report MATCHES "summary: ([1-9][0-9]* Removed|[0-9]+ Removed, [1-9][0-9]* Changed)")
    message("The binary interface of ${LIBRARY} has changed: what CONTRIBUTING.md, \"Compatibility\", does not allow"
        " breaks programs that are built already. Where it does allow it, scripts/abi-baseline writes the new baseline.")
else()
    message("The binary interface of ${LIBRARY} has only grown: scripts/abi-baseline writes the new baseline, which"
        " belongs to the same commit.")
endif()
message(FATAL_ERROR "The binary interface is not that of ${BASELINE}")
