# SPDX-FileCopyrightText: 2026 the tarnwidgets developers
# SPDX-License-Identifier: MIT

include(CMakePackageConfigHelpers)

# tarn_install_library(target
#     DESCRIPTION text
#     PKGCONFIG_REQUIRES module... [PKGCONFIG_REQUIRES_PRIVATE module...]
#     [PKGCONFIG_CFLAGS flag...] [PKGCONFIG_LIBS flag...]
#     [PACKAGE_FILES file...])
#
# Installs a shared library with its public headers, a CMake package named Tarn<EXPORT_NAME> that holds the target
# Tarn::<EXPORT_NAME>, and a pkg-config file. All of it may be moved to another place as a whole. Headers are found
# both as <target/x.h> and as <x.h>. The flags may contain generator expressions.
function(tarn_install_library target)
    cmake_parse_arguments(ARG "" "DESCRIPTION"
        "PKGCONFIG_REQUIRES;PKGCONFIG_REQUIRES_PRIVATE;PKGCONFIG_CFLAGS;PKGCONFIG_LIBS;PACKAGE_FILES" ${ARGN})
    get_target_property(export_name ${target} EXPORT_NAME)
    set(package Tarn${export_name})
    set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${package})

    install(TARGETS ${target} EXPORT ${package}Targets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
        PUBLIC_HEADER DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${target} COMPONENT development
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} ${CMAKE_INSTALL_INCLUDEDIR}/${target})

    install(EXPORT ${package}Targets NAMESPACE Tarn:: DESTINATION ${package_dir} COMPONENT development)
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/${package}Config.cmake.in ${package}Config.cmake
        INSTALL_DESTINATION ${package_dir}
        NO_SET_AND_CHECK_MACRO)
    write_basic_package_version_file(${package}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
    install(FILES
        ${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake
        ${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake
        ${ARG_PACKAGE_FILES}
        DESTINATION ${package_dir} COMPONENT development)

    file(RELATIVE_PATH prefix_from_pc ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
    string(REGEX REPLACE "/$" "" prefix_from_pc "${prefix_from_pc}")
    list(JOIN ARG_PKGCONFIG_REQUIRES " " requires)
    list(JOIN ARG_PKGCONFIG_REQUIRES_PRIVATE " " requires_private)
    list(JOIN ARG_PKGCONFIG_CFLAGS " " cflags)
    list(JOIN ARG_PKGCONFIG_LIBS " " libs)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/library.pc.in ${target}.pc.in @ONLY)
    file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${target}.pc INPUT ${CMAKE_CURRENT_BINARY_DIR}/${target}.pc.in)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${target}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endfunction()
