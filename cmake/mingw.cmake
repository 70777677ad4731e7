# Windows by the posix-threads flavour of mingw-w64, so that std::thread and std::mutex are there.
# Included by the file of each target, which sets CORVEX_MINGW_TARGET and the processor.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER   ${CORVEX_MINGW_TARGET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${CORVEX_MINGW_TARGET}-g++-posix)
set(CMAKE_RC_COMPILER  ${CORVEX_MINGW_TARGET}-windres)
set(CMAKE_RC_FLAGS_INIT "--codepage=65001")
# Static: a user's machine has no runtime of ours to find.
set(CMAKE_EXE_LINKER_FLAGS_INIT    "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
set(CMAKE_FIND_ROOT_PATH /usr/${CORVEX_MINGW_TARGET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
