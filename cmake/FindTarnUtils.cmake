# SPDX-FileCopyrightText: 2026 the tarnwidgets developers
# SPDX-License-Identifier: MIT

# Finds libtarnutils, by its own CMake package if it has one, else by header and library, and makes Tarn::Utils.
# TarnUtils_INCLUDE_DIR, which contains tarnutils/appmainwindow.h, and TarnUtils_LIBRARY may be given.
include(CMakeFindDependencyMacro)
include(FindPackageHandleStandardArgs)

find_dependency(Qt5Widgets 5.15)

if(NOT TARGET Tarn::Utils)
    # Installed, this file lies beside the package of the stand-in, if that was installed too.
    find_package(TarnUtils CONFIG QUIET HINTS ${CMAKE_CURRENT_LIST_DIR}/../TarnUtils)
endif()

if(NOT TARGET Tarn::Utils)
    find_path(TarnUtils_INCLUDE_DIR tarnutils/appmainwindow.h)
    find_library(TarnUtils_LIBRARY NAMES tarnutils libtarnutils.so.1)
    mark_as_advanced(TarnUtils_INCLUDE_DIR TarnUtils_LIBRARY)
    if(TarnUtils_INCLUDE_DIR AND TarnUtils_LIBRARY)
        add_library(Tarn::Utils UNKNOWN IMPORTED)
        set_target_properties(Tarn::Utils PROPERTIES
            IMPORTED_LOCATION ${TarnUtils_LIBRARY}
            INTERFACE_INCLUDE_DIRECTORIES "${TarnUtils_INCLUDE_DIR};${TarnUtils_INCLUDE_DIR}/tarnutils"
            INTERFACE_LINK_LIBRARIES Qt5::Widgets)
    endif()
endif()

if(TARGET Tarn::Utils)
    set(TarnUtils_TARGET Tarn::Utils)
endif()
find_package_handle_standard_args(TarnUtils
    REQUIRED_VARS TarnUtils_TARGET
    REASON_FAILURE_MESSAGE "give TarnUtils_DIR, or TarnUtils_LIBRARY and TarnUtils_INCLUDE_DIR")
