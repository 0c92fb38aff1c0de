# SPDX-FileCopyrightText: 2026 the tarnwidgets developers
# SPDX-License-Identifier: MIT

# The steps of the install tests; STEP names the one to take.
cmake_minimum_required(VERSION 3.16)

set(here ${CMAKE_CURRENT_LIST_DIR})
set(prefix ${SCRATCH_DIR}/prefix)
set(consumer_sources ${here}/consumer/main.cpp ${here}/consumer/dialog.cpp)

# run(command...): a command that has to succeed.
function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    message("${output}")
    if(NOT result EQUAL 0)
        list(JOIN ARGV " " command)
        message(FATAL_ERROR "failed with ${result}: ${command}")
    endif()
endfunction()

# configure(source binary option...): configures a CMake project.
function(configure source binary)
    file(REMOVE_RECURSE ${binary})
    run(${CMAKE_COMMAND} -S ${source} -B ${binary} -G ${GENERATOR}
        -DCMAKE_BUILD_TYPE=${CONFIG}
        -DCMAKE_CXX_COMPILER=${CXX}
        -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
        -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
        ${ARGN})
endfunction()

# build(source binary option...): configures and builds a CMake project.
function(build source binary)
    configure(${source} ${binary} ${ARGN})
    run(${CMAKE_COMMAND} --build ${binary} --config ${CONFIG})
endfunction()

# install(binary prefix)
function(install binary prefix)
    file(REMOVE_RECURSE ${prefix})
    run(${CMAKE_COMMAND} --install ${binary} --config ${CONFIG} --prefix ${prefix})
endfunction()

# check_consumer(program utils): the consumer starts and is built on the named utils library.
function(check_consumer program utils)
    execute_process(COMMAND ${program} RESULT_VARIABLE result OUTPUT_VARIABLE output)
    set(expected "Tarn::Widgets::FramelessWindow on Tarn::Utils::AppMainWindow of the ${utils}, ")
    string(APPEND expected "with Tarn::Widgets::FramelessDialog\n")
    if(NOT result EQUAL 0 OR NOT output STREQUAL expected)
        message(FATAL_ERROR "${program} ended with ${result} and said\n${output}instead of\n${expected}")
    endif()
endfunction()

# check_same(what actual expected): two lists with the same members.
function(check_same what actual expected)
    list(SORT actual)
    list(SORT expected)
    if(NOT actual STREQUAL expected)
        message(FATAL_ERROR "${what}:\n${actual}\ninstead of\n${expected}")
    endif()
endfunction()

# Installed in one place and moved to another, so that nothing can depend on where it was installed.
function(step_tree)
    install(${PROJECT_BUILD_DIR} ${SCRATCH_DIR}/first-prefix)
    file(REMOVE_RECURSE ${prefix})
    file(RENAME ${SCRATCH_DIR}/first-prefix ${prefix})
endfunction()

