# SPDX-FileCopyrightText: 2026 the tarnwidgets developers
# SPDX-License-Identifier: MIT

# Fails unless UNLISTED, the headers that their library does not list as public, is empty.

if(UNLISTED)
    message(FATAL_ERROR "Neither named *_p.h nor among the PUBLIC_HEADER of their library, so not installed: ${UNLISTED}")
endif()
