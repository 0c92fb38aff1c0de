# SPDX-FileCopyrightText: 2026 the tarnwidgets developers
# SPDX-License-Identifier: MIT

# Fails unless the dynamic symbol table of LIBRARY, as NM reads it, holds symbols of each class in the file CLASSES, of
# nothing else, and for each class that is not plain its vtable, typeinfo and meta-object. The list EXCEPT takes classes
# out again that the build keeps hidden.

cmake_minimum_required(VERSION 3.16)

execute_process(COMMAND ${NM} -D --defined-only -C ${LIBRARY}
    OUTPUT_VARIABLE table
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${NM} ${LIBRARY}: ${result}")
endif()
string(REGEX MATCHALL "[^\n]+" lines "${table}")
if(NOT lines)
    message(FATAL_ERROR "${LIBRARY} exports nothing")
endif()

file(STRINGS ${CLASSES} entries REGEX "^[^#]")
list(REMOVE_ITEM entries ${EXCEPT})
set(classes)
foreach(entry IN LISTS entries)
    string(REGEX REPLACE " plain$" "" class "${entry}")
    list(APPEND classes ${class})
endforeach()

# Names without the address, the type letter and the word for what the compiler makes of a class.
set(names)
set(strangers)
foreach(line IN LISTS lines)
    string(REGEX REPLACE "^[0-9a-f]* *[A-Za-z] " "" name "${line}")
    list(APPEND names "${name}")
    string(REGEX REPLACE
        "^(vtable for|typeinfo for|typeinfo name for|non-virtual thunk to|virtual thunk to|guard variable for) " ""
        member "${name}")
    set(is_ours FALSE)
    foreach(class IN LISTS classes)
        # The class by itself is what a vtable or typeinfo is for.
        string(FIND "${member}" "${class}::" position)
        if(position EQUAL 0 OR (member STREQUAL class AND NOT name STREQUAL class))
            set(is_ours TRUE)
        endif()
    endforeach()
    if(NOT is_ours OR member MATCHES "{lambda|{unnamed|Private::")
        string(APPEND strangers "\n  ${line}")
    endif()
endforeach()

set(missing)
foreach(entry IN LISTS entries)
    if(entry MATCHES "^(.*) plain$")
        set(class ${CMAKE_MATCH_1})
        set(pattern "^${class}::")
    else()
        set(class ${entry})
        foreach(needed IN ITEMS "vtable for ${class}" "typeinfo for ${class}" "${class}::staticMetaObject")
            if(NOT needed IN_LIST names)
                string(APPEND missing "\n  ${needed}")
            endif()
        endforeach()
        string(REGEX REPLACE "^.*::" "" unqualified ${class})
        set(pattern "^${class}::${unqualified}\\(")
    endif()
    set(matching ${names})
    list(FILTER matching INCLUDE REGEX "${pattern}")
    if(NOT matching)
        string(APPEND missing "\n  ${class}")
    endif()
endforeach()

# As notices first, since errors are wrapped.
if(strangers)
    message("Exported without being listed in ${CLASSES}:${strangers}")
endif()
if(missing)
    message("Listed in ${CLASSES} without being exported:${missing}")
endif()
if(strangers OR missing)
    message(FATAL_ERROR "The symbols of ${LIBRARY} are not those of its classes")
endif()
