# SPDX-FileCopyrightText: 2026 the tarnwidgets developers
# SPDX-License-Identifier: MIT

# Has two builds of the gallery draw all their pictures, in FIRST_NAME and SECOND_NAME below DIRECTORY, and fails if
# they are not the same pixel by pixel. FIRST and SECOND are the programs, LAUNCHER what the second and COMPARE, the
# program that compares, run under. The pictures stay for looking at.

cmake_minimum_required(VERSION 3.16)

function(run what)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${what}: ${result}")
    endif()
endfunction()

# A program of its own place: beside the one that was built there may be custom colours of whoever has tried it.
function(draw name program)
    if(NOT EXISTS ${program})
        message(FATAL_ERROR "${program} is missing; scripts/test aarch64 builds it")
    endif()
    set(home ${DIRECTORY}/home-${name})
    file(REMOVE_RECURSE ${DIRECTORY}/${name} ${home})
    file(COPY ${program} DESTINATION ${home}/bin)
    get_filename_component(program_name ${program} NAME)
    get_filename_component(data ${program}/../../share REALPATH)
    file(CREATE_LINK ${data} ${home}/share SYMBOLIC)
    run("Drawing with ${program}" env -i HOME=${home} XDG_RUNTIME_DIR=${home} LANG=C.UTF-8 PATH=$ENV{PATH} ${ARGN}
        ${home}/bin/${program_name} --pictures ${DIRECTORY}/${name})
    file(REMOVE_RECURSE ${home})
endfunction()

draw(${FIRST_NAME} ${FIRST})
draw(${SECOND_NAME} ${SECOND} ${LAUNCHER})
execute_process(COMMAND ${LAUNCHER} ${COMPARE} ${DIRECTORY}/${FIRST_NAME} ${DIRECTORY}/${SECOND_NAME}
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The pictures differ as told above. See ${DIRECTORY}/${FIRST_NAME} and "
        "${DIRECTORY}/${SECOND_NAME}")
endif()