function(step_headers)
    foreach(library IN ITEMS tarnutils tarnwidgets)
        file(GLOB public RELATIVE ${PROJECT_DIR}/${library} ${PROJECT_DIR}/${library}/*.h)
        list(FILTER public EXCLUDE REGEX "_p\\.h$")
        list(REMOVE_ITEM public ${HIDDEN_HEADERS})
        file(GLOB_RECURSE installed RELATIVE ${prefix}/include/${library} ${prefix}/include/${library}/*)
        check_same("headers of ${library}" "${installed}" "${public}")
    endforeach()
endfunction()

function(step_themes)
    set(themes ${PROJECT_DIR}/themes)
    file(GLOB_RECURSE sources RELATIVE ${themes} ${themes}/*.qss ${themes}/*.png)
    file(GLOB_RECURSE installed RELATIVE ${prefix}/share/tarnwidgets/themes
        ${prefix}/share/tarnwidgets/themes/*.qss
        ${prefix}/share/tarnwidgets/themes/*.png)
    check_same("themes" "${installed}" "${sources}")
endfunction()

function(step_translations)
    set(translations ${PROJECT_DIR}/translations)
    file(GLOB sources RELATIVE ${translations} ${translations}/*.ts)
    list(TRANSFORM sources REPLACE "\\.ts$" ".qm")
    if(NOT WITH_GALLERY)
        list(FILTER sources EXCLUDE REGEX "_gallery_")
    endif()
    file(GLOB installed RELATIVE ${prefix}/share/tarnwidgets/translations
        ${prefix}/share/tarnwidgets/translations/*)
    check_same("translations" "${installed}" "${sources}")
endfunction()

# Library and themes are found where the tree was moved to.
function(step_gallery)
    set(pictures ${SCRATCH_DIR}/pictures)
    file(REMOVE_RECURSE ${pictures})
    run(${prefix}/bin/tarnwidgets-gallery --page title-bar --theme dark --pictures ${pictures})
    file(GLOB drawn ${pictures}/*.png)
    if(NOT drawn)
        message(FATAL_ERROR "the gallery drew nothing")
    endif()
endfunction()

# The plugin for Qt Designer finds the library of the tree that it was moved with.
function(step_designer)
    set(plugin ${prefix}/${LIBDIR}/qt5/plugins/designer/libtarnwidgetsdesigner.so)
    execute_process(COMMAND ldd ${plugin} OUTPUT_VARIABLE libraries RESULT_VARIABLE result)
    get_filename_component(libdir ${prefix}/${LIBDIR} REALPATH)
    string(REGEX MATCH "libtarnwidgets.so.1 => ([^ \n]+)" found "${libraries}")
    get_filename_component(found "${CMAKE_MATCH_1}" DIRECTORY)
    get_filename_component(found "${found}" REALPATH)
    if(NOT result EQUAL 0 OR NOT found STREQUAL libdir)
        message(FATAL_ERROR "${plugin} takes the library from '${found}' instead of ${libdir}:\n${libraries}")
    endif()
endfunction()

function(step_cmake)
    build(${here}/consumer ${SCRATCH_DIR}/cmake -DCMAKE_PREFIX_PATH=${prefix})
    check_consumer(${SCRATCH_DIR}/cmake/consumer "stand-in")

    # Told of the one package alone, it finds the other.
    build(${here}/consumer ${SCRATCH_DIR}/cmake -DTarnWidgets_DIR=${prefix}/${LIBDIR}/cmake/TarnWidgets)
    check_consumer(${SCRATCH_DIR}/cmake/consumer "stand-in")
endfunction()

function(step_pkgconfig)
    build_by_pkgconfig(${SCRATCH_DIR}/pkgconfig ${prefix} ${consumer_sources})
    set(ENV{LD_LIBRARY_PATH} ${prefix}/${LIBDIR})
    check_consumer(${SCRATCH_DIR}/pkgconfig/consumer "stand-in")
endfunction()

# build_by_pkgconfig(binary prefix source...): one compiler call with what pkg-config says.
function(build_by_pkgconfig binary prefix)
    set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
    run(${PKG_CONFIG} --validate tarnwidgets)
    execute_process(COMMAND ${PKG_CONFIG} --cflags --libs tarnwidgets
        OUTPUT_VARIABLE flags RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "pkg-config does not know tarnwidgets")
    endif()
    separate_arguments(flags UNIX_COMMAND "${flags}")
    file(REMOVE_RECURSE ${binary})
    file(MAKE_DIRECTORY ${binary})
    run(${CXX} -std=c++17 -fPIC ${ARGN} ${flags} -o ${binary}/consumer)
endfunction()

function(step_qmake)
    set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
    build_by_qmake(${SCRATCH_DIR}/qmake ${here}/consumer/consumer.pro)
    set(ENV{LD_LIBRARY_PATH} ${prefix}/${LIBDIR})
    check_consumer(${SCRATCH_DIR}/qmake/consumer "stand-in")
endfunction()

# build_by_qmake(binary project option...)
function(build_by_qmake binary project)
    file(REMOVE_RECURSE ${binary})
    file(MAKE_DIRECTORY ${binary})
    run(${CMAKE_COMMAND} -E chdir ${binary} ${QMAKE} ${project} QMAKE_CXX=${CXX} QMAKE_LINK=${CXX} ${ARGN})
    run(make -C ${binary})
endfunction()

# What comes with the library is enough: pkg-config knows nothing.
function(step_qmake_pri)
    set(ENV{PKG_CONFIG_LIBDIR} ${SCRATCH_DIR})
    build_by_qmake(${SCRATCH_DIR}/qmake-pri ${here}/consumer/consumer-pri.pro
        TARNWIDGETS_PRI=${prefix}/${LIBDIR}/tarnwidgets/tarnwidgets.pri)
    set(ENV{LD_LIBRARY_PATH} ${prefix}/${LIBDIR})
    check_consumer(${SCRATCH_DIR}/qmake-pri/consumer "stand-in")
endfunction()

# The library as a part of an application's own build, and what that installs.
function(step_subproject)
    build(${here}/subproject ${SCRATCH_DIR}/subproject -DTARNWIDGETS_SOURCE=${PROJECT_DIR})
    check_consumer(${SCRATCH_DIR}/subproject/consumer "stand-in")
    install(${SCRATCH_DIR}/subproject ${SCRATCH_DIR}/subproject-prefix)
    build(${here}/consumer ${SCRATCH_DIR}/subproject-cmake -DCMAKE_PREFIX_PATH=${SCRATCH_DIR}/subproject-prefix)
    check_consumer(${SCRATCH_DIR}/subproject-cmake/consumer "stand-in")
endfunction()

# The pieces of CMake and qmake in the manual, each as a project of an application.
function(step_examples)
    file(GLOB projects ${EXAMPLES}/*)
    if(NOT projects)
        message(FATAL_ERROR "no examples in ${EXAMPLES}")
    endif()
    set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
    foreach(project IN LISTS projects)
        get_filename_component(name ${project} NAME)
        message("${name}")
        file(COPY ${here}/consumer/main.cpp ${here}/consumer/dialog.cpp DESTINATION ${project})
        if(EXISTS ${project}/project.pro)
            build_by_qmake(${SCRATCH_DIR}/examples/${name} ${project}/project.pro
                CONFIG+=c++17 SOURCES+=dialog.cpp TARN=${prefix})
        else()
            file(TOUCH ${project}/settings.ui)
            file(MAKE_DIRECTORY ${project}/third-party)
            file(CREATE_LINK ${PROJECT_DIR} ${project}/third-party/tarnwidgets SYMBOLIC)
            configure(${project} ${SCRATCH_DIR}/examples/${name}
                -DCMAKE_PREFIX_PATH=${prefix}
                -DFETCHCONTENT_SOURCE_DIR_TARNWIDGETS=${PROJECT_DIR})
        endif()
    endforeach()
endfunction()

# use_device_utils(scratch with_package): the whole project on a utils library that was there before.
function(use_device_utils scratch with_package)
    build(${here}/deviceutils ${scratch}/utils-build -DWITH_PACKAGE=${with_package})
    install(${scratch}/utils-build ${scratch}/device)

    build(${PROJECT_DIR} ${scratch}/build
        -DTARN_BUNDLED_UTILS=OFF
        -DTARN_BUILD_GALLERY=OFF
        -DBUILD_TESTING=OFF
        -DCMAKE_PREFIX_PATH=${scratch}/device)
    install(${scratch}/build ${scratch}/prefix)
    if(EXISTS ${scratch}/prefix/include/tarnutils)
        message(FATAL_ERROR "the stand-in was installed although it is switched off")
    endif()

    set(ENV{CMAKE_PREFIX_PATH} ${scratch}/prefix:${scratch}/device)
    build(${here}/consumer ${scratch}/cmake)
    set(ENV{LD_LIBRARY_PATH} ${scratch}/prefix/${LIBDIR}:${scratch}/device/${LIBDIR})
    check_consumer(${scratch}/cmake/consumer "device")

    build_by_pkgconfig(${scratch}/pkgconfig ${scratch}/prefix ${consumer_sources})
    check_consumer(${scratch}/pkgconfig/consumer "device")

    # The device's own library lies in another place here, which the .pri file cannot know.
    build_by_qmake(${scratch}/qmake ${here}/consumer/consumer-pri.pro
        TARNWIDGETS_PRI=${scratch}/prefix/${LIBDIR}/tarnwidgets/tarnwidgets.pri
        INCLUDEPATH+=${scratch}/device/include
        INCLUDEPATH+=${scratch}/device/include/tarnutils
        LIBS+=-L${scratch}/device/${LIBDIR})
    check_consumer(${scratch}/qmake/consumer "device")
endfunction()

function(step_device_package)
    use_device_utils(${SCRATCH_DIR}/device-package ON)
endfunction()

function(step_device_plain)
    use_device_utils(${SCRATCH_DIR}/device-plain OFF)
endfunction()

# The library with the class that it hides otherwise, and an application of that.
function(step_file_dialog)
    set(scratch ${SCRATCH_DIR}/file-dialog)
    build(${PROJECT_DIR} ${scratch}/build
        -DTARN_EXPORT_FRAMELESS_FILE_DIALOG=ON
        -DTARN_BUILD_GALLERY=OFF
        -DBUILD_TESTING=OFF)
    install(${scratch}/build ${scratch}/prefix)
    run(${CMAKE_COMMAND}
        -D NM=${NM}
        -D LIBRARY=${scratch}/prefix/${LIBDIR}/libtarnwidgets.so
        -D CLASSES=${PROJECT_DIR}/tests/abi/tarnwidgets.classes
        -P ${PROJECT_DIR}/tests/abi/check_symbols.cmake)
    build_by_pkgconfig(${scratch}/pkgconfig ${scratch}/prefix ${here}/consumer/filedialog.cpp)
    set(ENV{LD_LIBRARY_PATH} ${scratch}/prefix/${LIBDIR})
    run(${scratch}/pkgconfig/consumer)
endfunction()

if(STEP STREQUAL "tree")
    step_tree()
elseif(STEP STREQUAL "headers")
    step_headers()
elseif(STEP STREQUAL "themes")
    step_themes()
elseif(STEP STREQUAL "translations")
    step_translations()
elseif(STEP STREQUAL "gallery")
    step_gallery()
elseif(STEP STREQUAL "designer")
    step_designer()
elseif(STEP STREQUAL "cmake")
    step_cmake()
elseif(STEP STREQUAL "pkgconfig")
    step_pkgconfig()
elseif(STEP STREQUAL "qmake")
    step_qmake()
elseif(STEP STREQUAL "qmake_pri")
    step_qmake_pri()
elseif(STEP STREQUAL "subproject")
    step_subproject()
elseif(STEP STREQUAL "examples")
    step_examples()
elseif(STEP STREQUAL "file_dialog")
    step_file_dialog()
elseif(STEP STREQUAL "device_package")
    step_device_package()
elseif(STEP STREQUAL "device_plain")
    step_device_plain()
else()
    message(FATAL_ERROR "no step ${STEP}")
endif()
