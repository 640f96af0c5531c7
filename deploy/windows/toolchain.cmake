# Windows programs, compiled on Debian. VELCRO_LIBRARIES is the folder that deploy/windows/libraries
# filled; nothing of the building machine's own libraries is found.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(target x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${target}-gcc-posix)
set(CMAKE_CXX_COMPILER ${target}-g++-posix)
set(CMAKE_RC_COMPILER ${target}-windres)
set(CMAKE_AR ${target}-gcc-ar-posix CACHE FILEPATH "")
set(CMAKE_RANLIB ${target}-gcc-ranlib-posix CACHE FILEPATH "")

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VELCRO_LIBRARIES)
set(CMAKE_FIND_ROOT_PATH /usr/${target} ${VELCRO_LIBRARIES})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
