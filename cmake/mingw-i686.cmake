# No emulator: Wine runs 64-bit programs only where we build, so these are built here and run elsewhere.
set(CMAKE_SYSTEM_PROCESSOR x86)
set(CORVEX_MINGW_TARGET i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
